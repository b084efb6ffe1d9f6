// Screens in a host's own tests: opened, touched, read and judged without a window.
#pragma once

#include "ScreenTest/ScreenMatchers.hpp"
#include "ScreenTest/TestScreen.hpp"
