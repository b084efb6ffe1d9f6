#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Tests/Qt/Events.hpp"

using namespace proupsells;

using testing::ElementsAre;
using tests::handleEventsUntil;

namespace {

struct DrivenLoop {
    runloop::MainRunLoop loop{std::make_shared<runloop::RealClock>()};
    qtbackend::QtRunLoopDriver driver{loop};
};

class CountingClient : public runloop::UpdateClient {
public:
    void update() override { ++count; }
    int count = 0;
};

} // namespace

TEST(QtRunLoopDriver, RunsTimersInTheOrderInWhichTheyAreDue) {
    DrivenLoop driven;
    std::vector<int> order;
    // All delays count from one moment, however long the machine takes to write them down.
    driven.loop.schedule(0, [&] {
        driven.loop.schedule(0.03, [&] { order.push_back(3); });
        driven.loop.schedule(0.01, [&] {
            order.push_back(1);
            driven.loop.schedule(0.01, [&] { order.push_back(2); });
        });
        driven.loop.schedule(0, [&] { order.push_back(0); });
    });

    ASSERT_TRUE(handleEventsUntil([&] { return order.size() == 4; }));

    EXPECT_THAT(order, ElementsAre(0, 1, 2, 3));
}

TEST(QtRunLoopDriver, NeverRunsATimerEarly) {
    runloop::RealClock watch;
    DrivenLoop driven;
    double fired_s = 0;
    const double start_s = watch.now_s();
    driven.loop.schedule(0.02, [&] { fired_s = watch.now_s(); });

    ASSERT_TRUE(handleEventsUntil([&] { return fired_s > 0; }));

    EXPECT_GE(fired_s - start_s, 0.02);
}

TEST(QtRunLoopDriver, WakesUpForWorkThatIsDueEarlierThanAllOther) {
    DrivenLoop driven;
    bool hasRun = false;
    driven.loop.schedule(3600, [] { FAIL() << "An hour has not passed"; });
    driven.loop.schedule(0.005, [&] { hasRun = true; });

    EXPECT_TRUE(handleEventsUntil([&] { return hasRun; }));
}

TEST(QtRunLoopDriver, BringsRequestedUpdatesAbout) {
    DrivenLoop driven;
    const auto client = std::make_shared<CountingClient>();
    driven.loop.requestUpdate(client);
    driven.loop.requestUpdate(client);

    ASSERT_TRUE(handleEventsUntil([&] { return client->count > 0; }));

    EXPECT_EQ(client->count, 1);
}

TEST(QtRunLoopDriver, RepeatsATimerOnItsGrid) {
    DrivenLoop driven;
    std::vector<double> times_s;
    const double start_s = driven.loop.now_s();
    const auto timer = driven.loop.scheduleRepeating(0.01, [&] { times_s.push_back(driven.loop.now_s()); });

    ASSERT_TRUE(handleEventsUntil([&] { return times_s.size() >= 3; }));
    timer->invalidate();

    EXPECT_GE(times_s[0], start_s + 0.01);
    for (std::size_t tick = 1; tick < 3; ++tick) {
        const double intervals = (times_s[tick] - times_s[tick - 1]) / 0.01; // more than one where the machine was busy
        EXPECT_GE(intervals, 0.999);
        EXPECT_NEAR(intervals, std::round(intervals), 1e-3);
    }
}
