// Windows, input and assistive technology by Qt.
#pragma once

#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/Qt/Install.hpp"
#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtWindow.hpp"
