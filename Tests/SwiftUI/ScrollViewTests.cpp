#include <gmock/gmock.h>

#include <random>

#include "Platform/Motion/ScrollMotion.hpp"
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

TEST(ScrollView, GivesLikeRubberAtItsStart) {
    Rows rows;

    rows.screen.pull({150, 100}, {150, 210}, 0.5);

    EXPECT_DOUBLE_EQ(rows.offset(), motion::rubberBanded(-100, {0, 600}, 400));
    EXPECT_GT(rows.offset(), -100);
}

TEST(ScrollView, GivesLikeRubberAtItsEnd) {
    Rows rows;
    rows.screen.host().scroll({150, 200}, {0, 5000});
    EXPECT_EQ(rows.offset(), 600);

    rows.screen.pull({150, 300}, {150, 190}, 0.5);

    EXPECT_DOUBLE_EQ(rows.offset(), motion::rubberBanded(700, {0, 600}, 400));
}

TEST(ScrollView, SpringsBackIntoItsRange) {
    Rows rows;

    rows.screen.drag({150, 100}, {150, 210}, 0.5);
    EXPECT_LT(rows.offset(), 0);

    rows.screen.wait(3);
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

TEST(ScrollView, CoastsWithTheFingersSpeed) {
    Rows rows;

    rows.screen.drag({150, 380}, {150, 300}, 0.1); // 800 points a second
    const double atLift = rows.offset();
    rows.screen.wait(0.1);
    EXPECT_NEAR(rows.offset() - atLift, 800 * 0.1, 12);

    rows.screen.wait(10);
    EXPECT_NEAR(rows.offset() - atLift, 800 / 2.002, 8);
}

TEST(ScrollView, DoesNotCoastAfterTheFingerHasRested) {
    Rows rows;

    rows.screen.pull({150, 380}, {150, 300}, 0.1);
    rows.screen.wait(0.2);
    rows.screen.up({150, 300});
    rows.screen.wait(5);

    EXPECT_DOUBLE_EQ(rows.offset(), 70);
}

TEST(ScrollView, RunsOverItsEndAndComesBack) {
    Rows rows;
    rows.screen.host().scroll({150, 200}, {0, 550});

    rows.screen.drag({150, 380}, {150, 200}, 0.1);
    double furthest = 0;
    for (int frame = 0; frame < 120; ++frame) {
        rows.screen.wait(1.0 / 60);
        furthest = std::max(furthest, rows.offset());
    }

    EXPECT_GT(furthest, 620);
    EXPECT_EQ(rows.offset(), 600);
}

TEST(ScrollView, IsSampledExactlyBetweenItsSteps) {
    const auto offsetAfterHalfASecondIn = [](int steps) {
        Rows rows;
        rows.screen.drag({150, 380}, {150, 280}, 0.2);
        for (int step = 0; step < steps; ++step) rows.screen.wait(0.5 / steps);
        return rows.offset();
    };

    EXPECT_NEAR(offsetAfterHalfASecondIn(1), offsetAfterHalfASecondIn(97), 1e-9);
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

// --- Controls inside

struct RowOfButtons {
    int taps = 0;
    bool wasPressed = false;
    TouchScreen screen{[this] {
        return ScrollView{.content = {VStack{.spacing = 0,
                                             .content = {Button{.action = [this] { ++taps; }, .label = box(300, 100, "button")},
                                                         box(300, 900, "rest")}}}};
    }};
    bool isPressed() { return screen.find("button").opacity < 1; }
};

TEST(ScrollViewTouches, GoToAControlInside) {
    RowOfButtons row;

    row.screen.tap({150, 50});

    EXPECT_EQ(row.taps, 1);
}

TEST(ScrollViewTouches, AreTakenFromAControlThatIsDragged) {
    RowOfButtons row;
    row.screen.down({150, 90});
    EXPECT_TRUE(row.isPressed());

    row.screen.move({150, 84});
    EXPECT_TRUE(row.isPressed());

    row.screen.move({150, 79});
    EXPECT_FALSE(row.isPressed());
    EXPECT_DOUBLE_EQ(row.screen.offset().y, 1);

    row.screen.move({150, 90}); // back where it came from
    row.screen.up({150, 90});
    EXPECT_EQ(row.taps, 0);
}

TEST(ScrollViewTouches, StayWithAControlThatIsDraggedAcross) {
    RowOfButtons row;

    row.screen.down({100, 50});
    row.screen.move({180, 60});
    row.screen.up({180, 60});

    EXPECT_EQ(row.taps, 1);
    EXPECT_EQ(row.screen.offset().y, 0);
}

TEST(ScrollViewTouches, DragAlsoWithoutAMoveInBetween) {
    RowOfButtons row;

    row.screen.down({150, 90});
    row.screen.up({150, 40});

    EXPECT_EQ(row.taps, 0);
    EXPECT_DOUBLE_EQ(row.screen.offset().y, 40);
}

TEST(ScrollViewTouches, DoNotReachWhatIsScrolledAway) {
    RowOfButtons row;
    row.screen.host().scroll({150, 200}, {0, 100});
    row.screen.settle();

    row.screen.tap({150, 20});

    EXPECT_EQ(row.taps, 0);
}

TEST(ScrollViewTouches, SurviveTheControlThatTheyBeganOn) {
    bool isThere = true;
    TouchScreen screen{[&] {
        View button = isThere ? View{Button{.action = [] {}, .label = box(300, 100, "button")}} : View{};
        return ScrollView{.content = {VStack{.spacing = 0, .content = {button, box(300, 900, "rest")}}}};
    }};
    screen.down({150, 90});

    isThere = false;
    screen.rebuild();
    screen.move({150, 60});

    EXPECT_DOUBLE_EQ(screen.offset().y, 20);
}

TEST(ScrollViewTouches, AcrossGoToTheStripInside) {
    TouchScreen screen{[] {
        return ScrollView{
            .content = {VStack{.spacing = 0,
                               .content = {ScrollView{.axis = Axis::horizontal, .content = {box(1000, 100, "strip")}} |
                                               frame(300, 100) | accessibilityIdentifier("stripView"),
                                           box(300, 900, "rest")}}}};
    }};

    screen.pull({200, 50}, {150, 45}, 0.2);
    EXPECT_DOUBLE_EQ(screen.frame("strip").minX(), -40);
    EXPECT_EQ(screen.offset().y, 0);

    // Once it is dragged across, it is not dragged along.
    screen.move({150, 0});
    EXPECT_EQ(screen.offset().y, 0);
    screen.up({150, 0});
    screen.wait(3);

    screen.pull({200, 50}, {195, 0}, 0.2);
    EXPECT_DOUBLE_EQ(screen.offset().y, 40);
}

TEST(ScrollViewTouches, GoToTheInnerOfTwoAlongTheSameAxis) {
    TouchScreen screen{[] {
        return ScrollView{.content = {VStack{.spacing = 0,
                                             .content = {ScrollView{.content = {box(300, 1000, "inner")}} | frame(300, 200),
                                                         box(300, 900, "outer")}}}};
    }};

    screen.pull({150, 150}, {150, 100}, 0.2);

    EXPECT_DOUBLE_EQ(screen.frame("inner").minY(), -40);
    EXPECT_DOUBLE_EQ(screen.frame("outer").minY(), 200);
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
