#include <gmock/gmock.h>

#include <random>

#include "Tests/SwiftUI/Rows.hpp"

using namespace proupsells;

using namespace swiftui;
using namespace proupsells::tests;

namespace {

TEST(ScrollView, OffersItsWidthAndAsMuchHeightAsItsContentLikes) {
    Rows rows;

    EXPECT_EQ(rows.screen.scrollInfo().contentSize, (geometry::Size{300, 1000}));
    EXPECT_EQ(rows.screen.frame("row3"), (geometry::Rect{{0, 300}, {300, 100}}));
    EXPECT_EQ(rows.screen.offset(), (geometry::Point{0, 0}));
}

TEST(ScrollView, IsAsWideAsItsContentAndAsHighAsItMay) {
    TouchScreen screen{[] { return ScrollView{.content = {box(120, 1000, "content")}} | accessibilityIdentifier("scroll"); }};

    EXPECT_EQ(screen.frame("scroll"), (geometry::Rect{{90, 0}, {120, 400}}));
}

TEST(ScrollView, StacksSeveralViews) {
    TouchScreen screen{[] { return ScrollView{.content = {box(100, 30, "first"), box(100, 30, "second")}}; }};

    EXPECT_EQ(screen.frame("second").minY(), 38);
}

TEST(ScrollView, StaysPutUntilTheFingerHasMovedTenPoints) {
    Rows rows;

    rows.screen.down({150, 300});
    rows.screen.move({150, 291});
    EXPECT_EQ(rows.offset(), 0);

    rows.screen.move({150, 280});
    EXPECT_EQ(rows.offset(), 10);
}

TEST(ScrollView, FollowsTheFingerExactly) {
    Rows rows;
    rows.screen.pull({150, 300}, {150, 200}, 0.5);
    EXPECT_DOUBLE_EQ(rows.offset(), 90);

    rows.screen.move({150, 250});
    EXPECT_DOUBLE_EQ(rows.offset(), 40);
    EXPECT_EQ(rows.screen.frame("row3").minY(), 260);
}

TEST(ScrollView, IgnoresAFingerThatMovesAcross) {
    Rows rows;

    rows.screen.drag({20, 300}, {280, 240}, 0.3);

    EXPECT_EQ(rows.offset(), 0);
}

TEST(ScrollView, BouncesAlsoWhereTheContentFits) {
    TouchScreen screen{[] { return rows(2); }};

    screen.pull({150, 50}, {150, 160}, 0.5);
    EXPECT_LT(screen.offset().y, -10);

    screen.up({150, 160});
    screen.wait(3);
    EXPECT_EQ(screen.offset().y, 0);
}

TEST(ScrollView, LeavesNothingRunningAtRest) {
    Rows rows;
    rows.screen.drag({150, 380}, {150, 280}, 0.2);
    EXPECT_TRUE(rows.screen.host().isAnimating());

    rows.screen.wait(10);

    EXPECT_FALSE(rows.screen.host().isAnimating());
    EXPECT_FALSE(rows.screen.bed().loop().nextDueTime_s());
}

TEST(ScrollView, StopsUnderAFingerWhichTapsNothing) {
    int taps = 0;
    TouchScreen screen{
        [&] { return ScrollView{.content = {Button{.action = [&taps] { ++taps; }, .label = box(300, 5000, "tall")}}}; }};
    screen.drag({150, 380}, {150, 280}, 0.1);
    screen.wait(0.1);
    const double moving = screen.offset().y;

    screen.down({150, 200});
    screen.wait(1);
    EXPECT_NEAR(screen.offset().y, moving, 1e-9);

    screen.up({150, 200});
    EXPECT_EQ(taps, 0);

    screen.wait(1);
    screen.tap({150, 200});
    EXPECT_EQ(taps, 1);
}

TEST(ScrollView, TakesHoldAtOnceOfWhatItHasStopped) {
    Rows rows;
    rows.screen.drag({150, 380}, {150, 300}, 0.1);
    rows.screen.wait(0.2);
    rows.screen.down({150, 200});
    const double held = rows.offset();

    rows.screen.move({150, 197});

    EXPECT_NEAR(rows.offset(), held + 3, 1e-9);
}

TEST(ScrollView, SettlesAfterBeingCaughtBeyondItsEnd) {
    Rows rows;
    rows.screen.drag({150, 100}, {150, 300}, 0.1);
    rows.screen.wait(0.05);

    rows.screen.tap({150, 200});
    rows.screen.wait(3);

    EXPECT_EQ(rows.offset(), 0);
}

// --- Wheel

TEST(ScrollViewWheel, MovesAtOnceAndStopsAtTheEnds) {
    Rows rows;

    EXPECT_TRUE(rows.screen.host().scroll({150, 200}, {0, 250}));
    EXPECT_EQ(rows.offset(), 250);

    EXPECT_TRUE(rows.screen.host().scroll({150, 200}, {0, -300}));
    EXPECT_EQ(rows.offset(), 0);

    EXPECT_FALSE(rows.screen.host().scroll({150, 200}, {0, -10}));
}

TEST(ScrollViewWheel, PassesOnWhatTheInnerViewCannotUse) {
    TouchScreen screen{[] {
        return ScrollView{.content = {VStack{.spacing = 0,
                                             .content = {ScrollView{.content = {box(300, 250, "inner")}} | frame(300, 200),
                                                         box(300, 900, "outer")}}}};
    }};

    screen.host().scroll({150, 100}, {0, 60});
    EXPECT_EQ(screen.frame("inner").minY(), -50);
    EXPECT_EQ(screen.frame("outer").minY(), 200);

    screen.host().scroll({150, 100}, {0, 60});
    EXPECT_EQ(screen.frame("outer").minY(), 140);
}

// --- Whatever fingers do

TEST(ScrollView, SettlesInItsRangeAfterAnythingThatAFingerDoes) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random{seed};
        std::uniform_real_distribution<double> x{0, 300}, y{-100, 500}, pause{0, 0.3};
        std::uniform_int_distribution<int> what{0, 7};
        int count = 10;
        TouchScreen screen{[&] { return rows(count); }};
        for (int action = 0; action < 40; ++action) {
            const geometry::Point at{x(random), y(random)};
            switch (what(random)) {
            case 0: screen.down(at); break;
            case 1:
            case 2:
            case 3: screen.move(at); break;
            case 4: screen.up(at); break;
            case 5: screen.host().scroll(at, {0, y(random) - 200}); break;
            case 6: screen.drag(at, {x(random), y(random)}, pause(random)); break;
            default: count = 1 + int(random() % 20); screen.rebuild();
            }
            screen.wait(pause(random));
            ASSERT_TRUE(std::isfinite(screen.offset().y));
            // Never further out than a viewport's length and the fastest flick's swing.
            ASSERT_GT(screen.offset().y, -700);
            ASSERT_LT(screen.offset().y, 2300);
        }
        screen.up({0, 0});
        screen.wait(10);
        ASSERT_GE(screen.offset().y, 0);
        ASSERT_LE(screen.offset().y, std::max(0, count * 100 - 400));
        ASSERT_FALSE(screen.bed().loop().nextDueTime_s());
    }
}

} // namespace
