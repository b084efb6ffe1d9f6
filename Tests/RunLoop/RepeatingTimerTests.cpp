#include <cmath>

#include "Tests/RunLoop/LoopFixture.hpp"
#include "Tests/Support/AllocationCounter.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using RepeatingTimer = tests::LoopFixture;

TEST_F(RepeatingTimer, FirstFiresAfterOneInterval) {
    loop.scheduleRepeating(5, noting("tick"));

    loop.runUntil(16);

    EXPECT_THAT(diary, ElementsAre("tick@5", "tick@10", "tick@15"));
}

TEST_F(RepeatingTimer, StaysOnItsGridForAnHour) {
    clock->advanceTo(0.3);
    std::uint64_t ticks = 0;
    bool isOnGrid = true;
    loop.scheduleRepeating(0.1, [&] { isOnGrid = isOnGrid && loop.now_s() == 0.3 + static_cast<double>(++ticks) * 0.1; });

    loop.runUntil(3600.35);

    EXPECT_TRUE(isOnGrid);
    EXPECT_EQ(ticks, 36'000u);
}

// The flag that a page change resets after five seconds, and the tick of the same moment.
TEST_F(RepeatingTimer, RunsAfterAOneShotThatTheUpdateOfItsLastTickScheduled) {
    const auto screen = std::make_shared<tests::FunctionClient>([&] { loop.schedule(5, noting("reset")); });
    loop.scheduleRepeating(5, [&] {
        note("tick");
        loop.requestUpdate(screen);
    });

    loop.runUntil(15);

    EXPECT_THAT(diary, ElementsAre("tick@5", "reset@10", "tick@10", "reset@15", "tick@15"));
}

TEST_F(RepeatingTimer, KeepsTheOrderOfAnEarlierTimerOfTheSameMoments) {
    loop.scheduleRepeating(1, noting("a"));
    loop.scheduleRepeating(1, noting("b"));

    loop.runUntil(2);

    EXPECT_THAT(diary, ElementsAre("a@1", "b@1", "a@2", "b@2"));
}

TEST_F(RepeatingTimer, MayInvalidateItself) {
    std::shared_ptr<runloop::Timer> timer;
    timer = loop.scheduleRepeating(1, [&, held = std::string(100, 'x')] {
        note("tick");
        timer->invalidate();
        EXPECT_EQ(held.size(), 100u); // the callback outlives its own invalidation
    });

    loop.runUntil(5);

    EXPECT_THAT(diary, ElementsAre("tick@1"));
    EXPECT_FALSE(timer->isValid());
}

TEST_F(RepeatingTimer, IsNotReArmedWhenAnUpdateOfItsTurnInvalidatesIt) {
    std::shared_ptr<runloop::Timer> timer;
    const auto screen = std::make_shared<tests::FunctionClient>([&] { timer->invalidate(); });
    timer = loop.scheduleRepeating(1, [&] {
        note("tick");
        loop.requestUpdate(screen);
    });

    loop.runUntil(5);

    EXPECT_THAT(diary, ElementsAre("tick@1"));
    EXPECT_EQ(loop.nextDueTime_s(), std::nullopt);
}

TEST_F(RepeatingTimer, MayBeReplacedFromItsOwnCallback) {
    std::shared_ptr<runloop::Timer> timer;
    timer = loop.scheduleRepeating(1, [&] {
        note("slow");
        timer->invalidate();
        timer = loop.scheduleRepeating(0.25, noting("fast"));
    });

    loop.runUntil(1.5);

    EXPECT_THAT(diary, ElementsAre("slow@1", "fast@1.25", "fast@1.5"));
}

TEST_F(RepeatingTimer, FiresEveryGridPointWhenTheClockIsALittleLate) {
    loop.scheduleRepeating(1, noting("tick"));

    for (const double time_s : {1.2, 2.9, 3.1}) {
        clock->advanceTo(time_s);
        loop.runDueTurns();
    }

    EXPECT_THAT(diary, ElementsAre("tick@1", "tick@2", "tick@3"));
}

TEST_F(RepeatingTimer, FiresOnceAfterAStallAndGoesOnWithItsGrid) {
    loop.scheduleRepeating(5, noting("tick"));

    clock->advanceTo(17);
    loop.runDueTurns();
    EXPECT_THAT(diary, ElementsAre("tick@5"));

    loop.runUntil(25);
    EXPECT_THAT(diary, ElementsAre("tick@5", "tick@20", "tick@25"));
}

TEST_F(RepeatingTimer, FiresAtAGridPointThatTheStallEndedOn) {
    loop.scheduleRepeating(5, noting("tick"));

    clock->advanceTo(15);
    loop.runDueTurns();

    EXPECT_THAT(diary, ElementsAre("tick@5", "tick@15"));
}

TEST_F(RepeatingTimer, SurvivesAStallOfAbsurdlyManyIntervals) {
    int ticks = 0;
    loop.scheduleRepeating(1e-8, [&] { ++ticks; });

    clock->advanceTo(1e8);
    loop.runDueTurns();

    EXPECT_EQ(ticks, 1);
    EXPECT_GT(loop.nextDueTime_s(), 1e8);
}

TEST_F(RepeatingTimer, DoesNotAllocateWhileItTicks) {
    const auto screen = std::make_shared<tests::FunctionClient>([] {});
    const std::weak_ptr<runloop::UpdateClient> weakScreen = screen;
    for (int i = 0; i < 8; ++i) loop.scheduleRepeating(0.1 * (1 + i % 4), [&] { loop.requestUpdate(weakScreen); });
    loop.runUntil(2);

    const std::size_t allocations = tests::allocationsDuring([&] { loop.runUntil(100); });

    EXPECT_EQ(allocations, 0u);
}

TEST_F(RepeatingTimer, StopsTheProgramWithoutAPositiveFiniteInterval) {
    for (const double interval_s : {0.0, -1.0, std::nan(""), HUGE_VAL})
        EXPECT_DEATH(loop.scheduleRepeating(interval_s, [] {}), "The interval of a repeating timer must be positive and finite");
}

} // namespace
