#include "Platform/Graphics/ScrollIndicator.hpp"

#include <gtest/gtest.h>

namespace proupsells::graphics {
namespace {

TEST(ScrollIndicator, StandsWhereTheContentStands) {
    ScrollIndicator::Track track{.viewport = {{0, 0}, {300, 400}}, .contentLength = 1600};
    EXPECT_EQ(ScrollIndicator::bar(track).minY(), 3);
    EXPECT_NEAR(ScrollIndicator::bar(track).height(), 394 / 4.0, 1e-9);

    track.offset = 1200;
    EXPECT_NEAR(ScrollIndicator::bar(track).maxY(), 397, 1e-9);

    track.offset = 1250; // pulled over the end: shorter, still at the end
    EXPECT_NEAR(ScrollIndicator::bar(track).maxY(), 397, 1e-9);
    EXPECT_NEAR(ScrollIndicator::bar(track).height(), 394 / 4.0 - 50, 1e-9);

    track.contentLength = 100000;
    EXPECT_EQ(ScrollIndicator::bar(track).height(), 36);
}

} // namespace
} // namespace proupsells::graphics
