#include <gtest/gtest.h>

#include <limits>

#include "Platform/RunLoop/Clock.hpp"

using namespace proupsells;

namespace {

TEST(VirtualClock, StartsAtZeroAndStandsStill) {
    const runloop::VirtualClock clock;

    EXPECT_EQ(clock.now_s(), 0);
    EXPECT_EQ(clock.now_s(), 0);
}

TEST(VirtualClock, MovesToTheTimeItIsTold) {
    runloop::VirtualClock clock;

    clock.advanceTo(2.5);

    EXPECT_EQ(clock.now_s(), 2.5);
}

TEST(VirtualClock, NeverGoesBack) {
    runloop::VirtualClock clock;
    clock.advanceTo(2);

    clock.advanceTo(1);
    clock.advanceTo(std::numeric_limits<double>::quiet_NaN());

    EXPECT_EQ(clock.now_s(), 2);
}

TEST(RealClock, CountsSecondsFromItsCreation) {
    const runloop::RealClock clock;

    const double first_s = clock.now_s();
    const double second_s = clock.now_s();

    EXPECT_GE(first_s, 0);
    EXPECT_LT(first_s, 60);
    EXPECT_GE(second_s, first_s);
}

} // namespace
