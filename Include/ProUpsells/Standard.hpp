// The ordinary installation of everything that a screen needs around it, and a screen in memory.
#pragma once

#include "Backends/Standard/PixelScreen.hpp"
#include "Backends/Standard/Standard.hpp"
