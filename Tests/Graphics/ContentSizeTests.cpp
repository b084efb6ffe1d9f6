#include <gtest/gtest.h>

#include "Platform/Graphics/ContentSize.hpp"

using namespace proupsells;

using graphics::ContentSizeCategory;
using graphics::nearestCategory;

TEST(ContentSizes, AreFoundByTheFactorThatIsNearestToTheirs) {
    constexpr struct {
        double factor;
        ContentSizeCategory category;
    } expected[] = {
        {0.01, ContentSizeCategory::extraSmall},
        {0.8, ContentSizeCategory::extraSmall},
        {0.9, ContentSizeCategory::small},
        {0.95, ContentSizeCategory::medium},
        {1, ContentSizeCategory::large},
        {1.05, ContentSizeCategory::large},
        {1.1, ContentSizeCategory::extraLarge},
        {1.25, ContentSizeCategory::extraExtraLarge},
        {1.4, ContentSizeCategory::extraExtraExtraLarge},
        {1.6, ContentSizeCategory::accessibilityMedium},
        {1.75, ContentSizeCategory::accessibilityMedium},
        {2, ContentSizeCategory::accessibilityLarge},
        {2.25, ContentSizeCategory::accessibilityExtraLarge},
        {2.6, ContentSizeCategory::accessibilityExtraExtraLarge},
        {3, ContentSizeCategory::accessibilityExtraExtraExtraLarge},
        {100, ContentSizeCategory::accessibilityExtraExtraExtraLarge},
    };

    for (const auto& [factor, category] : expected) EXPECT_EQ(nearestCategory(factor), category) << factor;
}

TEST(ContentSizes, AreFoundByTheirOwnFactors) {
    for (int index = 0; index < graphics::contentSizeCategoryCount; ++index) {
        const auto category = ContentSizeCategory(index);
        EXPECT_EQ(nearestCategory(graphics::scaleFactor(category)), category);
    }
}
