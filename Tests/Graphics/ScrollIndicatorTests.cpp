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

TEST(ScrollIndicator, StaysInWhatNothingCovers) {
    ScrollIndicator::Track track{.viewport = {{10, 20}, {300, 400}},
                                 .covered = {.top = 50, .left = 7, .bottom = 30, .right = 9},
                                 .contentLength = 640,
                                 .offset = -50};
    EXPECT_EQ(ScrollIndicator::bar(track), (geometry::Rect{{10 + 300 - 9 - 6, 20 + 50 + 3}, {3, 314 / 2.0}}));
    track.offset = 640 - 400 + 30;
    EXPECT_EQ(ScrollIndicator::bar(track).maxY(), 20 + 400 - 30 - 3);
    track.isRightToLeft = true;
    EXPECT_EQ(ScrollIndicator::bar(track).minX(), 10 + 7 + 3);

    track.axis = geometry::Axis::horizontal;
    track.contentLength = 568;
    track.offset = -7;
    EXPECT_EQ(ScrollIndicator::bar(track), (geometry::Rect{{10 + 7 + 3, 20 + 400 - 30 - 6}, {278 / 2.0, 3}}));
    track.offset = 568 - 300 + 9;
    EXPECT_EQ(ScrollIndicator::bar(track).maxX(), 10 + 300 - 9 - 3);
}

TEST(ScrollIndicator, IsLightInTheDarkAndRoundAtItsEnds) {
    ScrollIndicator indicator;
    indicator.show(1);
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        DisplayList list;
        PaintContext context(list);
        PaintState state;
        state.scheme = scheme;
        indicator.paint(context, state, {.viewport = {{0, 0}, {300, 400}}, .contentLength = 1600}, 1);

        ASSERT_EQ(list.commands.size(), 1u);
        EXPECT_EQ(list.commands[0].color, scheme == ColorScheme::dark ? rgb(0xFFFFFF, 128) : rgb(0x000000, 90));
        EXPECT_EQ(list.commands[0].cornerRadius, 1.5);
        EXPECT_EQ(list.commands[0].opacity, 1);
    }
}

TEST(ScrollIndicator, HoldsForAWhileAndFades) {
    ScrollIndicator indicator;
    indicator.show(1);
    EXPECT_EQ(indicator.opacityAt(1.4), 1);
    EXPECT_NEAR(indicator.opacityAt(1.55), 0.5, 1e-9);
    EXPECT_EQ(indicator.opacityAt(1.7), 0);
    EXPECT_DOUBLE_EQ(indicator.end_s(), 1.7);
}

} // namespace
} // namespace proupsells::graphics
