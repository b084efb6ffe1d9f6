#include <gtest/gtest.h>

#include "Platform/Motion/VelocityTracker.hpp"

using namespace proupsells;

using motion::VelocityTracker;

namespace {

TEST(VelocityTracker, KnowsNoSpeedBeforeTheFingerHasMoved) {
    VelocityTracker tracker;
    EXPECT_EQ(tracker.velocityAt(0), 0);

    tracker.add(0, 100);
    EXPECT_EQ(tracker.velocityAt(0), 0);
}

TEST(VelocityTracker, ReadsASteadyFingersSpeed) {
    VelocityTracker tracker;
    for (int frame = 0; frame <= 30; ++frame) tracker.add(frame / 60.0, 500 - 10 * frame);

    EXPECT_NEAR(tracker.velocityAt(0.5), -600, 1e-9);
}

TEST(VelocityTracker, ForgetsWhatTheFingerDidLongAgo) {
    VelocityTracker tracker;
    tracker.add(0, 0);
    tracker.add(0.1, 1000);
    for (int frame = 0; frame <= 12; ++frame) tracker.add(0.5 + frame / 60.0, 1000 + frame);

    EXPECT_NEAR(tracker.velocityAt(0.7), 60, 1e-9);
}

TEST(VelocityTracker, HasNoSpeedAfterTheFingerHasRested) {
    VelocityTracker tracker;
    for (int frame = 0; frame <= 6; ++frame) tracker.add(frame / 60.0, 20 * frame);

    EXPECT_GT(tracker.velocityAt(0.1), 0);
    EXPECT_EQ(tracker.velocityAt(0.21), 0);
}

TEST(VelocityTracker, TakesNoSpeedFromALeapInNoTime) {
    VelocityTracker tracker;
    tracker.add(1, 0);
    tracker.add(1, 300);

    EXPECT_EQ(tracker.velocityAt(1), 0);
}

TEST(VelocityTracker, TakesTheLastOfSeveralPlacesOfOneMoment) {
    VelocityTracker tracker;
    tracker.add(1, 0);
    tracker.add(1, 10);
    tracker.add(1.05, 20);

    EXPECT_NEAR(tracker.velocityAt(1.05), 200, 1e-9);
}

TEST(VelocityTracker, LooksPastTheTremblingOfAFastDevice) {
    VelocityTracker tracker;
    for (int millisecond = 0; millisecond <= 100; ++millisecond) {
        tracker.add(millisecond / 1000.0, millisecond + (millisecond % 2 == 0 ? 1 : -1));
    }

    EXPECT_NEAR(tracker.velocityAt(0.1), 1000, 100);
}

TEST(VelocityTracker, StartsAnewAfterAReset) {
    VelocityTracker tracker;
    tracker.add(0, 0);
    tracker.add(0.05, 100);
    tracker.reset();

    EXPECT_EQ(tracker.velocityAt(0.05), 0);
}

} // namespace
