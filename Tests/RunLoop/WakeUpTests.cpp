#include "Tests/RunLoop/LoopFixture.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Notes the time that a backend would have to wake up at, each time it is told.
class WakeUp : public tests::LoopFixture {
protected:
    void SetUp() override {
        loop.setWakeUpHandler([this] { wakeUps_s.push_back(*loop.nextDueTime_s()); });
    }

    std::vector<double> wakeUps_s;
};

TEST_F(WakeUp, IsToldOfTheFirstWorkAndOfEarlierWorkOnly) {
    loop.schedule(5, [] {});
    loop.schedule(7, [] {});
    loop.schedule(5, [] {});
    loop.schedule(2, [] {});

    EXPECT_THAT(wakeUps_s, ElementsAre(5, 2));
}

TEST_F(WakeUp, IsToldOfAnUpdateRequest) {
    const auto screen = client("update");
    clock->advanceTo(3);

    loop.requestUpdate(screen);
    loop.requestUpdate(screen);

    EXPECT_THAT(wakeUps_s, ElementsAre(3));
}

TEST_F(WakeUp, IsToldOnceAfterTurnsThatLeaveWork) {
    loop.scheduleRepeating(1, [&] {
        loop.schedule(0.5, [] {});
        loop.schedule(0.25, [] {});
    });
    wakeUps_s.clear();

    loop.runUntil(1);

    EXPECT_THAT(wakeUps_s, ElementsAre(1.25));
}

TEST_F(WakeUp, IsNotToldAfterTurnsThatLeaveNothing) {
    loop.schedule(1, [] {});
    wakeUps_s.clear();

    loop.runUntil(5);

    EXPECT_THAT(wakeUps_s, IsEmpty());
}

TEST_F(WakeUp, IsToldAtOnceWhenWorkWaitsAlready) {
    loop.schedule(4, [] {});
    std::vector<double> late_s;

    loop.setWakeUpHandler([&] { late_s.push_back(*loop.nextDueTime_s()); });

    EXPECT_THAT(late_s, ElementsAre(4));
}

TEST_F(WakeUp, MayTakeItselfAway) {
    loop.setWakeUpHandler([this, held = std::string(100, 'x')] {
        loop.setWakeUpHandler(nullptr);
        wakeUps_s.push_back(static_cast<double>(held.size()));
    });

    loop.schedule(2, [] {});
    loop.schedule(1, [] {});

    EXPECT_THAT(wakeUps_s, ElementsAre(100));
}

// What a window system's event loop does: sleep until the time it was told last, then run what is due.
TEST_F(WakeUp, CarriesALoopThroughAllItsWork) {
    loop.schedule(1, [&] { loop.schedule(2, noting("second")); });
    loop.scheduleRepeating(2, noting("tick"));

    while (!wakeUps_s.empty() && wakeUps_s.back() <= 6) {
        clock->advanceTo(wakeUps_s.back() + 0.01);
        loop.runDueTurns();
    }

    EXPECT_THAT(diary, ElementsAre("tick@2", "second@3", "tick@4", "tick@6"));
}

} // namespace
