// What a screen follows where the host says nothing.
#pragma once

#include <QPalette>

#include "Backends/Qt/ScreenTraits.hpp"

namespace proupsells::qtbackend {

class DesktopSettings;

// As the widget or the application around the screen has them.
struct SystemTraits {
    QPalette palette;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool reducesMotion = false;
};

// What the host decides, and else the system, at `scale` pixels a point. The desktop says how large texts are and whether things
// move; light or dark is the application's affair, so that the screen looks like what is around it.
uikit::UITraitCollection traitsOf(const ScreenTraits& decided, const SystemTraits& system, const DesktopSettings& desktop,
                                  double scale);

} // namespace proupsells::qtbackend
