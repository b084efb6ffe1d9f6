// Where moving things are to the last digit, and the limits at which they turn into something else.
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Motion/DragOrigin.hpp"
#include "Platform/Motion/ScrollAxis.hpp"
#include "Platform/Motion/VelocityTracker.hpp"

namespace proupsells::motion {
namespace {

constexpr double rate = 2.0020026706730794; // ln(1/0.998) for each millisecond
constexpr ScrollRange range{0, 1000};

TEST(ExactDeceleration, CoastsByItsFormula) {
    const Deceleration path(100, 500, range);

    EXPECT_NEAR(path.offsetAt(0.5), 100 + 500 / rate * (1 - std::exp(-rate * 0.5)), 1e-9);
    EXPECT_NEAR(path.velocityAt(0.5), 500 * std::exp(-rate * 0.5), 1e-9);
    EXPECT_NEAR(path.duration_s(), std::log(500 / 4.0) / rate, 1e-9);
    EXPECT_NEAR(path.target(), 100 + (500 - 4) / rate, 1e-9);
    EXPECT_EQ(path.velocityAt(path.duration_s()), 0);
    EXPECT_EQ(path.offsetAt(path.duration_s()), path.target());
    EXPECT_EQ(path.offsetAt(-1), 100);
    EXPECT_EQ(path.velocityAt(-1), 500);
}

TEST(ExactDeceleration, CoastsBackwardsLikeForwards) {
    const Deceleration forwards(500, 300, range), backwards(500, -300, range);

    for (const double time_s : {0.1, 0.7, 1.4}) {
        EXPECT_NEAR(forwards.offsetAt(time_s) - 500, 500 - backwards.offsetAt(time_s), 1e-9);
        EXPECT_NEAR(forwards.velocityAt(time_s), -backwards.velocityAt(time_s), 1e-9);
    }
    EXPECT_EQ(forwards.duration_s(), backwards.duration_s());
}

TEST(ExactDeceleration, RestsAtFourPointsASecondAndNotAbove) {
    EXPECT_EQ(Deceleration(100, 4, range).duration_s(), 0);
    EXPECT_EQ(Deceleration(100, -4, range).target(), 100);
    EXPECT_GT(Deceleration(100, 4.01, range).duration_s(), 0);
    EXPECT_EQ(Deceleration(0.5, 0.004, {0, 1}, 0.001).duration_s(), 0);
    EXPECT_GT(Deceleration(0.5, 0.0041, {0, 1}, 0.001).duration_s(), 0);
}

TEST(ExactDeceleration, SpringsBackByItsFormula) {
    const Deceleration path(-50, 0, range);

    for (const double time_s : {0.05, 0.1, 0.3}) {
        EXPECT_NEAR(path.offsetAt(time_s), (-50 - 600 * time_s) * std::exp(-12 * time_s), 1e-9);
        EXPECT_NEAR(path.velocityAt(time_s), 7200 * time_s * std::exp(-12 * time_s), 1e-9);
    }
    EXPECT_EQ(path.target(), 0);
    // It rests once it is nearer than a hundredth of a point for good.
    const double end_s = path.duration_s();
    EXPECT_NEAR((50 + 600 * end_s) * std::exp(-12 * end_s), 0.01, 1e-6);
}

TEST(ExactDeceleration, SwingsOutFromNearlyTheEndBeforeItRests) {
    const Deceleration path(1000.005, 1000, range);

    const double end_s = path.duration_s(), slope = 1000 + 12 * 0.005;
    EXPECT_GT(end_s, 0.5);
    EXPECT_NEAR((0.005 + slope * end_s) * std::exp(-12 * end_s), 0.01, 1e-6);
}

TEST(ExactDeceleration, MeetsTheEndAtTheSpeedThatIsLeft) {
    const Deceleration path(900, 1000, range);
    const double shareLeft = 1 - 100 * rate / 1000, meeting_s = -std::log(shareLeft) / rate;

    EXPECT_NEAR(path.offsetAt(meeting_s), 1000, 1e-9);
    EXPECT_NEAR(path.velocityAt(meeting_s), 1000 * shareLeft, 1e-6);
    const double after_s = 0.1;
    EXPECT_NEAR(path.offsetAt(meeting_s + after_s), 1000 + 1000 * shareLeft * after_s * std::exp(-12 * after_s), 1e-6);
    EXPECT_EQ(path.target(), 1000);
}

TEST(ExactDeceleration, ComesInFasterThanTheSpringAndCoastsOn) {
    // The spring alone would bring it back at 1,200 at most.
    const Deceleration path(-100, 3000, {0, 10000});
    const double slope = 3000 + 12 * -100, crossing_s = 100 / slope;

    EXPECT_NEAR(path.offsetAt(crossing_s), 0, 1e-9);
    EXPECT_NEAR(path.velocityAt(crossing_s), slope * std::exp(-12 * crossing_s), 1e-6);
    EXPECT_NEAR(path.target(), (slope * std::exp(-12 * crossing_s) - 4) / rate, 1e-6);
    EXPECT_EQ(Deceleration(-100, 1200, {0, 10000}).target(), 0);
}

TEST(ExactDeceleration, SettlesAsFastAsTheSpringTakesIt) {
    const Deceleration slow = Deceleration::settling(0, 5, 10), fast = Deceleration::settling(0, 500, 10),
                       away = Deceleration::settling(0, -30, 10), back = Deceleration::settling(10, -500, 0);

    EXPECT_EQ(slow.velocityAt(0), 5);
    EXPECT_EQ(fast.velocityAt(0), 120);
    EXPECT_EQ(away.velocityAt(0), -30);
    EXPECT_EQ(back.velocityAt(0), -120);
    EXPECT_NEAR(fast.duration_s(), std::log(10 / 0.01) / 12, 1e-9);
    EXPECT_EQ(Deceleration::settling(10, 50, 10).duration_s(), 0);
}

TEST(ExactRubberBand, FollowsByItsFormulaOnBothSides) {
    const double shown = (1 - 1 / (100 * 0.55 / 400 + 1)) * 400;

    EXPECT_NEAR(rubberBanded(-100, range, 400), -shown, 1e-9);
    EXPECT_NEAR(rubberBanded(1100, range, 400), 1000 + shown, 1e-9);
    EXPECT_NEAR(unRubberBanded(1000 + shown, range, 400), 1100, 1e-6);
    EXPECT_NEAR(unRubberBanded(-shown, range, 400), -100, 1e-6);
    EXPECT_EQ(rubberBanded(-100, range, 0), 0);
    EXPECT_EQ(unRubberBanded(-100, range, 0), 0);
    EXPECT_EQ(unRubberBanded(-100, range, -1), 0);
}

// --- The axis ---

TEST(ExactAxis, PullsByTheLengthThatIsSeenNow) {
    ScrollAxis axis;
    axis.setRange(range, 400, 0);
    axis.setRange(range, 200, 0);
    axis.beginTracking(0, 0);
    axis.track(100, 0.1);

    EXPECT_EQ(axis.offsetAt(0.1), rubberBanded(-100, range, 200));
}

TEST(ExactAxis, IsThrownAtEightThousandPointsASecondAtMost) {
    const auto thrownAt = [](double speed) {
        ScrollAxis axis;
        axis.setRange({0, 1e6}, 400, 0);
        axis.moveTo(5e5);
        axis.beginTracking(0, 0);
        for (int i = 1; i <= 10; ++i) axis.track(-speed * i / 100, i / 100.0);
        axis.endTracking(0.1);
        return axis.velocityAt(0.1);
    };
    EXPECT_NEAR(thrownAt(7900), 7900, 1e-6);
    EXPECT_NEAR(thrownAt(8100), 8000, 1e-6);
    EXPECT_NEAR(thrownAt(-8100), -8000, 1e-6);
}

TEST(ExactAxis, AScrollThatLeadsNowhereIsNone) {
    ScrollAxis axis;
    axis.setRange({0, 100}, 50, 0);

    EXPECT_FALSE(axis.scrollBy(0, 0));
    EXPECT_FALSE(axis.scrollBy(-1, 0));
    EXPECT_TRUE(axis.scrollBy(30, 0));
    EXPECT_FALSE(axis.scrollTo(30, 0));
    EXPECT_TRUE(axis.scrollTo(500, 0));
    EXPECT_EQ(axis.offsetAt(0), 100);
    EXPECT_FALSE(axis.scrollTo(501, 0));
    EXPECT_FALSE(axis.scrollBy(std::nan(""), 0));
}

TEST(ExactAxis, AnAnimationThatChangesNothingIsOverAtOnce) {
    ScrollAxis axis;
    axis.setRange({0, 100}, 50, 0);
    axis.animateTo(40, {TimingCurve::linear(), 0.5}, 1);
    EXPECT_TRUE(axis.isMovingAt(1.499));
    EXPECT_FALSE(axis.isMovingAt(1.5));
    EXPECT_EQ(axis.end_s(), 1.5);
    EXPECT_EQ(axis.offsetAt(1.25), 20);
    EXPECT_FALSE(axis.isCoastingAt(1.25));
    EXPECT_EQ(axis.velocityAt(1.25), 0);

    axis.animateTo(40, {TimingCurve::linear(), 0.5}, 2);
    EXPECT_FALSE(axis.isMovingAt(2));
    axis.animateTo(50, {TimingCurve::linear(), 0}, 3);
    EXPECT_FALSE(axis.isMovingAt(3));
    EXPECT_EQ(axis.offsetAt(3), 50);
    axis.animateTo(60, {TimingCurve::linear(), 0, 0.2}, 3);
    EXPECT_TRUE(axis.isMovingAt(3.1));
    EXPECT_EQ(axis.offsetAt(3.1), 50);
}

TEST(ExactAxis, PagesAreCountedFromTheFirst) {
    ScrollAxis axis;
    axis.setPages(3, 300, 0);
    EXPECT_EQ(axis.range(), (ScrollRange{0, 2}));
    axis.setPages(1, 300, 0);
    EXPECT_EQ(axis.range(), (ScrollRange{0, 0}));
    axis.setPages(0, 300, 0);
    EXPECT_EQ(axis.range(), (ScrollRange{0, 0}));
}

// --- Fingers ---

TEST(ExactDrag, BeginsAtTenPointsAndAtHalfARightAngle) {
    using geometry::Axis;
    using geometry::Point;
    EXPECT_EQ(dragOrigin(Axis::vertical, {5, 5}, {5, 14.9}), std::nullopt);
    EXPECT_EQ(dragOrigin(Axis::vertical, {5, 5}, {5, 15}), (Point{5, 15}));
    EXPECT_EQ(dragOrigin(Axis::vertical, {5, 5}, {5, -15}), (Point{5, -5}));
    EXPECT_EQ(dragOrigin(Axis::vertical, {5, 5}, {25, 25}), (Point{5, 15}));
    EXPECT_EQ(dragOrigin(Axis::vertical, {5, 5}, {26, 25}), std::nullopt);
    EXPECT_EQ(dragOrigin(Axis::horizontal, {5, 5}, {25, 25}), (Point{15, 5}));
    EXPECT_EQ(dragOrigin(Axis::horizontal, {5, 5}, {25, -16}), std::nullopt);
    EXPECT_EQ(dragOrigin(Axis::horizontal, {5, 5}, {-25, 5}), (Point{-5, 5}));
    EXPECT_EQ(dragOrigin({5, 5}, {11, 12.9}), std::nullopt);
    EXPECT_EQ(dragOrigin({5, 5}, {11, 13}), (Point{11, 13}));
    EXPECT_EQ(dragOrigin({5, 5}, {17, 21}), (Point{11, 13}));
}

TEST(ExactVelocity, CountsTheLastTenthOfASecond) {
    VelocityTracker tracker;
    tracker.add(0, 0);
    EXPECT_EQ(tracker.velocityAt(0), 0);
    tracker.add(0.05, 100);
    tracker.add(0.1, 110);

    EXPECT_NEAR(tracker.velocityAt(0.1), 1100, 1e-9);
    EXPECT_NEAR(tracker.velocityAt(0.11), 200, 1e-9);
    EXPECT_NEAR(tracker.velocityAt(0.15), 200, 1e-9);
    EXPECT_EQ(tracker.velocityAt(0.151), 0);
}

TEST(ExactVelocity, KeepsPlacesThatAreFiveMillisecondsApart) {
    const auto speedWithSteps = [](double step_s) {
        VelocityTracker tracker;
        tracker.add(0, 0);
        tracker.add(step_s / 2, 1);
        tracker.add(step_s, 50);
        return tracker.velocityAt(0.101);
    };
    // The place half-way is left out where the first and the last are nearer than that, and so counts no more.
    EXPECT_EQ(speedWithSteps(0.0049), 0);
    EXPECT_NEAR(speedWithSteps(0.0052), 49 / 0.0026, 1e-6);
}

} // namespace
} // namespace proupsells::motion
