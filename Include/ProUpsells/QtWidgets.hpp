// Screens in Qt's widgets and dialogs.
#pragma once

#include "Backends/Qt/Install.hpp"
#include "Backends/QtWidgets/ControllerDialog.hpp"
#include "Backends/QtWidgets/ControllerWidget.hpp"
