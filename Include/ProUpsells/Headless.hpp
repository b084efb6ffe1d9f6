// A test bed: fixed text metrics, no window, and a clock that stands still until it is told to move.
#pragma once

#include "Backends/Headless/TestBed.hpp"
