// What a view needs to know about the screen and about the person in front of it.
#pragma once

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Graphics/ContentSize.hpp"

namespace proupsells::uikit {

// Narrow or wide, by regularWidth.
enum class UIUserInterfaceSizeClass { compact, regular };

// Screens narrower than this are compact, and sheets fill them.
inline constexpr double regularWidth = 600;

struct UITraitCollection {
    graphics::ColorScheme userInterfaceStyle = graphics::ColorScheme::light;
    geometry::LayoutDirection layoutDirection = geometry::LayoutDirection::leftToRight;
    graphics::ContentSizeCategory preferredContentSizeCategory = graphics::ContentSizeCategory::large;
    double displayScale = 1; // pixels a point
    bool reduceMotion = false;
    UIUserInterfaceSizeClass horizontalSizeClass = UIUserInterfaceSizeClass::compact;

    bool operator==(const UITraitCollection&) const = default;
};

} // namespace proupsells::uikit
