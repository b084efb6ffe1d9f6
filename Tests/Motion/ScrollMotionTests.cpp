#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "Platform/Motion/ScrollMotion.hpp"

using namespace proupsells;

using motion::Deceleration;
using motion::rubberBanded;
using motion::ScrollRange;
using motion::unRubberBanded;

namespace {

constexpr ScrollRange hundreds{0, 900};
constexpr double viewportHeight = 400;

struct RandomFlick {
    ScrollRange range;
    double offset, velocity;

    explicit RandomFlick(unsigned seed) {
        std::mt19937 random{seed};
        std::uniform_real_distribution<double> place{-300, 1200}, speed{-8000, 8000}, length{0, 1000};
        range = {-20, -20 + length(random)};
        offset = place(random);
        velocity = speed(random);
    }
    Deceleration deceleration() const { return {offset, velocity, range}; }
};

TEST(ScrollRange, KeepsAnOffsetBetweenItsEnds) {
    EXPECT_EQ(hundreds.clamped(-1), 0);
    EXPECT_EQ(hundreds.clamped(450), 450);
    EXPECT_EQ(hundreds.clamped(901), 900);
}

TEST(ScrollRange, WithAMaximumBelowItsMinimumHoldsTheMinimumOnly) { EXPECT_EQ((ScrollRange{10, -50}.clamped(0)), 10); }

TEST(ScrollRange, OfContentReachesFromTheSpaceBeforeItToTheSpaceAfterIt) {
    EXPECT_EQ(ScrollRange::ofContent(1000, 400, 20, 34), (ScrollRange{-20, 634}));
    EXPECT_EQ(ScrollRange::ofContent(300, 400, 20, 34), (ScrollRange{-20, -20}));
}

TEST(RubberBand, LeavesOffsetsInsideTheRangeAlone) {
    for (double offset : {0.0, 1.0, 450.0, 900.0}) EXPECT_EQ(rubberBanded(offset, hundreds, viewportHeight), offset);
}

TEST(RubberBand, FollowsTheFingerByItsFormula) {
    const double pulled = 100;
    const double shown = (1 - 1 / (pulled * 0.55 / viewportHeight + 1)) * viewportHeight;

    EXPECT_DOUBLE_EQ(rubberBanded(-pulled, hundreds, viewportHeight), -shown);
    EXPECT_DOUBLE_EQ(rubberBanded(900 + pulled, hundreds, viewportHeight), 900 + shown);
}

TEST(RubberBand, NeverShowsMoreThanTheViewportsLength) {
    EXPECT_GT(rubberBanded(-1e12, hundreds, viewportHeight), -viewportHeight - 1e-9);
    EXPECT_LT(rubberBanded(-1e12, hundreds, viewportHeight), -viewportHeight + 1);
}

TEST(RubberBand, RisesWithTheFinger) {
    double previous = -1e9;
    for (double offset = -3000; offset < 4000; offset += 7) {
        const double shown = rubberBanded(offset, hundreds, viewportHeight);
        ASSERT_GT(shown, previous);
        previous = shown;
    }
}

TEST(RubberBand, IsUndoneByItsInverse) {
    for (double offset = -3000; offset < 4000; offset += 7) {
        ASSERT_NEAR(unRubberBanded(rubberBanded(offset, hundreds, viewportHeight), hundreds, viewportHeight), offset, 1e-6);
    }
}

TEST(RubberBand, HoldsTheEdgeWithoutAViewport) {
    EXPECT_EQ(rubberBanded(-50, hundreds, 0), 0);
    EXPECT_EQ(unRubberBanded(1200, hundreds, 0), 900);
}

TEST(RubberBand, GivesAFiniteFingerForContentShownBeyondTheViewport) {
    EXPECT_TRUE(std::isfinite(unRubberBanded(-5000, hundreds, viewportHeight)));
}

TEST(Deceleration, WithoutSpeedInsideTheRangeIsAtRestAtOnce) {
    const Deceleration rest{300, 0, hundreds};

    EXPECT_EQ(rest.duration_s(), 0);
    EXPECT_EQ(rest.target(), 300);
    EXPECT_EQ(rest.offsetAt(0), 300);
}

TEST(Deceleration, KeepsTwoThousandthsLessOfItsSpeedEachMillisecond) {
    const Deceleration flick{100, 800, {0, 1e6}};

    EXPECT_NEAR(flick.velocityAt(0.001), 800 * 0.998, 1e-9);
    EXPECT_NEAR(flick.velocityAt(0.5), 800 * std::pow(0.998, 500), 1e-9);
}

TEST(Deceleration, RestsWhenItIsSlowerThanFourPointsASecond) {
    const Deceleration flick{100, 800, {0, 1e6}};

    EXPECT_NEAR(flick.velocityAt(flick.duration_s() - 1e-9), 4, 1e-6);
    EXPECT_EQ(flick.velocityAt(flick.duration_s()), 0);
}

TEST(Deceleration, ArrivesExactlyAtItsTarget) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        const Deceleration flick = RandomFlick{seed}.deceleration();
        ASSERT_EQ(flick.offsetAt(flick.duration_s()), flick.target());
        ASSERT_EQ(flick.offsetAt(flick.duration_s() + 60), flick.target());
    }
}

