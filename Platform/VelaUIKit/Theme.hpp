// The design system's two looks.
#pragma once

#include "Platform/UIKit/Views/UITraitCollection.hpp"

namespace proupsells::velauikit {

enum class Theme { dark = 0, light = 1 };

inline Theme theme(const uikit::UITraitCollection& traits) {
    return traits.userInterfaceStyle == graphics::ColorScheme::dark ? Theme::dark : Theme::light;
}

} // namespace proupsells::velauikit
