// The ordinary installation of everything that a screen needs around it.
#pragma once

#include "Backends/Standard/Standard.hpp"
