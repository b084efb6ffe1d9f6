#include <gmock/gmock.h>

#include <memory>
#include <vector>

#include "Platform/Combine/TimerPublisher.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

using namespace proupsells;

using combine::AnyCancellable;
using combine::TimerPublisher;
using testing::ElementsAre;

namespace {

class Ticks : public testing::Test {
protected:
    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
    std::vector<double> times_s;
};

TEST_F(Ticks, ComeEveryIntervalFromTheSubscriptionOn) {
    const TimerPublisher publisher{5};
    loop.runUntil(1);

    const auto token = publisher.sink([&](double time_s) { times_s.push_back(time_s); });
    loop.runUntil(16);

    EXPECT_THAT(times_s, ElementsAre(6, 11, 16));
}

TEST_F(Ticks, EndWithTheToken) {
    auto token = TimerPublisher{1}.sink([&](double time_s) { times_s.push_back(time_s); });
    loop.runUntil(2);

    token.cancel();
    loop.runUntil(10);

    EXPECT_THAT(times_s, ElementsAre(1, 2));
    EXPECT_EQ(loop.nextDueTime_s(), std::nullopt);
}

TEST_F(Ticks, EndFromInsideATick) {
    AnyCancellable token;
    token = TimerPublisher{1}.sink([&](double time_s) {
        token.cancel();
        times_s.push_back(time_s);
    });

    loop.runUntil(10);

    EXPECT_THAT(times_s, ElementsAre(1));
}

TEST_F(Ticks, ComeToEachSubscriptionByItself) {
    const TimerPublisher publisher{2};
    const auto first = publisher.sink([&](double time_s) { times_s.push_back(time_s); });
    loop.runUntil(1);
    const auto second = publisher.sink([&](double time_s) { times_s.push_back(time_s); });

    loop.runUntil(5);

    EXPECT_THAT(times_s, ElementsAre(2, 3, 4, 5));
}

TEST_F(Ticks, ComeThroughAHiddenPublisherToo) {
    const combine::AnyPublisher<double> publisher = TimerPublisher{3}.eraseToAnyPublisher();

    const auto token = publisher.sink([&](const double& time_s) { times_s.push_back(time_s); });
    loop.runUntil(3);

    EXPECT_THAT(times_s, ElementsAre(3));
}

TEST_F(Ticks, TokenMayOutliveTheLoop) {
    AnyCancellable token;
    {
        runloop::MainRunLoop other{std::make_shared<runloop::VirtualClock>()};
        token = TimerPublisher{1}.sink([](double) {});
    }

    token.cancel();

    EXPECT_FALSE(token);
}

TEST(TicksDeathTest, NeedAMainRunLoop) {
    EXPECT_DEATH(static_cast<void>(TimerPublisher{1}.sink([](double) {})), "There is no main run loop");
}

TEST_F(Ticks, NeedAPositiveInterval) {
    EXPECT_DEATH(static_cast<void>(TimerPublisher{0}.sink([](double) {})),
                 "The interval of a repeating timer must be positive and finite");
}

} // namespace
