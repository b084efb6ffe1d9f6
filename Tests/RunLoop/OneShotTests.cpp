#include <limits>

#include "Tests/RunLoop/LoopFixture.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using OneShot = tests::LoopFixture;

TEST_F(OneShot, RunsWhenItIsDueAndNotBefore) {
    loop.schedule(2, noting("work"));

    loop.runUntil(1.999);
    EXPECT_THAT(diary, IsEmpty());

    loop.runUntil(2);
    EXPECT_THAT(diary, ElementsAre("work@2"));
}

TEST_F(OneShot, RunsInOrderOfDueTimeThenOfScheduling) {
    loop.schedule(3, noting("late"));
    loop.schedule(1, noting("first"));
    loop.schedule(1, noting("second"));
    loop.schedule(0, noting("now"));

    loop.runUntil(10);

    EXPECT_THAT(diary, ElementsAre("now@0", "first@1", "second@1", "late@3"));
}

TEST_F(OneShot, CountsADelayFromTheCallbacksDueTimeHoweverLateTheClockIs) {
    loop.schedule(1, [&] { loop.schedule(1, noting("after")); });

    clock->advanceTo(7);
    loop.runDueTurns();

    EXPECT_THAT(diary, ElementsAre("after@2"));
}

TEST_F(OneShot, CountsADelayFromTheClockOutsideTurns) {
    clock->advanceTo(3);

    loop.schedule(1, noting("work"));
    loop.runUntil(10);

    EXPECT_THAT(diary, ElementsAre("work@4"));
}

TEST_F(OneShot, TakesANegativeDelayForNone) {
    loop.schedule(-5, noting("negative"));
    loop.schedule(std::numeric_limits<double>::quiet_NaN(), noting("not a number"));

    loop.settle();

    EXPECT_THAT(diary, ElementsAre("negative@0", "not a number@0"));
}

TEST_F(OneShot, NeverRunsAfterAnInfiniteDelay) {
    loop.schedule(std::numeric_limits<double>::infinity(), noting("never"));

    loop.runUntil(1e12);

    EXPECT_THAT(diary, IsEmpty());
    EXPECT_EQ(loop.nextDueTime_s(), std::nullopt);
}

TEST_F(OneShot, ScheduledForTheSameMomentRunsInALaterTurnOfIt) {
    const auto screen = client("update");
    loop.schedule(1, [&] {
        note("work");
        loop.requestUpdate(screen);
        loop.schedule(0, noting("next turn"));
    });
    loop.schedule(1, noting("same turn"));

    loop.runUntil(1);

    EXPECT_THAT(diary, ElementsAre("work@1", "same turn@1", "update@1", "next turn@1"));
}

TEST_F(OneShot, IsValidUntilItFires) {
    std::shared_ptr<runloop::Timer> timer;
    bool wasValidInside = true;
    timer = loop.schedule(1, [&] { wasValidInside = timer->isValid(); });
    EXPECT_TRUE(timer->isValid());

    loop.runUntil(1);

    EXPECT_FALSE(wasValidInside);
    EXPECT_FALSE(timer->isValid());
}

TEST_F(OneShot, DoesNotRunOnceInvalidated) {
    const auto timer = loop.schedule(1, noting("work"));

    timer->invalidate();
    loop.runUntil(10);

    EXPECT_FALSE(timer->isValid());
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(OneShot, RunsAlthoughNobodyHoldsItsTimer) {
    { const auto dropped = loop.schedule(1, noting("work")); }

    loop.runUntil(1);

    EXPECT_THAT(diary, ElementsAre("work@1"));
}

TEST_F(OneShot, MayInvalidateAnotherOneOfTheSameTurn) {
    std::shared_ptr<runloop::Timer> victim;
    loop.schedule(1, [&] { victim->invalidate(); });
    victim = loop.schedule(1, noting("victim"));

    loop.runUntil(10);

    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(OneShot, LetsGoOfWhatItHoldsWhenItFiresOrIsInvalidated) {
    const auto held = std::make_shared<int>(0);
    const auto fired = loop.schedule(1, [held] {});
    const auto invalidated = loop.schedule(2, [held] {});

    loop.runUntil(1);
    invalidated->invalidate();

    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(OneShot, IsDroppedWithTheLoop) {
    const auto held = std::make_shared<int>(0);
    {
        runloop::MainRunLoop other{std::make_shared<runloop::VirtualClock>()};
        other.schedule(1, [held] {});
        EXPECT_EQ(held.use_count(), 2);
    }

    EXPECT_EQ(held.use_count(), 1);
}

// A view that goes away schedules and invalidates from its destructor, also when it goes with the loop.
TEST_F(OneShot, WhatItHoldsMayUseTheLoopWhenBothGo) {
    bool hadLoop = false;
    {
        runloop::MainRunLoop other{std::make_shared<runloop::VirtualClock>()};
        const std::shared_ptr<int> farewell(new int, [&](int* number) {
            hadLoop = &runloop::MainRunLoop::main() == &other;
            runloop::MainRunLoop::main().schedule(1, [] {});
            delete number;
        });
        other.schedule(1, [farewell] {});
    }

    EXPECT_TRUE(hadLoop);
}

TEST_F(OneShot, RunsAnEmptyCallbackAsNothing) {
    loop.schedule(1, nullptr);

    loop.runUntil(1);

    EXPECT_EQ(loop.nextDueTime_s(), std::nullopt);
}

// A carousel that is touched over and over invalidates each time what it has scheduled far ahead.
TEST_F(OneShot, ManyInvalidatedOnesDoNotHideTheLivingOnes) {
    for (int i = 0; i < 10'000; ++i) {
        const auto timer = loop.schedule(1 + i % 7, noting("gone"));
        if (i % 1000 == 0) loop.schedule(2, noting("living"));
        timer->invalidate();
    }

    loop.runUntil(10);

    EXPECT_THAT(diary, testing::SizeIs(10));
    EXPECT_THAT(diary, testing::Each("living@2"));
}

} // namespace
