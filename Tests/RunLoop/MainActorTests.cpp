#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <thread>

#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

using namespace proupsells;

using runloop::MainActor;
using runloop::MainRunLoop;
using runloop::RealClock;
using runloop::VirtualClock;

namespace {

// Runs each case in a process of its own, where no other test has made a thread the main one.
class MainActorDeathTest : public testing::Test {
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
    void TearDown() override { GTEST_FLAG_SET(death_test_style, "fast"); }
};

void onAnotherThread(void (*work)()) { std::thread(work).join(); }

TEST_F(MainActorDeathTest, StopsOnAnotherThreadThanTheFirstLoops) {
    EXPECT_DEATH(
        {
            MainRunLoop loop{std::make_shared<VirtualClock>()};
            onAnotherThread([] { MainActor::assertIsolated(); });
        },
        "This must be called on the main thread");
}

TEST_F(MainActorDeathTest, NamesTheCallAndBothThreads) {
    EXPECT_DEATH(
        {
            MainRunLoop loop{std::make_shared<VirtualClock>()};
            onAnotherThread([] { MainActor::assertIsolated("Paywall::open"); });
        },
        "Paywall::open must be called on the main thread, which is [0-9a-fx]+, the one of the first main run loop; it was called "
        "on thread [0-9a-fx]+");
}

TEST_F(MainActorDeathTest, KeepsTheMainThreadAfterItsLoopIsGone) {
    EXPECT_DEATH(
        {
            { MainRunLoop loop{std::make_shared<VirtualClock>()}; }
            onAnotherThread([] { MainActor::assertIsolated(); });
        },
        "main thread");
}

TEST_F(MainActorDeathTest, TakesTheThreadOfTheFirstLoopForTheMainThread) {
    EXPECT_DEATH(
        {
            onAnotherThread([] { MainRunLoop loop{std::make_shared<VirtualClock>()}; });
            MainActor::assertIsolated();
        },
        "main thread");
}

TEST_F(MainActorDeathTest, LoopsBelongToTheMainThread) {
    EXPECT_DEATH(
        {
            MainRunLoop first{std::make_shared<VirtualClock>()};
            onAnotherThread([] { MainRunLoop second{std::make_shared<VirtualClock>()}; });
        },
        "main thread");
}

TEST_F(MainActorDeathTest, SchedulingBelongsToTheMainThread) {
    EXPECT_DEATH(
        {
            MainRunLoop loop{std::make_shared<VirtualClock>()};
            onAnotherThread([] { MainRunLoop::main().schedule(1, [] {}); });
        },
        "main thread");
}

TEST_F(MainActorDeathTest, AnyThreadWillDoBeforeTheFirstLoop) {
    EXPECT_EXIT(
        {
            MainActor::assertIsolated();
            onAnotherThread([] { MainActor::assertIsolated(); });
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

// Two real clocks would let two loops run by turns, each a little of what the other waits for.
TEST_F(MainActorDeathTest, OneLoopRunsOnRealTime) {
    EXPECT_DEATH(
        {
            MainRunLoop first{std::make_shared<RealClock>()};
            MainRunLoop second{std::make_shared<RealClock>()};
        },
        "A main run loop runs already, and there can be one only: use runloop::MainRunLoop::main\\(\\) in place of a second one");
}

TEST(MainActor, PassesOnTheMainThread) {
    MainRunLoop loop{std::make_shared<VirtualClock>()};

    MainActor::assertIsolated();

    SUCCEED();
}

} // namespace
