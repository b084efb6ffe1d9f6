// How large a person wants texts to be.
#pragma once

#include <algorithm>
#include <cstdint>

namespace proupsells::graphics {

// From small to large; the accessibility categories go beyond what is usual.
enum class ContentSizeCategory : std::uint8_t {
    extraSmall,
    small,
    medium,
    large, // the normal size
    extraLarge,
    extraExtraLarge,
    extraExtraExtraLarge,
    accessibilityMedium,
    accessibilityLarge,
    accessibilityExtraLarge,
    accessibilityExtraExtraLarge,
    accessibilityExtraExtraExtraLarge,
};

// How many categories there are.
inline constexpr int contentSizeCategoryCount = 12;

// By how much a category makes texts larger than the normal size.
constexpr double scaleFactor(ContentSizeCategory category) {
    constexpr double bodySizes[contentSizeCategoryCount] = {14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53};
    return bodySizes[int(category)] / 17;
}

// Points below which no category makes a text smaller.
inline constexpr double leastTextSize = 11;

// How large a text of `size` points is with a category. What is designed to be smaller than the least size stays as it is.
constexpr double scaledSize(double size, ContentSizeCategory category) {
    return std::max(size * scaleFactor(category), std::min(size, leastTextSize));
}

} // namespace proupsells::graphics
