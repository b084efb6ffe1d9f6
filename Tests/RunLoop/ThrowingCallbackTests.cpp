// A host's exception passes through the loop, which goes on with what is left.
#include "Tests/RunLoop/LoopFixture.hpp"

#include <stdexcept>

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;

class ThrowingCallback : public LoopFixture {
protected:
    // Notes, then throws.
    std::function<void()> throwing(std::string name) {
        return [this, name = std::move(name)] {
            note(name);
            throw std::runtime_error(name);
        };
    }
};

TEST_F(ThrowingCallback, LeavesTheRestOfTheMomentToTheNextRun) {
    loop.schedule(1, throwing("thrown"));
    loop.schedule(1, noting("next"));
    loop.schedule(2, noting("later"));

    EXPECT_THROW(loop.runUntil(3), std::runtime_error);
    EXPECT_FALSE(loop.isInTurn());
    EXPECT_EQ(loop.now_s(), 1);
    EXPECT_EQ(loop.nextDueTime_s(), 1);
    loop.runUntil(3);

    EXPECT_THAT(diary, ElementsAre("thrown@1", "next@1", "later@2"));
}

TEST_F(ThrowingCallback, OfARepeatingTimerIsCalledAgainOnItsGrid) {
    const auto timer = loop.scheduleRepeating(1, throwing("tick"));

    EXPECT_THROW(loop.runUntil(3), std::runtime_error);
    EXPECT_THROW(loop.runUntil(3), std::runtime_error);

    EXPECT_THAT(diary, ElementsAre("tick@1", "tick@2"));
    timer->invalidate();
}

TEST_F(ThrowingCallback, OfATimerThatItEndsIsNotCalledAgain) {
    std::shared_ptr<runloop::Timer> timer = loop.scheduleRepeating(1, [&] {
        timer->invalidate();
        throw std::runtime_error("ended");
    });

    EXPECT_THROW(loop.runUntil(3), std::runtime_error);
    EXPECT_NO_THROW(loop.runUntil(9));
}

TEST_F(ThrowingCallback, InAnUpdateLeavesTheOtherUpdates) {
    const auto first = std::make_shared<FunctionClient>(throwing("first")), second = client("second");
    loop.requestUpdate(first);
    loop.requestUpdate(second);

    EXPECT_THROW(loop.settle(), std::runtime_error);
    loop.settle();
    loop.requestUpdate(first);
    EXPECT_THROW(loop.settle(), std::runtime_error);

    EXPECT_THAT(diary, ElementsAre("first@0", "second@0", "first@0"));
}

TEST_F(ThrowingCallback, HasTheLoopWokenUpForTheRest) {
    loop.schedule(1, throwing("thrown"));
    loop.schedule(1, noting("next"));
    int wakeUps = 0;
    loop.setWakeUpHandler([&] { ++wakeUps; });
    wakeUps = 0;

    EXPECT_THROW(loop.runUntil(1), std::runtime_error);

    EXPECT_EQ(wakeUps, 1);
}

TEST_F(ThrowingCallback, LetsTheLoopGo) {
    auto other = std::make_unique<runloop::MainRunLoop>(std::make_shared<runloop::VirtualClock>());
    other->schedule(0, [] { throw std::runtime_error("thrown"); });

    EXPECT_THROW(other->settle(), std::runtime_error);
    other.reset();

    EXPECT_EQ(&runloop::MainRunLoop::main(), &loop);
}

} // namespace
} // namespace proupsells::tests
