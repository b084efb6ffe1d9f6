// How large a person wants texts to be.
#pragma once

#include <algorithm>
#include <cmath>
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

// The category that makes texts larger by nearly `factor`, which is above 0: by the least ratio between the two.
inline ContentSizeCategory nearestCategory(double factor) {
    const auto distance = [factor](int category) {
        return std::abs(std::log(scaleFactor(ContentSizeCategory(category)) / factor));
    };
    int nearest = 0;
    for (int category = 1; category < contentSizeCategoryCount; ++category)
        if (distance(category) < distance(nearest)) nearest = category;
    return ContentSizeCategory(nearest);
}

// Points below which no category makes a text smaller.
inline constexpr double leastTextSize = 11;

// How large a text of `size` points is with a category. What is designed to be smaller than the least size stays as it is.
constexpr double scaledSize(double size, ContentSizeCategory category) {
    return std::max(size * scaleFactor(category), std::min(size, leastTextSize));
}

} // namespace proupsells::graphics
