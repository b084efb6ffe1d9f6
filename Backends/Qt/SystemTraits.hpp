// What a screen follows where the host says nothing.
#pragma once

#include <QPalette>

#include "Backends/Qt/ScreenTraits.hpp"

namespace proupsells::qtbackend {

// As the widget or the application around the screen has them.
struct SystemTraits {
    QPalette palette;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool reducesMotion = false;
};

// What the host decides, and else the system, at `scale` pixels a point.
uikit::UITraitCollection traitsOf(const ScreenTraits& decided, const SystemTraits& system, double scale);

} // namespace proupsells::qtbackend
