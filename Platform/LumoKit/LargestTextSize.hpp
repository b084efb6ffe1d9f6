// Text that must not grow without end.
#pragma once

#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"

namespace proupsells::lumokit {

// How far each kind of text grows. Kept together, so that what is larger than something else is so at every text size.
namespace LargestSize {
using enum graphics::ContentSizeCategory;
inline constexpr graphics::ContentSizeCategory mainText = accessibilityExtraLarge; // plans and their prices, features, sentences
inline constexpr graphics::ContentSizeCategory rowText = accessibilityLarge; // rows and links that lead elsewhere, small print
inline constexpr graphics::ContentSizeCategory buttonText = accessibilityLarge;
inline constexpr graphics::ContentSizeCategory headline = accessibilityLarge;  // above a sentence
inline constexpr graphics::ContentSizeCategory section = accessibilityMedium;  // above a list, in capitals
inline constexpr graphics::ContentSizeCategory title = extraExtraExtraLarge;   // a screen's
inline constexpr graphics::ContentSizeCategory capsule = extraExtraExtraLarge; // and a badge
inline constexpr graphics::ContentSizeCategory onPicture = extraLarge;         // where only the lower third is calm
} // namespace LargestSize

// Texts inside grow with the person's text size up to this one: for labels in places whose shape would break.
struct LargestTextSize {
    graphics::ContentSizeCategory largest;

    void apply(swiftui::EnvironmentValues& values) const;
    bool operator==(const LargestTextSize&) const = default;
};

inline swiftui::EnvironmentChange<LargestTextSize> largestTextSize(graphics::ContentSizeCategory largest) { return {{largest}}; }

} // namespace proupsells::lumokit
