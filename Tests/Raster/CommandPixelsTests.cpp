// Which pixels commands are about.
#include "Backends/Raster/CommandPixels.hpp"

#include <gtest/gtest.h>

namespace proupsells::rasterbackend {
namespace {

using geometry::Rect;
using graphics::Command;

constexpr PixelRect everything{-100'000, -100'000, 100'000, 100'000};

Command at(const Rect& frame) {
    Command command;
    command.frame = command.bounds = frame;
    command.clip = {{-1e9, -1e9}, {2e9, 2e9}};
    return command;
}

TEST(CommandPixels, AreThoseThatItsBoundsTouchInTheClip) {
    Command command = at({{1.25, 2.5}, {3, 4}});
    EXPECT_EQ(paintedPixels(command, 1, everything), (PixelRect{1, 2, 5, 7}));
    EXPECT_EQ(paintedPixels(command, 2, everything), (PixelRect{2, 5, 9, 13}));

    // The edges of a clip are moved to the nearest ones.
    command.clip = {{2.4, 3.6}, {1, 1}};
    EXPECT_EQ(paintedPixels(command, 1, everything), (PixelRect{2, 4, 3, 5}));
    command.clip = {{50, 50}, {1, 1}};
    EXPECT_TRUE(paintedPixels(command, 1, everything).isEmpty());
}

TEST(CommandPixels, AreNoneBesideThePartThatIsAskedFor) {
    const Command command = at({{10, 20}, {5, 6}});
    EXPECT_EQ(paintedPixels(command, 1, {12, 22, 13, 40}), (PixelRect{12, 22, 13, 26}));
    for (const PixelRect& part :
         {PixelRect{0, 0, 10, 50}, {15, 0, 50, 50}, {0, 0, 50, 20}, {0, 26, 50, 50}, {0, 0, 5, 50}, {0, 40, 50, 50}})
        EXPECT_TRUE(paintedPixels(command, 1, part).isEmpty()) << part.left << ", " << part.top;
}

TEST(CommandPixels, OfAPictureAreAsManyWhereverItStands) {
    EXPECT_EQ(imagePixels(at({{1, 2}, {10, 20}}), 1), (PixelRect{1, 2, 11, 22}));
    EXPECT_EQ(imagePixels(at({{1.4, 2.6}, {10.4, 20.6}}), 1), (PixelRect{1, 3, 11, 24}));
    EXPECT_EQ(imagePixels(at({{1.6, 2.4}, {10.4, 20.6}}), 1), (PixelRect{2, 2, 12, 23}));
    EXPECT_EQ(imagePixels(at({{1.4, 2.6}, {10.4, 20.6}}), 2), (PixelRect{3, 5, 24, 46}));
}

TEST(CommandPixels, OfAPictureAreOneAtLeastAndNoMoreThanAPictureMayHave) {
    EXPECT_EQ(imagePixels(at({{1, 2}, {0.1, 0.1}}), 1), (PixelRect{1, 2, 2, 3}));
    EXPECT_EQ(imagePixels(at({{0, 0}, {8192, 8191}}), 1), (PixelRect{0, 0, 8192, 8191}));
    EXPECT_EQ(imagePixels(at({{0, 0}, {8193, 1e7}}), 1), (PixelRect{0, 0, 8192, 8192}));
}

TEST(CommandPixels, ThatNothingIsSeenBelowAreCoveredWhollyByAnOpaqueColour) {
    Command command = at({{1.25, 2}, {3, 4.5}});
    command.color = graphics::rgb(0x123456);
    EXPECT_EQ(hiddenPixels(command, 1), (PixelRect{2, 2, 4, 6}));
    EXPECT_EQ(hiddenPixels(command, 2), (PixelRect{3, 4, 8, 13}));

    Command clipped = command;
    clipped.clip = {{3, 0}, {10, 4}};
    EXPECT_EQ(hiddenPixels(clipped, 1), (PixelRect{3, 2, 4, 4}));
}

TEST(CommandPixels, HideNothingWhereTheyCanBeSeenThrough) {
    Command opaque = at({{0, 0}, {10, 10}});
    opaque.color = graphics::rgb(0x123456);
    ASSERT_FALSE(hiddenPixels(opaque, 1).isEmpty());
    Command faint = opaque, faded = opaque, round = opaque, cut = opaque, turned = opaque;
    faint.color.alpha = 254;
    faded.opacity = 0.99f;
    round.kind = graphics::CommandKind::fillEllipse;
    cut.clipRadius = 0.5;
    turned.transform = 0;
    for (const Command* command : {&faint, &faded, &round, &cut, &turned}) EXPECT_TRUE(hiddenPixels(*command, 1).isEmpty());
}

} // namespace
} // namespace proupsells::rasterbackend
