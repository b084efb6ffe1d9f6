// The ring around the control that keys operate.
#pragma once

#include "Platform/UIKit/Views/UIKitTypes.hpp"

namespace proupsells::uikit {

inline constexpr UIColor focusRingColor{"focusRing", graphics::rgb(0x0A7C78), graphics::rgb(0x3CCBC1)};

} // namespace proupsells::uikit
