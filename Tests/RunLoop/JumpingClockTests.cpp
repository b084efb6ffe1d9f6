// Clocks of a host's own that are set forward by a day or back by an hour.
#include "Platform/RunLoop/SteppedClock.hpp"
#include "Tests/RunLoop/LoopFixture.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double hour_s = 3600, day_s = 24 * hour_s;

class WallClock final : public runloop::Clock {
public:
    double now_s() const override { return time_s; }

    double time_s = 1000;
};

class JumpingClock : public testing::Test {
protected:
    std::function<void()> noting(std::string name) {
        return [this, name = std::move(name)] { diary.push_back(name); };
    }
    void pass(double duration_s) {
        clock->time_s += duration_s;
        loop.runDueTurns();
    }

    std::shared_ptr<WallClock> clock = std::make_shared<WallClock>();
    runloop::MainRunLoop loop{clock};
    std::vector<std::string> diary;
};

TEST_F(JumpingClock, SetForwardByADayCallsEachTimerOnceAndGoesOn) {
    loop.scheduleRepeating(0.1, noting("strip"));
    loop.scheduleRepeating(5, noting("page"));
    loop.schedule(2, noting("once"));

    pass(day_s + 1.05);
    EXPECT_THAT(diary, ElementsAre("strip", "once", "page"));

    diary.clear();
    pass(0.1);
    EXPECT_THAT(diary, ElementsAre("strip"));
}

TEST_F(JumpingClock, SetBackByAnHourLetsTimersGoOn) {
    loop.schedule(5, noting("once"));
    loop.scheduleRepeating(2, noting("page"));
    pass(1);

    pass(-hour_s);
    pass(0.9);
    EXPECT_THAT(diary, IsEmpty());

    pass(0.2);
    EXPECT_THAT(diary, ElementsAre("page"));
    pass(3);
    EXPECT_THAT(diary, ElementsAre("page", "page", "once"));
}

TEST_F(JumpingClock, SetBackTellsWhoWaitsThatThereIsAsMuchToWaitAsBefore) {
    loop.schedule(5, [] {});
    pass(1);

    clock->time_s -= hour_s;

    EXPECT_DOUBLE_EQ(loop.nextDueDelay_s().value(), 4);
}

TEST_F(JumpingClock, SetBackTwiceGoesOnTwice) {
    loop.schedule(5, noting("once"));
    for (int time = 0; time < 2; ++time) {
        pass(2);
        pass(-hour_s);
    }
    EXPECT_THAT(diary, IsEmpty());

    pass(1.001);

    EXPECT_THAT(diary, ElementsAre("once"));
}

TEST(SteppedJumpingClock, SetBackByAnHourLetsTimersGoOn) {
    const auto clock = std::make_shared<WallClock>();
    runloop::MainRunLoop loop{std::make_shared<runloop::SteppedClock>(clock)};
    loop.runDueTurns();
    int count = 0;
    loop.schedule(5, [&] { ++count; });
    clock->time_s += 1;
    loop.runDueTurns();

    clock->time_s -= hour_s;
    loop.runDueTurns();
    clock->time_s += 3.9;
    loop.runDueTurns();
    EXPECT_EQ(count, 0);

    clock->time_s += 0.2;
    loop.runDueTurns();
    EXPECT_EQ(count, 1);
}

} // namespace
