// How a screen follows the system's theme, direction and the like.
#pragma once

#include <optional>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Views/UITraitCollection.hpp"

class QPalette;

namespace proupsells::qtbackend {

// What the host decides about a screen. Where it says nothing, the widget, item or window around the screen is followed, or the
// system.
struct ScreenTraits {
    std::optional<graphics::ColorScheme> colorScheme;
    std::optional<geometry::LayoutDirection> layoutDirection;
    std::optional<bool> reducesMotion;
    // On top of the scale factor, which follows the display.
    std::optional<graphics::ContentSizeCategory> textSize = std::nullopt;

    bool operator==(const ScreenTraits&) const = default;
};

// Dark where texts are lighter than what they stand on.
PROUPSELLS_EXPORT graphics::ColorScheme colorSchemeOf(const QPalette& palette);

} // namespace proupsells::qtbackend
