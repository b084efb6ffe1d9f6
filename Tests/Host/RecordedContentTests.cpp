// What is written down of what goes into a content.
#include <gmock/gmock.h>

#include "Platform/Host/AssistiveOperation.hpp"
#include "Platform/Host/InputPlayer.hpp"
#include "Platform/Host/RecordedContent.hpp"
#include "Platform/Host/RecordedInputText.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/RunLoop/SteppedClock.hpp"

namespace proupsells::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Tells what it is asked to do, with the time.
class Diary final : public WindowContent {
public:
    void setSize(geometry::Size, geometry::PhysicalInsets) override { note("setSize"); }
    void touch(const Touch& touch) override { note("touch " + std::to_string(int(touch.time_s * 1000))); }
    void pointer(std::optional<geometry::Point>) override { note("pointer"); }
    bool pointsAtControl() override {
        note("pointsAtControl");
        return true;
    }
    void scroll(geometry::Point, geometry::Point) override { note("scroll"); }
    bool key(Key, bool isRepeated) override {
        note("key");
        return !isRepeated;
    }
    bool takeFocus(FocusEnd) override {
        note("takeFocus");
        return true;
    }
    void dropFocus() override { note("dropFocus"); }
    void setFocusLeaves(bool) override { note("setFocusLeaves"); }
    void setSeen(bool) override { note("setSeen"); }
    void paint(graphics::DisplayList&) override { note("paint"); }
    bool isAnimating() const override { return true; }
    void setNeedsDisplayHandler(std::function<void()>) override {}
    accessibility::SemanticNode semanticTree() override { return {}; }
    accessibility::ReadingElement reading() override {
        note("reading");
        accessibility::ReadingElement dialog, button;
        button.id = 7;
        button.name = isRenamed ? "Later" : "Now";
        button.activate = [this] { note("activate"); };
        dialog.children = {button};
        return dialog;
    }

    void note(const std::string& line) {
        lines.push_back(line + "@" + std::to_string(int(runloop::MainRunLoop::main().now_s() * 1000)));
    }

    std::vector<std::string> lines;
    bool isRenamed = false;
};

class RecordedContents : public testing::Test {
protected:
    void pass(double duration_s) { real->advanceTo(real->now_s() + duration_s); }

    std::shared_ptr<runloop::VirtualClock> real = std::make_shared<runloop::VirtualClock>();
    runloop::MainRunLoop loop{std::make_shared<runloop::SteppedClock>(real)};
    std::shared_ptr<Diary> diary = std::make_shared<Diary>();
    std::shared_ptr<RecordedContent> recorded = std::make_shared<RecordedContent>(diary);
    graphics::DisplayList list;
};

TEST_F(RecordedContents, HandsEverythingOn) {
    pass(0.0016);
    EXPECT_TRUE(recorded->key(Key::tab));
    EXPECT_FALSE(recorded->key(Key::tab, true));
    EXPECT_TRUE(recorded->takeFocus(FocusEnd::last));
    recorded->dropFocus();
    recorded->touch({TouchPhase::began, {1, 2}, 0});

    EXPECT_THAT(diary->lines, ElementsAre("key@1", "key@1", "takeFocus@1", "dropFocus@1", "touch 1@1"));
}

TEST_F(RecordedContents, WritesALineForEachInput) {
    recorded->setSize({375, 800}, {0, 0, 34, 0});
    recorded->setSeen(false);
    pass(0.5129);
    recorded->touch({TouchPhase::began, {187.5, 1.0 / 3}, 0});
    recorded->pointer(std::nullopt);
    recorded->scroll({1e-9, 1e22}, {-0.0, -60});
    recorded->key(Key::activate, true);
    recorded->willDo("\"set\": {\"scale\":2}");
    pass(1);
    recorded->end();
    recorded->key(Key::tab);

    EXPECT_EQ(inputsAsJson(recorded->inputs()), R"([
{ "time": 0, "size": [375, 800], "safeArea": [0, 0, 34, 0] },
{ "time": 0, "isSeen": false },
{ "time": 0.512, "touch": "began", "at": [187.5, 0.3333333333333333] },
{ "time": 0.512, "pointer": null },
{ "time": 0.512, "scroll": [-0.0, -60], "at": [0.1e-8, 0.1e23] },
{ "time": 0.512, "key": "return", "isRepeated": true },
{ "time": 0.512, "set": {"scale":2} },
{ "time": 1.512 }
])");
}

TEST_F(RecordedContents, PutsFramesOnOneLineAndThoseThatAreReadOnAnother) {
    for (int frame = 0; frame < 4; ++frame) {
        pass(0.016);
        loop.runDueTurns();
        recorded->paint(list);
        if (frame >= 2) recorded->reading();
    }
    recorded->reading();

    EXPECT_EQ(inputsAsJson(recorded->inputs()), R"([
{ "frames": [0.016, 0.032] },
{ "frames": [0.048, 0.064], "areRead": true },
{ "time": 0.064, "look": "reading" }
])");
}

