// Screens in Qt Quick scenes.
#pragma once

#include "Backends/QtQuick/ControllerItem.hpp"
#include "Backends/QtQuick/Install.hpp"
#include "Backends/QtQuick/PaywallItem.hpp"
