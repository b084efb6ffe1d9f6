// What every program of the comparison measures with. Including this one is enough; none of it knows a toolkit.
#pragma once

#include "Common/Command.hpp"
#include "Common/Memory.hpp"
#include "Common/Report.hpp"
#include "Common/Series.hpp"
#include "Common/Stopwatch.hpp"