TEST_F(RecordedContents, SaysOfAFrameThatWhatWasDueHadNotRun) {
    loop.schedule(0, [] {});
    recorded->paint(list);

    EXPECT_EQ(inputsAsJson(recorded->inputs()), "[\n{ \"time\": 0, \"look\": \"frame\", \"isEarly\": true }\n]");
}

TEST_F(RecordedContents, PointsAtAControlAsItDidAtTheLastFrame) {
    EXPECT_FALSE(recorded->pointsAtControl());

    recorded->paint(list);

    EXPECT_TRUE(recorded->pointsAtControl());
    EXPECT_THAT(diary->lines, ElementsAre("paint@0", "pointsAtControl@0"));
}

TEST_F(RecordedContents, RecordsWhatIsDoneToAnElement) {
    const accessibility::ReadingElement reading = recorded->reading();
    pass(2);

    reading.children[0].activate();

    ASSERT_EQ(recorded->inputs().size(), 2u);
    EXPECT_EQ(recorded->inputs()[1].time_s, 2);
    const auto& input = std::get<AssistiveInput>(recorded->inputs()[1].input);
    EXPECT_EQ(input.element, 1u);
    EXPECT_EQ(input.action, AssistiveAction::activate);
    EXPECT_EQ(diary->lines.back(), "activate@2000");
}

TEST_F(RecordedContents, FindsAnElementThatHasAnotherNameNow) {
    const accessibility::ReadingElement reading = recorded->reading();
    diary->isRenamed = true;

    reading.children[0].activate();

    EXPECT_EQ(diary->lines.back(), "activate@0");
}

TEST_F(RecordedContents, LeavesElementsAloneOnceItIsGone) {
    const accessibility::ReadingElement reading = recorded->reading();
    recorded.reset();
    diary->lines.clear();

    reading.children[0].activate();

    EXPECT_THAT(diary->lines, IsEmpty());
}

TEST_F(RecordedContents, ArePlayedBack) {
    recorded->setSize({1, 1}, {});
    pass(0.25);
    recorded->touch({TouchPhase::began, {1, 1}, 0});
    recorded->paint(list);
    recorded->reading().children[0].activate();
    pass(0.5);
    recorded->takeFocus(FocusEnd::first);
    recorded->dropFocus();
    recorded->setSeen(true);
    recorded->setFocusLeaves(true);
    recorded->end();

    runloop::MainRunLoop playing(std::make_shared<runloop::VirtualClock>());
    Diary played;
    InputPlayer player(played, playing);
    for (const RecordedInput& input : recorded->inputs()) player.play(input);

    EXPECT_EQ(played.lines, diary->lines);
    EXPECT_EQ(playing.now_s(), 0.75);
}

TEST_F(RecordedContents, ArePlayedWithMiceWheelsAndKeys) {
    InputPlayer player(*diary, loop);
    loop.settle();

    for (const Input& input : std::vector<Input>{PointerInput{}, ScrollInput{}, KeyInput{}, FocusInput{},
                                                 FocusInput{FocusEnd::last}, FocusRule{}, SightInput{}, ReadingLook{}})
        player.play({0, input, true});

    EXPECT_THAT(diary->lines, ElementsAre("pointer@0", "scroll@0", "key@0", "dropFocus@0", "takeFocus@0", "setFocusLeaves@0",
                                          "setSeen@0", "reading@0"));
}

TEST_F(RecordedContents, PlayNothingOnAnElementThatIsNotThere) {
    InputPlayer player(*diary, loop);

    player.play({0, AssistiveInput{1, AssistiveAction::activate}, true});
    player.play({0, AssistiveInput{2, AssistiveAction::activate}, true});

    EXPECT_THAT(diary->lines, ElementsAre("reading@0", "activate@0", "reading@0"));
}

TEST(RecordedContentDeathTest, NeedsAContent) { EXPECT_DEATH(RecordedContent(nullptr), "A recorded content needs a content"); }

TEST(AssistiveOperation, DoesWhatItIsCalledWhereTheElementCan) {
    std::vector<std::string> done;
    accessibility::ReadingElement element;
    for (const AssistiveAction action : {AssistiveAction::activate, AssistiveAction::increase, AssistiveAction::decrease,
                                         AssistiveAction::reveal, AssistiveAction::revealWhole, AssistiveAction::focus})
        perform(element, action);
    element.activate = [&] { done.push_back("activate"); };
    element.adjust = [&](int step) { done.push_back("adjust by " + std::to_string(step)); };
    element.reveal = [&] { done.push_back("reveal"); };
    element.revealWhole = [&] { done.push_back("revealWhole"); };
    element.focus = [&] { done.push_back("focus"); };

    for (const AssistiveAction action : {AssistiveAction::activate, AssistiveAction::increase, AssistiveAction::decrease,
                                         AssistiveAction::reveal, AssistiveAction::revealWhole, AssistiveAction::focus})
        perform(element, action);

    EXPECT_THAT(done, ElementsAre("activate", "adjust by 1", "adjust by -1", "reveal", "revealWhole", "focus"));
}

} // namespace
} // namespace proupsells::host
