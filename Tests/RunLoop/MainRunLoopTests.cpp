#include <cmath>
#include <memory>

#include "Tests/RunLoop/LoopFixture.hpp"

using namespace proupsells;

using runloop::MainRunLoop;
using runloop::VirtualClock;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::unique_ptr<MainRunLoop> newLoop() { return std::make_unique<MainRunLoop>(std::make_shared<VirtualClock>()); }

TEST(MainRunLoop, IsTheNewestLivingOne) {
    const auto first = newLoop();
    EXPECT_EQ(&MainRunLoop::main(), first.get());

    auto second = newLoop();
    EXPECT_EQ(&MainRunLoop::main(), second.get());

    second.reset();
    EXPECT_EQ(&MainRunLoop::main(), first.get());
}

TEST(MainRunLoop, StaysTheNewestWhenAnOlderOneGoes) {
    auto first = newLoop();
    const auto second = newLoop();

    first.reset();

    EXPECT_EQ(&MainRunLoop::main(), second.get());
}

TEST(MainRunLoop, ExistsAsLongAsOneLives) {
    EXPECT_FALSE(MainRunLoop::exists());
    {
        const auto loop = newLoop();
        EXPECT_TRUE(MainRunLoop::exists());
    }
    EXPECT_FALSE(MainRunLoop::exists());
}

TEST(MainRunLoopDeathTest, StopsTheProgramWhenThereIsNone) {
    EXPECT_DEATH(MainRunLoop::main(),
                 "^There is no main run loop: call proupsells::standard::install\\(\\), or create a runloop::MainRunLoop\n$");
}

TEST(MainRunLoopDeathTest, StopsTheProgramWithoutAClock) { EXPECT_DEATH(MainRunLoop{nullptr}, "A main run loop needs a clock"); }

using RunLoop = tests::LoopFixture;

TEST_F(RunLoop, MayHaveAHundredThousandTurnsOfOneMoment) {
    int left = 100'000;
    std::function<void()> again = [&] {
        if (--left > 0) loop.schedule(0, again);
    };
    loop.schedule(0, again);
    loop.runUntil(0);
    EXPECT_EQ(left, 0);

    left = 100'001;
    loop.schedule(0, again);
    EXPECT_DEATH(loop.runUntil(0), "does not get past one moment");
}

TEST_F(RunLoop, TellsTheClocksTimeOutsideTurns) {
    EXPECT_EQ(loop.now_s(), 0);

    clock->advanceTo(4);

    EXPECT_EQ(loop.now_s(), 4);
    EXPECT_FALSE(loop.isInTurn());
}

TEST_F(RunLoop, TellsTheDueTimeInsideTurns) {
    const auto screen = client("update");
    bool wasInTurn = false;
    loop.schedule(1, [&] {
        note("work");
        wasInTurn = loop.isInTurn();
        loop.requestUpdate(screen);
    });

    clock->advanceTo(4);
    loop.runDueTurns();

    EXPECT_THAT(diary, ElementsAre("work@1", "update@1"));
    EXPECT_TRUE(wasInTurn);
    EXPECT_EQ(loop.now_s(), 4);
}

TEST_F(RunLoop, StandsAtTheTimeItWasRunUntil) {
    loop.schedule(1, noting("work"));

    loop.runUntil(2.5);

    EXPECT_EQ(loop.now_s(), 2.5);
}

