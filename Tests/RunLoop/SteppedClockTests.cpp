#include <algorithm>
#include <cmath>
#include <random>

#include "Platform/RunLoop/SteppedClock.hpp"
#include "Tests/RunLoop/LoopFixture.hpp"

using namespace proupsells;

using testing::ElementsAre;

namespace {

class SteppedLoop : public testing::Test {
protected:
    std::shared_ptr<runloop::VirtualClock> followed = std::make_shared<runloop::VirtualClock>();
    runloop::MainRunLoop loop{std::make_shared<runloop::SteppedClock>(followed)};
};

TEST_F(SteppedLoop, StandsStillUntilItLooksForWhatIsDue) {
    followed->advanceTo(3);
    EXPECT_EQ(loop.now_s(), 0);

    loop.runDueTurns();

    EXPECT_EQ(loop.now_s(), 3);
}

TEST_F(SteppedLoop, MovesByWholeMilliseconds) {
    followed->advanceTo(0.5129);

    loop.runDueTurns();

    EXPECT_EQ(loop.now_s(), 0.512);
}

TEST_F(SteppedLoop, MeetsEveryTickThatItIsLateFor) {
    std::vector<double> ticks_s;
    loop.scheduleRepeating(1, [&] { ticks_s.push_back(loop.now_s()); });
    followed->advanceTo(3.5);

    loop.runDueTurns();

    EXPECT_THAT(ticks_s, ElementsAre(1, 2, 3));
}

TEST_F(SteppedLoop, CountsTheTimeToTheNextTurnFromTheClockThatItFollows) {
    loop.schedule(5, [] {});
    followed->advanceTo(3);

    EXPECT_EQ(loop.nextDueDelay_s(), 2);
    EXPECT_EQ(loop.now_s(), 0);
}

TEST_F(SteppedLoop, WakesWhoDrivesItOnceItHasMovedOn) {
    loop.schedule(5, [] {});
    std::vector<double> told_s;
    loop.setWakeUpHandler([&] { told_s.push_back(loop.now_s()); });
    told_s.clear();
    followed->advanceTo(3);

    loop.runDueTurns();

    EXPECT_THAT(told_s, ElementsAre(3));
}

TEST_F(SteppedLoop, RunsOnRealTime) { EXPECT_TRUE(loop.runsOnRealTime()); }

// Work that schedules more work, told of with its time.
class RandomWork {
public:
    RandomWork(runloop::MainRunLoop& loop, unsigned seed) : m_loop(loop), m_random(seed) {}

    void schedule() {
        const double delay_s = std::floor(m_random() % 40) / 64;
        m_loop.schedule(delay_s, [this, name = m_count++] {
            diary.emplace_back(name, m_loop.now_s());
            if (m_random() % 3 == 0) schedule();
        });
    }

    std::vector<std::pair<int, double>> diary;

private:
    runloop::MainRunLoop& m_loop;
    std::mt19937 m_random;
    int m_count = 0;
};

TEST(SteppedClockDeathTest, FollowsAClock) {
    EXPECT_DEATH(runloop::SteppedClock{nullptr}, "A stepped clock needs a clock to follow");
}

TEST(SteppedClock, IsPlayedBackOnAVirtualClock) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<double> steps_s;
        const auto followed = std::make_shared<runloop::VirtualClock>();
        std::vector<std::pair<int, double>> recorded;
        {
            runloop::MainRunLoop loop(std::make_shared<runloop::SteppedClock>(followed));
            RandomWork work(loop, seed);
            for (int step = 0; step < 30; ++step) {
                followed->advanceTo(followed->now_s() + double(random() % 1000) / 7919);
                loop.runDueTurns();
                steps_s.push_back(loop.now_s());
                work.schedule();
            }
            recorded = work.diary;
        }

        runloop::MainRunLoop loop(std::make_shared<runloop::VirtualClock>());
        RandomWork work(loop, seed);
        for (const double step_s : steps_s) {
            loop.runUntil(step_s);
            work.schedule();
        }

        EXPECT_FALSE(recorded.empty());
        EXPECT_EQ(work.diary, recorded);
    }
}

} // namespace
