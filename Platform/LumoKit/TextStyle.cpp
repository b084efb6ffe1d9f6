#include "Platform/LumoKit/TextStyle.hpp"

#include <algorithm>

#include "Platform/LumoKit/LargestTextSize.hpp"

namespace proupsells::lumokit {

using swiftui::TextCase;

constexpr TextStyle headingH2{.name = "headingH2",
                              .family = "Sora",
                              .weight = 700,
                              .compactSize = 24,
                              .regularSize = 24,
                              .largestTextSize = LargestSize::title};
constexpr TextStyle bodyLarge{
    .name = "bodyLarge", .weight = 500, .compactSize = 17, .regularSize = 17, .largestTextSize = LargestSize::mainText};
constexpr TextStyle labelSmall{
    .name = "labelSmall", .weight = 400, .compactSize = 12, .regularSize = 12, .largestTextSize = LargestSize::rowText};
constexpr TextStyle labelCapsSmall{.name = "labelCapsSmall",
                                   .weight = 600,
                                   .compactSize = 11,
                                   .regularSize = 11,
                                   .textCase = TextCase::uppercase,
                                   .largestTextSize = LargestSize::capsule};
constexpr TextStyle labelCapsLarge{.name = "labelCapsLarge",
                                   .weight = 600,
                                   .compactSize = 13,
                                   .regularSize = 13,
                                   .textCase = TextCase::uppercase,
                                   .largestTextSize = LargestSize::section};

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
