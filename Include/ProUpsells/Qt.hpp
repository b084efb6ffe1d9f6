// Windows, glyphs and pictures by Qt.
#pragma once

#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/QtImageDecoder.hpp"
#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtTextShaper.hpp"
#include "Backends/Qt/QtWindow.hpp"
