#include "Platform/LumoKit/TextStyle.hpp"

#include <algorithm>

namespace proupsells::lumokit {

using swiftui::TextCase;

using graphics::ContentSizeCategory;

constexpr TextStyle headingH2{.name = "headingH2",
                              .family = "Sora",
                              .weight = 700,
                              .compactSize = 24,
                              .regularSize = 24,
                              .largestTextSize = ContentSizeCategory::extraLarge};
constexpr TextStyle bodyLarge{.name = "bodyLarge",
                              .weight = 500,
                              .compactSize = 17,
                              .regularSize = 17,
                              .largestTextSize = ContentSizeCategory::accessibilityExtraLarge};
constexpr TextStyle labelSmall{.name = "labelSmall", .weight = 400, .compactSize = 12, .regularSize = 12};
constexpr TextStyle labelCapsSmall{.name = "labelCapsSmall",
                                   .weight = 600,
                                   .compactSize = 11,
                                   .regularSize = 11,
                                   .textCase = TextCase::uppercase,
                                   .largestTextSize = ContentSizeCategory::extraExtraLarge};
constexpr TextStyle labelCapsLarge{.name = "labelCapsLarge",
                                   .weight = 600,
                                   .compactSize = 13,
                                   .regularSize = 13,
                                   .textCase = TextCase::uppercase,
                                   .largestTextSize = ContentSizeCategory::extraExtraExtraLarge};

TextStyle TextStyle::based(PlatformTextStyle base, double compactSize, double regularSize, double minimumScaleFactor) {
    const bool isHeadline = base == PlatformTextStyle::headline;
    return {.name = isHeadline ? "headline" : "subheadline",
            .weight = isHeadline ? 600 : 400,
            .compactSize = compactSize,
            .regularSize = regularSize,
            .minimumScaleFactor = minimumScaleFactor};
}

graphics::Font TextStyle::font(swiftui::SizeClass width) const {
    const graphics::FontFace* face = graphics::findFontFace(name);
    if (!face) face = &graphics::registerFontFace(name, family, weight);
    return {.face = face, .size = width == swiftui::SizeClass::regular ? regularSize : compactSize, .name = name};
}

void TextStyle::apply(swiftui::EnvironmentValues& values) const {
    values.font = font(values.horizontalSizeClass);
    values.minimumScaleFactor = minimumScaleFactor;
    values.textCase = textCase;
    values.contentSize = std::min(values.contentSize, largestTextSize);
}

} // namespace proupsells::lumokit
