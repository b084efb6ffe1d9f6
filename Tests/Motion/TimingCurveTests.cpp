#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "Platform/Motion/TimingCurve.hpp"

using namespace proupsells;

using motion::Animation;
using motion::TimingCurve;

namespace {

double bezier(double first, double second, double t) {
    const double u = 1 - t;
    return 3 * u * u * t * first + 3 * u * t * t * second + t * t * t;
}

TimingCurve randomCurve(std::mt19937& random) {
    std::uniform_real_distribution<double> abscissa{0, 1}, ordinate{-0.5, 1.5};
    return {abscissa(random), ordinate(random), abscissa(random), ordinate(random)};
}

TEST(TimingCurve, StartsAtNothingAndEndsAtAll) {
    for (const TimingCurve& curve :
         {TimingCurve::linear(), TimingCurve::easeIn(), TimingCurve::easeOut(), TimingCurve::easeInOut()}) {
        EXPECT_EQ(curve.valueAt(0), 0);
        EXPECT_EQ(curve.valueAt(1), 1);
    }
}

TEST(TimingCurve, CutsTimeToItsDuration) {
    EXPECT_EQ(TimingCurve::easeIn().valueAt(-3), 0);
    EXPECT_EQ(TimingCurve::easeIn().valueAt(7), 1);
    EXPECT_EQ(TimingCurve::easeIn().valueAt(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(TimingCurve, LinearIsTimeItself) { EXPECT_DOUBLE_EQ(TimingCurve::linear().valueAt(0.3), 0.3); }

TEST(TimingCurve, EaseInOutIsHalfWayAtHalfTimeAndSymmetric) {
    const TimingCurve curve = TimingCurve::easeInOut();

    EXPECT_NEAR(curve.valueAt(0.5), 0.5, 1e-12);
    for (double time = 0; time <= 1; time += 0.01) EXPECT_NEAR(curve.valueAt(time) + curve.valueAt(1 - time), 1, 1e-12);
}

TEST(TimingCurve, EaseInLagsAndEaseOutLeads) {
    for (double time = 0.05; time < 1; time += 0.05) {
        EXPECT_LT(TimingCurve::easeIn().valueAt(time), time);
        EXPECT_GT(TimingCurve::easeOut().valueAt(time), time);
    }
}

TEST(TimingCurve, MeetsTheCurveThatItsControlPointsDraw) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random{seed};
        const TimingCurve curve = randomCurve(random);
        for (double t = 0.01; t < 1; t += 0.01) {
            // Where the curve is nearly vertical the abscissa's own rounding moves the ordinate further than the bound.
            const double slope = (bezier(curve.x1, curve.x2, t + 1e-6) - bezier(curve.x1, curve.x2, t - 1e-6)) / 2e-6;
            if (slope < 1e-3) continue;
            ASSERT_NEAR(curve.valueAt(bezier(curve.x1, curve.x2, t)), bezier(curve.y1, curve.y2, t), 1e-9);
        }
    }
}

TEST(TimingCurve, NeverFallsWhereItsControlPointsRise) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random{seed};
        TimingCurve curve = randomCurve(random);
        curve.y1 = std::fmod(std::abs(curve.y1), 1.0);
        curve.y2 = std::fmod(std::abs(curve.y2), 1.0);
        double previous = 0;
        for (double time = 0; time <= 1; time += 0.002) {
            const double value = curve.valueAt(time);
            ASSERT_GE(value, previous - 1e-12);
            previous = value;
        }
    }
}

TEST(TimingCurve, SurvivesVerticalPlacesAndControlPointsOutsideTime) {
    const TimingCurve vertical{1, 0, 0, 1}, outside{-2, 0.3, 5, 0.7};

    EXPECT_NEAR(vertical.valueAt(0.5), 0.5, 1e-4);
    for (double time = 0; time <= 1; time += 0.01) {
        EXPECT_TRUE(std::isfinite(outside.valueAt(time)));
        EXPECT_GE(vertical.valueAt(time), 0);
        EXPECT_LE(vertical.valueAt(time), 1);
    }
}

TEST(Animation, WaitsForItsDelayAndStaysAtItsEnd) {
    const Animation animation{TimingCurve::linear(), 2, 1};

    EXPECT_EQ(animation.progressAt(-1), 0);
    EXPECT_EQ(animation.progressAt(1), 0);
    EXPECT_DOUBLE_EQ(animation.progressAt(1.5), 0.25);
    EXPECT_EQ(animation.progressAt(3), 1);
    EXPECT_EQ(animation.progressAt(99), 1);
    EXPECT_DOUBLE_EQ(animation.end_s(), 3);
}

TEST(Animation, OfNoDurationIsOverWhenItsDelayIs) {
    const Animation animation{TimingCurve::easeIn(), 0, 0.5};

    EXPECT_EQ(animation.progressAt(0.49), 0);
    EXPECT_EQ(animation.progressAt(0.5), 1);
}

TEST(Animation, IsEaseInOutOverAThirdOfASecondUnlessToldOtherwise) {
    EXPECT_EQ(Animation::standard().curve, TimingCurve::easeInOut());
    EXPECT_DOUBLE_EQ(Animation::standard().end_s(), 0.35);
}

} // namespace