TEST_F(RunLoop, DoesNotRunBackwards) {
    loop.runUntil(3);
    loop.schedule(0, noting("due now"));

    loop.runUntil(1);

    EXPECT_EQ(loop.now_s(), 3);
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(RunLoop, SettlesWithoutLettingTimePass) {
    loop.schedule(0, [&] { loop.schedule(0, noting("second turn")); });
    loop.schedule(0.001, noting("later"));

    loop.settle();

    EXPECT_THAT(diary, ElementsAre("second turn@0"));
    EXPECT_EQ(loop.now_s(), 0);
}

TEST_F(RunLoop, TellsWhenItIsDueNext) {
    EXPECT_EQ(loop.nextDueTime_s(), std::nullopt);

    const auto early = loop.schedule(2, [] {});
    loop.schedule(5, [] {});
    EXPECT_EQ(loop.nextDueTime_s(), 2);

    early->invalidate();
    EXPECT_EQ(loop.nextDueTime_s(), 5);
}

TEST_F(RunLoop, CountsTheTimersThatWait) {
    EXPECT_EQ(loop.waitingTimerCount(), 0u);

    const auto repeating = loop.scheduleRepeating(1, [] {});
    const auto later = loop.schedule(5, [] {});
    loop.schedule(1, [] {});
    EXPECT_EQ(loop.waitingTimerCount(), 3u);

    loop.runUntil(2);
    EXPECT_EQ(loop.waitingTimerCount(), 2u);

    later->invalidate();
    EXPECT_EQ(loop.waitingTimerCount(), 1u);

    repeating->invalidate();
    EXPECT_EQ(loop.waitingTimerCount(), 0u);
}

TEST_F(RunLoop, IgnoresANestedRequestToRunDueTurns) {
    loop.schedule(1, [&] {
        loop.schedule(0, noting("inner"));
        loop.runDueTurns();
        note("outer");
    });

    loop.runUntil(1);

    EXPECT_THAT(diary, ElementsAre("outer@1", "inner@1"));
}

TEST_F(RunLoop, RunsAnotherLoopInsideACallback) {
    loop.schedule(1, [&] {
        MainRunLoop inner{std::make_shared<VirtualClock>()};
        inner.schedule(60, [&] { EXPECT_EQ(MainRunLoop::main().now_s(), 60); });
        inner.runUntil(60);
        note("outer");
    });

    loop.runUntil(1);

    EXPECT_THAT(diary, ElementsAre("outer@1"));
    EXPECT_EQ(&MainRunLoop::main(), &loop);
}

TEST_F(RunLoop, GetsThroughManyTurnsOfOneMoment) {
    int left = 50'000;
    std::function<void()> again = [&] {
        if (--left > 0) loop.schedule(0, again);
    };
    loop.schedule(0, again);

    loop.settle();

    EXPECT_EQ(left, 0);
}

TEST_F(RunLoop, CountsTheTurnsOfOneMomentAnewInEachRun) {
    for (int i = 0; i < 150'000; ++i) {
        loop.schedule(0, [] {});
        loop.settle();
    }

    EXPECT_EQ(loop.now_s(), 0);
}

using RunLoopDeathTest = tests::LoopFixture;

TEST_F(RunLoopDeathTest, StopsTheProgramWhenOneMomentNeverEnds) {
    std::function<void()> again = [&] { loop.schedule(0, again); };
    loop.schedule(1, again);

    EXPECT_DEATH(loop.runUntil(2), "The main run loop does not get past one moment: work keeps scheduling work without a delay");
}

TEST_F(RunLoopDeathTest, StopsTheProgramWhenAnIntervalIsLostInRounding) {
    clock->advanceTo(1e9);
    loop.scheduleRepeating(1e-12, [] {});

    EXPECT_DEATH(loop.runUntil(1e9 + 1),
                 "The main run loop does not get past one moment: work keeps scheduling work without a delay");
}

TEST_F(RunLoopDeathTest, StopsTheProgramWhenRunInsideItsTurn) {
    loop.schedule(1, [&] { loop.runUntil(2); });
    EXPECT_DEATH(loop.runUntil(1), "A main run loop cannot be run inside its own turn");
}

TEST_F(RunLoopDeathTest, StopsTheProgramWhenSettledInsideItsTurn) {
    loop.schedule(1, [&] { loop.settle(); });
    EXPECT_DEATH(loop.runUntil(1), "A main run loop cannot settle inside its own turn");
}

TEST_F(RunLoopDeathTest, StopsTheProgramWhenDestroyedInsideItsTurn) {
    auto doomed = newLoop();
    doomed->schedule(1, [&] { doomed.reset(); });

    EXPECT_DEATH(doomed->runUntil(1), "A main run loop was destroyed inside its own turn");
}

TEST_F(RunLoopDeathTest, StopsTheProgramWhenRunUntilNoTime) {
    EXPECT_DEATH(loop.runUntil(HUGE_VAL), "A main run loop can only be run until a finite time");
    EXPECT_DEATH(loop.runUntil(std::nan("")), "A main run loop can only be run until a finite time");
}

TEST_F(RunLoopDeathTest, StopsTheProgramWhenARealClockIsToBeMoved) {
    MainRunLoop real{std::make_shared<runloop::RealClock>()};

    EXPECT_DEATH(real.runUntil(1), "Only a virtual clock can be moved");
}

TEST(MainRunLoop, RunsWhatIsDueOnARealClock) {
    MainRunLoop loop{std::make_shared<runloop::RealClock>()};
    int runs = 0;
    loop.schedule(0, [&] { ++runs; });
    loop.schedule(3600, [&] { ++runs; });

    loop.runDueTurns();

    EXPECT_EQ(runs, 1);
}

} // namespace