TEST(Deceleration, EndsInsideTheRangeWhereverItStarts) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        const RandomFlick start{seed};
        const Deceleration flick = start.deceleration();
        ASSERT_EQ(flick.target(), start.range.clamped(flick.target()));
        ASSERT_TRUE(std::isfinite(flick.duration_s()));
        ASSERT_LT(flick.duration_s(), 10);
    }
}

TEST(Deceleration, StartsWhereAndAsFastAsTheFingerLeft) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        const RandomFlick start{seed};
        const Deceleration flick = start.deceleration();
        if (flick.duration_s() == 0) continue;
        ASSERT_NEAR(flick.offsetAt(0), start.offset, 1e-9);
        ASSERT_NEAR(flick.velocityAt(0), start.velocity, 1e-9);
    }
}

TEST(Deceleration, HasNoLeapsInOffsetOrSpeed) {
    constexpr double step_s = 1e-4;
    for (unsigned seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        const Deceleration flick = RandomFlick{seed}.deceleration();
        for (double time_s = 0; time_s + step_s < flick.duration_s(); time_s += step_s) {
            const double travelled = flick.offsetAt(time_s + step_s) - flick.offsetAt(time_s);
            const double expected = (flick.velocityAt(time_s) + flick.velocityAt(time_s + step_s)) / 2 * step_s;
            ASSERT_NEAR(travelled, expected, 1e-3) << "after " << time_s << " s";
            ASSERT_NEAR(flick.velocityAt(time_s), flick.velocityAt(time_s + step_s), 60) << "after " << time_s << " s";
        }
        ASSERT_NEAR(flick.offsetAt(flick.duration_s() - 1e-9), flick.target(), 0.011);
    }
}

TEST(Deceleration, NeverTurnsBackInsideTheRange) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        const RandomFlick start{seed};
        const Deceleration flick = start.deceleration();
        const double direction = start.velocity < 0 ? -1 : 1;
        double previous = flick.offsetAt(0);
        for (double time_s = 0.005; time_s < flick.duration_s(); time_s += 0.005) {
            const double offset = flick.offsetAt(time_s);
            const bool isInside = offset == start.range.clamped(offset) && previous == start.range.clamped(previous);
            if (isInside) {
                ASSERT_GE((offset - previous) * direction, -1e-9);
            }
            previous = offset;
        }
    }
}

TEST(Deceleration, RunsOverTheEndAndSpringsBackToIt) {
    const Deceleration flick{850, 3000, hundreds};

    double furthest = 0;
    for (double time_s = 0; time_s < flick.duration_s(); time_s += 0.01) furthest = std::max(furthest, flick.offsetAt(time_s));
    EXPECT_GT(furthest, 930);
    EXPECT_LT(furthest, 1100);
    EXPECT_EQ(flick.target(), 900);
    EXPECT_LT(flick.duration_s(), 2);
}

TEST(Deceleration, FromOutsideTheRangeSpringsBackWithoutOvershoot) {
    const Deceleration back{-120, 0, hundreds};

    for (double time_s = 0; time_s < back.duration_s(); time_s += 0.01) EXPECT_LE(back.offsetAt(time_s), 0);
    EXPECT_EQ(back.target(), 0);
}

TEST(Deceleration, FromOutsideTheRangeFlickedInwardsGoesOn) {
    const Deceleration flick{-60, 3000, hundreds};

    EXPECT_GT(flick.target(), 300);
}

TEST(Deceleration, InARangeWithoutLengthAlwaysComesBack) {
    EXPECT_EQ((Deceleration{0, 2500, {0, 0}}.target()), 0);
    EXPECT_EQ((Deceleration{0, -2500, {0, -80}}.target()), 0);
}

TEST(Deceleration, SettlingNeverPassesItsEnd) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        SCOPED_TRACE(seed);
        const RandomFlick start{seed};
        const Deceleration page = Deceleration::settling(start.offset, start.velocity, 375);
        const double side = start.offset < 375 ? -1 : 1;
        for (double time_s = 0; time_s < page.duration_s(); time_s += 0.01) ASSERT_GE((page.offsetAt(time_s) - 375) * side, -1e-9);
        ASSERT_EQ(page.target(), 375);
        ASSERT_NEAR(page.offsetAt(0), start.offset, 1e-9);
    }
}

TEST(Deceleration, SettlingKeepsTheFingersSpeedWhereItCan) {
    EXPECT_NEAR(Deceleration::settling(100, 500, 375).velocityAt(0), 500, 1e-9);
    EXPECT_NEAR(Deceleration::settling(100, -500, 375).velocityAt(0), -500, 1e-9);
    EXPECT_EQ(Deceleration::settling(375, 500, 375).duration_s(), 0);
}

TEST(Deceleration, TakesNothingThatIsNoNumber) {
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    const Deceleration lost{nothing, 100, hundreds}, still{200, nothing, hundreds};

    EXPECT_TRUE(std::isfinite(lost.offsetAt(0.1)));
    EXPECT_EQ(still.target(), 200);
}

} // namespace
