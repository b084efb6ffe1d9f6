#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Platform/Motion/ScrollAxis.hpp"

using namespace proupsells;

using motion::Animation;
using motion::ScrollAxis;
using motion::ScrollRange;
using motion::TimingCurve;

namespace {

constexpr ScrollRange sixHundred{0, 600};
constexpr double viewport = 400;

// An axis of 1,000 points in a viewport of 400, and a clock.
struct Axis {
    ScrollAxis axis;
    double now_s = 0;

    Axis() { setRange(sixHundred); }
    void setRange(ScrollRange range) { axis.setRange(range, viewport, now_s); }
    double offset() const { return axis.offsetAt(now_s); }
    void wait(double time_s) { now_s += time_s; }
    // Evenly, 60 times a second; `to` below `from` goes towards the content's end.
    void pull(double from, double to, double duration_s) {
        axis.beginTracking(from, now_s);
        const int steps = std::max(1, int(std::lround(duration_s * 60)));
        for (int step = 1; step <= steps; ++step) {
            wait(duration_s / steps);
            axis.track(from + (to - from) * step / steps, now_s);
        }
    }
    void flick(double from, double to, double duration_s) {
        pull(from, to, duration_s);
        axis.endTracking(now_s);
    }
    double furthestIn(double time_s) {
        double furthest = offset();
        for (int i = 0; i < 200; ++i) {
            wait(time_s / 200);
            furthest = std::max(furthest, offset());
        }
        return furthest;
    }
};

// --- Under a finger

TEST(ScrollAxis, FollowsTheFingerExactlyInsideItsRange) {
    Axis content;

    content.pull(300, 200, 0.5);
    EXPECT_DOUBLE_EQ(content.offset(), 100);

    content.axis.track(250, content.now_s);
    EXPECT_DOUBLE_EQ(content.offset(), 50);
}

TEST(ScrollAxis, GivesLikeRubberBeyondItsEnds) {
    Axis content;
    content.pull(100, 200, 0.5);
    EXPECT_DOUBLE_EQ(content.offset(), motion::rubberBanded(-100, sixHundred, viewport));

    content.axis.track(-600, content.now_s);
    EXPECT_DOUBLE_EQ(content.offset(), motion::rubberBanded(700, sixHundred, viewport));
}

TEST(ScrollAxis, IsTakenHoldOfWithoutALeapBeyondItsEnd) {
    Axis content;
    content.flick(100, 300, 0.1);
    const double shown = content.offset();

    content.axis.beginTracking(50, content.now_s);
    EXPECT_DOUBLE_EQ(content.offset(), shown);

    content.axis.track(51, content.now_s);
    EXPECT_LT(content.offset(), shown);
    EXPECT_GT(content.offset(), shown - 1);
}

TEST(ScrollAxis, IgnoresAFingerThatIsNowhere) {
    const double nowhere = std::numeric_limits<double>::quiet_NaN();
    Axis content;
    content.axis.beginTracking(nowhere, 0);
    EXPECT_FALSE(content.axis.isTracking());

    content.pull(300, 200, 0.5);
    content.axis.track(nowhere, content.now_s);
    content.axis.track(std::numeric_limits<double>::infinity(), content.now_s);
    EXPECT_DOUBLE_EQ(content.offset(), 100);
}

// --- After a finger

TEST(ScrollAxis, GoesOnWithTheFingersSpeed) {
    Axis content;
    content.setRange({0, 1e6});
    content.flick(380, 300, 0.1);
    EXPECT_TRUE(content.axis.isCoastingAt(content.now_s));
    EXPECT_NEAR(content.axis.velocityAt(content.now_s), 800, 1e-6);

    content.wait(10);

    EXPECT_NEAR(content.offset(), 80 + 800 / 2.002, 3);
    EXPECT_FALSE(content.axis.isMovingAt(content.now_s));
    EXPECT_EQ(content.axis.velocityAt(content.now_s), 0);
}

TEST(ScrollAxis, IsThrownNoFurtherByAnImpossiblyFastFinger) {
    const auto restAfter = [](double speed) {
        Axis content;
        content.setRange({0, 1e6});
        content.flick(0, -speed / 100, 0.01);
        return content.axis.offsetAt(1000) - content.offset();
    };

    EXPECT_NEAR(restAfter(8000), 8000 / 2.002, 3);
    EXPECT_NEAR(restAfter(500000), restAfter(8000), 1e-6);
    EXPECT_LT(restAfter(7900), restAfter(8000));
}

TEST(ScrollAxis, RestsWhereTheFingerHasRested) {
    Axis content;
    content.pull(380, 300, 0.1);
    content.wait(0.2);

    content.axis.endTracking(content.now_s);

    EXPECT_FALSE(content.axis.isMovingAt(content.now_s));
    EXPECT_DOUBLE_EQ(content.offset(), 80);
}

TEST(ScrollAxis, RunsOverItsEndAndComesBack) {
    Axis content;
    content.axis.scrollTo(550, 0);

    content.flick(380, 200, 0.1);

    EXPECT_GT(content.furthestIn(2), 620);
    EXPECT_EQ(content.offset(), 600);
}

TEST(ScrollAxis, DoesNotFlickWhenTheFingerIsTakenAway) {
    Axis content;
    content.pull(380, 300, 0.1);

    content.axis.comeToRest(content.now_s);
    content.wait(1);

    EXPECT_DOUBLE_EQ(content.offset(), 80);
}

TEST(ScrollAxis, StopsWhereItIsAndComesBackOnlyWhenItIsLetGo) {
    Axis content;
    content.flick(100, 300, 0.1);
    content.wait(0.05);
    const double shown = content.offset();

    content.axis.stop(content.now_s);
    content.wait(1);
    EXPECT_EQ(content.offset(), shown);

    content.axis.comeToRest(content.now_s);
    content.wait(3);
    EXPECT_EQ(content.offset(), 0);
}

// --- Changes of the range

TEST(ScrollAxis, StaysAtItsStart) {
    Axis content;

    content.setRange({-20, 600});

    EXPECT_EQ(content.offset(), -20);
}

TEST(ScrollAxis, MovesInWhereAPersonHasScrolledTo) {
    Axis content;
    content.axis.scrollTo(600, 0);

    content.setRange({0, 200});
    EXPECT_EQ(content.offset(), 200);

    content.setRange({0, 900});
    EXPECT_EQ(content.offset(), 200);
}

TEST(ScrollAxis, IsNotMovedUnderAFinger) {
    Axis content;
    content.pull(380, 80, 1);

    content.setRange({0, 200});
    EXPECT_DOUBLE_EQ(content.offset(), 300);

    content.axis.comeToRest(content.now_s);
    content.wait(3);
    EXPECT_EQ(content.offset(), 200);
}

TEST(ScrollAxis, FlicksOnInsideItsNewRange) {
    Axis content;
    content.flick(380, 280, 0.1);
    content.wait(0.1);
    const double shown = content.offset(), speed = content.axis.velocityAt(content.now_s);

    content.setRange({0, 250});
    EXPECT_DOUBLE_EQ(content.offset(), shown);
    EXPECT_DOUBLE_EQ(content.axis.velocityAt(content.now_s), speed);

    content.wait(5);
    EXPECT_EQ(content.offset(), 250);
}

// --- The program

TEST(ScrollAxis, StaysWhereTheProgramHasPutIt) {
    Axis content;

    content.axis.moveTo(5000);
    content.setRange({0, 300});
    content.axis.comeToRest(0);
    content.wait(1);
    EXPECT_EQ(content.offset(), 5000);

    content.axis.moveIntoRange(content.now_s);
    EXPECT_EQ(content.offset(), 300);
}

TEST(ScrollAxis, ComesBackFromWhereTheProgramHasPutItAfterADrag) {
    Axis content;
    content.axis.moveTo(1000);

    content.flick(300, 340, 0.2);
    content.wait(5);

    EXPECT_EQ(content.offset(), 600);
}

TEST(ScrollAxis, IsHeldByTheFingerWhereTheProgramPutsIt) {
    Axis content;
    content.pull(300, 200, 0.5);

    content.axis.animateTo(400, Animation::standard(), content.now_s);
    EXPECT_EQ(content.offset(), 400);

    content.axis.track(190, content.now_s);
    EXPECT_DOUBLE_EQ(content.offset(), 410);
}

TEST(ScrollAxis, AnimatesAlongTheCurve) {
    Axis content;
    content.axis.moveTo(100);

    content.axis.animateTo(200, {TimingCurve::easeInOut(), 0.4}, 0);
    content.wait(0.1);

    EXPECT_TRUE(content.axis.isMovingAt(content.now_s));
    EXPECT_FALSE(content.axis.isCoastingAt(content.now_s));
    EXPECT_DOUBLE_EQ(content.offset(), 100 + 100 * TimingCurve::easeInOut().valueAt(0.25));
    EXPECT_EQ(content.axis.offsetAt(0.4), 200);
}

TEST(ScrollAxis, AnimatesFromWhereItIsOnTheWay) {
    Axis content;
    content.axis.animateTo(100, {TimingCurve::linear(), 1}, 0);
    content.wait(0.5);

    content.axis.animateTo(0, {TimingCurve::linear(), 1}, content.now_s);
    EXPECT_EQ(content.offset(), 50);

    content.wait(0.5);
    EXPECT_EQ(content.offset(), 25);
}

TEST(ScrollAxis, IsThereAtOnceWithoutADuration) {
    Axis content;

    content.axis.animateTo(100, {TimingCurve::linear(), 0}, 0);

    EXPECT_EQ(content.offset(), 100);
    EXPECT_FALSE(content.axis.isMovingAt(0));
}

// --- Wheels

TEST(ScrollAxis, RollsAtOnceAndStopsAtItsEnds) {
    Axis content;

    EXPECT_TRUE(content.axis.scrollBy(250, 0));
    EXPECT_EQ(content.offset(), 250);

    EXPECT_TRUE(content.axis.scrollBy(5000, 0));
    EXPECT_EQ(content.offset(), 600);
    EXPECT_FALSE(content.axis.scrollBy(1, 0));
}

TEST(ScrollAxis, RollsNothingThatAFingerHoldsAndNowhereWithoutADistance) {
    Axis content;
    content.pull(100, 200, 0.5);
    const double held = content.offset();
    EXPECT_FALSE(content.axis.scrollBy(50, content.now_s));

    content.axis.endTracking(content.now_s);
    EXPECT_FALSE(content.axis.scrollBy(0, content.now_s));
    EXPECT_FALSE(content.axis.scrollBy(std::numeric_limits<double>::quiet_NaN(), content.now_s));
    EXPECT_EQ(content.offset(), held);
}

TEST(ScrollAxis, IsHeldByTheFingerWhereSomethingIsRevealed) {
    Axis content;
    content.pull(300, 200, 0.5);

    EXPECT_TRUE(content.axis.scrollTo(5000, content.now_s));
    EXPECT_EQ(content.offset(), 600);

    content.axis.track(210, content.now_s);
    EXPECT_DOUBLE_EQ(content.offset(), 590);
}

// --- Pages

TEST(ScrollAxis, SettlesOnAPageInTheTimeThatItsLengthTakes) {
    Axis inPoints, inPages;
    inPages.axis.setPages(4, 300, 0);
    inPoints.pull(290, 60, 0.5);
    inPages.pull(290 / 300.0, 60 / 300.0, 0.5);

    inPoints.axis.settleAt(300, inPoints.now_s);
    inPages.axis.settleAt(1, inPages.now_s);

    EXPECT_NEAR(inPages.axis.end_s(), inPoints.axis.end_s(), 1e-9);
    for (int frame = 0; frame < 60; ++frame) {
        EXPECT_NEAR(inPages.offset() * 300, inPoints.offset(), 1e-9);
        inPoints.wait(1.0 / 60);
        inPages.wait(1.0 / 60);
    }
    EXPECT_EQ(inPages.offset(), 1);
}

TEST(ScrollAxis, KeepsItsPlaceAmongThePagesWhenTheyGetLonger) {
    Axis content;
    content.axis.setPages(4, 300, 0);
    content.pull(1, 0.4, 0.5);
    content.axis.settleAt(1, content.now_s);
    content.wait(0.1);
    const double shown = content.offset();

    content.axis.setPages(4, 500, content.now_s);
    EXPECT_EQ(content.offset(), shown);

    content.wait(2);
    EXPECT_EQ(content.offset(), 1);
}

} // namespace
