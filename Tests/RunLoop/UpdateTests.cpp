#include "Tests/RunLoop/LoopFixture.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Update = tests::LoopFixture;

TEST_F(Update, RunsAtTheEndOfTheTurnThatAskedForIt) {
    const auto screen = client("update");
    loop.schedule(1, [&] { loop.requestUpdate(screen); });
    loop.schedule(1, noting("work"));
    loop.schedule(2, noting("later"));

    loop.runUntil(5);

    EXPECT_THAT(diary, ElementsAre("work@1", "update@1", "later@2"));
}

TEST_F(Update, RunsOnceHoweverOftenATurnAsks) {
    const auto screen = client("update");
    loop.schedule(1, [&] {
        loop.requestUpdate(screen);
        loop.requestUpdate(screen);
    });
    loop.schedule(1, [&] { loop.requestUpdate(screen); });

    loop.runUntil(5);

    EXPECT_THAT(diary, ElementsAre("update@1"));
}

TEST_F(Update, KeepsTheOrderOfTheFirstRequests) {
    const auto one = client("one"), two = client("two"), three = client("three");
    loop.schedule(1, [&] {
        for (const auto& screen : {two, one, two, three, one}) loop.requestUpdate(screen);
    });

    loop.runUntil(1);

    EXPECT_THAT(diary, ElementsAre("two@1", "one@1", "three@1"));
}

TEST_F(Update, AskedForByAnUpdateRunsInTheSameTurnBehindThoseThatWait) {
    const auto last = client("last");
    const auto waiting = client("waiting");
    const auto first = std::make_shared<tests::FunctionClient>([&] {
        note("first");
        loop.requestUpdate(last);
        loop.schedule(0, noting("next turn"));
    });
    loop.requestUpdate(first);
    loop.requestUpdate(waiting);

    loop.settle();

    EXPECT_THAT(diary, ElementsAre("first@0", "waiting@0", "last@0", "next turn@0"));
}

TEST_F(Update, MayAskForItselfAgain) {
    int left = 3;
    std::shared_ptr<tests::FunctionClient> screen;
    screen = std::make_shared<tests::FunctionClient>([&] {
        note("update");
        if (--left > 0) loop.requestUpdate(screen);
    });
    loop.requestUpdate(screen);

    loop.settle();

    EXPECT_THAT(diary, ElementsAre("update@0", "update@0", "update@0"));
}

TEST_F(Update, AskedForOutsideATurnIsDueNow) {
    const auto screen = client("update");
    clock->advanceTo(3);

    loop.requestUpdate(screen);

    EXPECT_EQ(loop.nextDueTime_s(), 3);
    EXPECT_THAT(diary, IsEmpty());
    loop.settle();
    EXPECT_THAT(diary, ElementsAre("update@3"));
}

TEST_F(Update, AskedForAfterWorkBecameLateWaitsForItsOwnMoment) {
    const auto screen = client("update");
    loop.schedule(1, noting("late work"));
    clock->advanceTo(3);

    loop.requestUpdate(screen);
    loop.runDueTurns();

    EXPECT_THAT(diary, ElementsAre("late work@1", "update@3"));
}

TEST_F(Update, ComesEarlierWhenLateWorkAsksForItToo) {
    const auto screen = client("update");
    loop.schedule(1, [&] { loop.requestUpdate(screen); });
    clock->advanceTo(3);

    loop.requestUpdate(screen);
    loop.runDueTurns();

    EXPECT_THAT(diary, ElementsAre("update@1"));
}

TEST_F(Update, IsSkippedWhenItsClientIsGone) {
    auto gone = client("gone");
    const auto screen = client("update");
    loop.requestUpdate(gone);
    loop.requestUpdate(screen);

    gone.reset();
    loop.settle();

    EXPECT_THAT(diary, ElementsAre("update@0"));
}

TEST_F(Update, IsNotDueForAClientThatIsGone) {
    auto gone = client("gone");
    loop.requestUpdate(gone);

    gone.reset();

    EXPECT_EQ(loop.nextDueTime_s(), std::nullopt);
}

TEST_F(Update, KeepsItsClientUntilItReturns) {
    std::shared_ptr<tests::FunctionClient> screen;
    screen = std::make_shared<tests::FunctionClient>([&, held = std::string(100, 'x')] {
        screen.reset();
        note(held.size() == 100 ? "alive" : "dead");
    });
    loop.requestUpdate(screen);

    loop.settle();

    EXPECT_THAT(diary, ElementsAre("alive@0"));
}

TEST_F(Update, MayAskForItselfAHundredThousandTimesInATurn) {
    int left = 100'000;
    std::shared_ptr<tests::FunctionClient> screen;
    screen = std::make_shared<tests::FunctionClient>([&] {
        if (--left > 0) loop.requestUpdate(screen);
    });
    loop.requestUpdate(screen);
    loop.settle();
    EXPECT_EQ(left, 0);

    left = 100'001;
    loop.requestUpdate(screen);
    EXPECT_DEATH(loop.settle(), "does not get past one turn");
}

TEST_F(Update, StopsTheProgramWhenUpdatesKeepAskingForUpdates) {
    std::shared_ptr<tests::FunctionClient> screen;
    screen = std::make_shared<tests::FunctionClient>([&] { loop.requestUpdate(screen); });
    loop.requestUpdate(screen);

    EXPECT_DEATH(loop.settle(), "The main run loop does not get past one turn: updates keep requesting updates");
}

} // namespace
