// Appearing, changing, receiving: in which order, and how often.
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Lifecycle : public testing::Test {
protected:
    std::vector<std::string> events;
    Action note(std::string event) {
        return [this, event] { events.push_back(event); };
    }
    void rebuild(Screen& screen) {
        screen.host().setNeedsUpdate();
        screen.settle();
    }
};

TEST_F(Lifecycle, ViewsAppearOnceFromOutsideIn) {
    Screen screen{[&] { return VStack{.content = {Text{"x"} | onAppear(note("inner"))}} | onAppear(note("outer")); }, {100, 100}};
    rebuild(screen);

    EXPECT_THAT(events, ElementsAre("outer", "inner"));
}

TEST_F(Lifecycle, NothingAppearsInAnInvisibleHost) {
    headless::TestBed bed;
    const auto host = ViewHost::create([&] { return Text{"x"} | onAppear(note("in")) | onDisappear(note("out")); });
    host->setVisible(false);
    host->setSize({100, 100});
    bed.settle();
    EXPECT_THAT(events, IsEmpty());

    host->setVisible(true);
    bed.settle();
    host->setVisible(false);
    bed.settle();

    EXPECT_THAT(events, ElementsAre("in", "out"));
}

TEST_F(Lifecycle, AViewDisappearsWhenItsBranchDoes) {
    bool isShown = true;
    Screen screen{[&] { return isShown ? Text{"x"} | onDisappear(note("gone")) : View{}; }, {100, 100}};

    isShown = false;
    rebuild(screen);

    EXPECT_THAT(events, ElementsAre("gone"));
}

TEST_F(Lifecycle, AViewDisappearsWithItsHost) {
    {
        Screen screen{[&] { return Text{"x"} | onDisappear(note("gone")); }, {100, 100}};
    }
    EXPECT_THAT(events, ElementsAre("gone"));
}

TEST_F(Lifecycle, AChangeIsToldAfterTheLayoutThatShowsIt) {
    int value = 1;
    Screen* shown = nullptr;
    Screen screen{[&] {
                      return block("bar", value * 10.0, 10) | onChange(value, [&](const int& before, const int& after) {
                                 events.push_back(std::to_string(before) + " to " + std::to_string(after));
                                 events.push_back(std::to_string(int(shown->host().rootNode()->onlyChild()->frame().width())));
                             });
                  },
                  {100, 100}};
    shown = &screen;
    rebuild(screen);
    EXPECT_THAT(events, IsEmpty());

    value = 3;
    rebuild(screen);

    EXPECT_THAT(events, ElementsAre("1 to 3", "30"));
}

TEST_F(Lifecycle, ChangesAreToldInTheOrderOfTheTree) {
    int value = 1;
    Screen screen{
        [&] {
            return VStack{.content = {Text{"a"} | onChange(value, note("first")), Text{"b"} | onChange(value, note("second"))}} |
                   onChange(value, note("outer"));
        },
        {100, 100}};

    value = 2;
    rebuild(screen);

    EXPECT_THAT(events, ElementsAre("outer", "first", "second"));
}

// Counts up from 1 to a limit, a step for each change.
struct Climber {
    int limit;

    View body(BuildContext& context) const {
        const Binding<int> step = context.state<int>(0);
        return Text{std::to_string(step.get())} | onAppear([step] { step.set(1); }) | onChange(step.get(), [step, this] {
                   if (step.get() < limit) step.set(step.get() + 1);
               });
    }
    bool operator==(const Climber&) const = default;
};

TEST(ChangesOfChanges, EndInTheSameTurn) {
    Screen screen{[] { return Climber{10}; }, {100, 100}};

    EXPECT_THAT(screen.texts(), ElementsAre("10"));
    EXPECT_FALSE(screen.host().needsUpdate());
}

TEST(ChangesOfChanges, AreCutOffWithOneLogLine) {
    headless::TestBed bed;
    const auto host = ViewHost::create(Climber{1'000'000});
    host->setSize({100, 100});

    host->update();

    const auto records = bed.takeLogRecords();
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records.front().message, "Views keep changing in answer to their own changes; the rest is left for the next update");
    EXPECT_EQ(records.front().function, "ViewHost.update()");
}

TEST(ChangesOfChanges, ThatAreCutOffWaitForTheNextUpdateInsteadOfAskingForIt) {
    headless::TestBed bed;
    const auto host = ViewHost::create(Climber{10'000});
    host->setSize({100, 100});

    bed.settle();

    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
    EXPECT_TRUE(host->needsUpdate());
    EXPECT_EQ(runloop::MainRunLoop::main().nextDueTime_s(), std::nullopt);
}

TEST_F(Lifecycle, ReceivesWhatASubjectSends) {
    combine::PassthroughSubject<int> subject;
    std::string prefix = "old ";
    Screen screen{[&] {
                      return Text{"x"} | onReceive(subject, [this, prefix](const int& value) {
                                 events.push_back(prefix + std::to_string(value));
                             });
                  },
                  {100, 100}};
    subject.send(1);
    prefix = "new ";
    rebuild(screen);
    subject.send(2);
    screen.host().setRoot([] { return View{}; });
    screen.settle();
    subject.send(3);

    EXPECT_THAT(events, ElementsAre("old 1", "new 2"));
}

TEST_F(Lifecycle, ARebuildDoesNotStartATimerAgain) {
    Screen screen{[&] {
                      return Text{"x"} | onReceive(combine::TimerPublisher{5},
                                                   [this](const double& time_s) { events.push_back(std::to_string(int(time_s))); });
                  },
                  {100, 100}};

    screen.runFor(3);
    rebuild(screen);
    screen.runFor(8);

    EXPECT_THAT(events, ElementsAre("5", "10"));
}

TEST_F(Lifecycle, ATimerStopsWithItsView) {
    Screen screen{
        [&] { return Text{"x"} | onReceive(combine::TimerPublisher{5}, [this](const double&) { events.push_back("tick"); }); },
        {100, 100}};
    screen.host().setRoot([] { return View{}; });
    screen.runFor(20);

    EXPECT_THAT(events, IsEmpty());
    EXPECT_FALSE(screen.bed().loop().nextDueTime_s().has_value());
}

TEST(Display, IsAnnouncedOnceUntilItIsPainted) {
    headless::TestBed bed;
    std::string words = "a";
    const auto host = ViewHost::create([&] { return Text{words}; });
    int announced = 0;
    host->setNeedsDisplayHandler([&] { ++announced; });
    host->setSize({100, 100});
    bed.settle();
    EXPECT_EQ(announced, 1);

    host->displayList();
    words = "b";
    host->setNeedsUpdate();
    bed.settle();
    EXPECT_EQ(announced, 2);
}

TEST(Display, AnUnchangedPictureIsTheSameList) {
    Screen screen{[] { return Text{"x"}; }, {100, 100}};
    const std::size_t count = screen.host().displayList().commands.size();
    ASSERT_EQ(count, 1u);
    const auto* before = screen.host().displayList().commands.data();

    screen.host().setNeedsUpdate();
    screen.settle();

    EXPECT_EQ(screen.host().displayList().commands.data(), before);
}

} // namespace
} // namespace proupsells::swiftui::tests
