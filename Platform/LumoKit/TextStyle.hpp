// The design system's text styles.
#pragma once

#include <string_view>

#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"

namespace proupsells::lumokit {

// The platform's own text styles that design-system styles are built on: their weight, and their name on screen dumps.
enum class PlatformTextStyle { headline, subheadline };

struct TextStyle {
    std::string_view name;
    std::string_view family = "Inter";
    int weight = 400;        // 100 to 900, as in OpenType
    double compactSize = 17; // points, where the width is compact
    double regularSize = 17; // points, where it is regular
    // The share of its size down to which a text is shown smaller instead of being cut.
    double minimumScaleFactor = 1;
    swiftui::TextCase textCase = swiftui::TextCase::asWritten;
    // The person's text size up to which the style grows.
    graphics::ContentSizeCategory largestTextSize = graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge;

    // A style of the platform's, with sizes of one's own.
    static TextStyle based(PlatformTextStyle base, double compactSize, double regularSize, double minimumScaleFactor = 1);

    graphics::Font font(swiftui::SizeClass width) const;
    // Sets the texts inside in this style.
    void apply(swiftui::EnvironmentValues& values) const;

    bool operator==(const TextStyle&) const = default;
};

// Screen titles.
extern const TextStyle headingH2;
// The name of a thing to choose.
extern const TextStyle bodyLarge;
// Small print.
extern const TextStyle labelSmall;
// Capsules and section headings, shown in capitals.
extern const TextStyle labelCapsSmall;
extern const TextStyle labelCapsLarge;

inline swiftui::EnvironmentChange<TextStyle> textStyle(const TextStyle& style) { return {style}; }

} // namespace proupsells::lumokit
