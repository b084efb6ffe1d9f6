#include <gmock/gmock.h>

#include "Tests/SwiftUI/TouchScreen.hpp"

using namespace proupsells;

using namespace swiftui;
using proupsells::tests::box;
using proupsells::tests::middle;
using proupsells::tests::TouchScreen;

namespace {

// A button of 100 × 50 in the middle of the screen.
View buttonInTheMiddle(Action action) {
    return Button{.action = std::move(action), .label = box(100, 50, "label")} | accessibilityIdentifier("button");
}

struct CountedTaps {
    int count = 0;
    TouchScreen screen{[this] { return buttonInTheMiddle([this] { ++count; }); }};
};

// Shows which label is pressed by its size.
class ShrinkingStyle final : public ButtonStyle {
public:
    View body(const ButtonStyleConfiguration& configuration, BuildContext&) const override {
        return configuration.label | padding(configuration.isPressed ? 0 : 10) | accessibilityIdentifier("styled");
    }
};

TEST(Button, ActsWhenTheFingerLifts) {
    CountedTaps taps;

    taps.screen.down(middle);
    EXPECT_EQ(taps.count, 0);

    taps.screen.up(middle);
    EXPECT_EQ(taps.count, 1);
}

TEST(Button, ActsOnceHoweverLongTheFingerStays) {
    CountedTaps taps;

    taps.screen.down(middle);
    taps.screen.wait(30);
    EXPECT_EQ(taps.count, 0);

    taps.screen.up(middle);
    EXPECT_EQ(taps.count, 1);
}

TEST(Button, AnswersInItsWholeFrameAndNotBesideIt) {
    CountedTaps taps;

    taps.screen.tap({100.5, 175.5});
    taps.screen.tap({199.5, 224.5});
    EXPECT_EQ(taps.count, 2);

    taps.screen.tap({99, 200});
    taps.screen.tap({150, 226});
    EXPECT_EQ(taps.count, 2);
}

TEST(Button, AnswersBetweenThePartsOfItsLabel) {
    int taps = 0;
    TouchScreen screen{[&] {
        return Button{.action = [&taps] { ++taps; },
                      .label = HStack{.spacing = 100, .content = {box(20, 20, "left"), box(20, 20, "right")}}};
    }};

    screen.tap(middle);

    EXPECT_EQ(taps, 1);
}

TEST(Button, StillCountsWithTheFingerALittleOffItsEdge) {
    CountedTaps taps;

    taps.screen.down(middle);
    taps.screen.move({150, 225 + 43});
    taps.screen.up({150, 225 + 43});

    EXPECT_EQ(taps.count, 1);
}

TEST(Button, LetsGoOfAFingerThatSlipsOff) {
    CountedTaps taps;

    taps.screen.down(middle);
    taps.screen.move({150, 225 + 45});
    taps.screen.up({150, 225 + 45});

    EXPECT_EQ(taps.count, 0);
}

TEST(Button, TakesUpAFingerThatComesBack) {
    CountedTaps taps;

    taps.screen.down(middle);
    taps.screen.move({150, 390});
    taps.screen.move(middle);
    taps.screen.up(middle);

    EXPECT_EQ(taps.count, 1);
}

TEST(Button, DoesNothingWhenTheTouchIsCancelled) {
    CountedTaps taps;

    taps.screen.down(middle);
    taps.screen.cancel();
    taps.screen.up(middle);

    EXPECT_EQ(taps.count, 0);
}

TEST(Button, NeverActsWhileItIsDisabled) {
    int taps = 0;
    TouchScreen screen{[&] { return buttonInTheMiddle([&taps] { ++taps; }) | disabled(true); }};

    screen.tap(middle);

    EXPECT_EQ(taps, 0);
    EXPECT_FALSE(screen.find("button").activate);
}

TEST(Button, DisabledUnderTheFingerDoesNotAct) {
    int taps = 0;
    bool isDisabled = false;
    TouchScreen screen{[&] { return buttonInTheMiddle([&taps] { ++taps; }) | disabled(isDisabled); }};
    screen.down(middle);

    isDisabled = true;
    screen.rebuild();
    screen.up(middle);

    EXPECT_EQ(taps, 0);
}

TEST(Button, DisabledKeepsTheTouchFromWhatIsAround) {
    int taps = 0;
    TouchScreen screen{
        [&] { return buttonInTheMiddle([] {}) | disabled(true) | onTapGesture([&taps] { ++taps; }) | disabled(false); }};

    screen.tap(middle);

    EXPECT_EQ(taps, 0);
}

// --- The mouse ---

TEST(Button, AnswersTheMouseThatRestsOnIt) {
    TouchScreen screen{[] { return buttonInTheMiddle([] {}); }};

    EXPECT_TRUE(screen.host().hover(middle));
    EXPECT_NEAR(screen.find("button").opacity, 0.88, 1e-9);

    EXPECT_FALSE(screen.host().hover(geometry::Point{10, 10}));
    EXPECT_EQ(screen.find("button").opacity, 1);
}

TEST(Button, DoesNotAnswerTheMouseWhileItIsDisabled) {
    TouchScreen screen{[] { return buttonInTheMiddle([] {}) | disabled(true); }};

    EXPECT_FALSE(screen.host().hover(middle));
    EXPECT_EQ(screen.find("button").opacity, 1);
}

TEST(Button, MayGoFromUnderTheMouse) {
    bool isThere = true;
    TouchScreen screen{[&] { return isThere ? buttonInTheMiddle([] {}) : View{}; }};
    ASSERT_TRUE(screen.host().hover(middle));

    isThere = false;
    screen.rebuild();

    EXPECT_FALSE(screen.host().hover(middle));
}

TEST(Button, RunsTheNewestAction) {
    int first = 0, second = 0;
    bool isSecond = false;
    TouchScreen screen{[&] { return buttonInTheMiddle([&] { ++(isSecond ? second : first); }); }};
    screen.down(middle);

    isSecond = true;
    screen.rebuild();
    screen.up(middle);

    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST(Button, MayLetGoOfTheWholeTreeInItsAction) {
    int taps = 0;
    std::shared_ptr<ViewHost>* host = nullptr;
    auto witness = std::make_shared<int>(7);
    TouchScreen screen{[&] {
        return buttonInTheMiddle([&taps, &host, witness] {
            host->reset();
            taps += *witness;
        });
    }};
    host = &screen.hostPointer();

    screen.tap(middle);

    EXPECT_EQ(taps, 7);
    EXPECT_EQ(screen.hostPointer(), nullptr);
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(Button, MayTakeItselfOutOfTheTreeAndUpdateInItsAction) {
    bool isThere = true;
    int taps = 0;
    ViewHost* host = nullptr;
    TouchScreen screen{[&] {
        return isThere ? buttonInTheMiddle([&, bytes = std::string(100, 'x')] {
            isThere = false;
            host->setNeedsUpdate();
            host->update();
            taps += int(bytes.size());
        })
                       : View{};
    }};
    host = &screen.host();

    screen.tap(middle);

    EXPECT_EQ(taps, 100);
    const accessibility::SemanticNode tree = screen.tree();
    EXPECT_EQ(accessibility::findByIdentifier(tree, "button"), nullptr);
}

TEST(Button, ThatLeavesUnderTheFingerDoesNotAct) {
    bool isThere = true;
    int taps = 0;
    TouchScreen screen{[&] { return isThere ? buttonInTheMiddle([&taps] { ++taps; }) : View{}; }};
    screen.down(middle);

    isThere = false;
    screen.rebuild();
    screen.up(middle);

    EXPECT_EQ(taps, 0);
}

TEST(Button, IsAControlInTheSemanticTree) {
    CountedTaps taps;
    const accessibility::SemanticNode button = taps.screen.find("button");

    EXPECT_EQ(button.type, "Button");
    EXPECT_TRUE(button.isControl);
    EXPECT_EQ(button.traits, accessibility::Traits::button);
    EXPECT_EQ(button.frame, (geometry::Rect{{100, 175}, {100, 50}}));

    button.activate();
    EXPECT_EQ(taps.count, 1);
}

TEST(Button, DisabledSaysSo) {
    TouchScreen screen{[&] { return buttonInTheMiddle([] {}) | disabled(true); }};

    EXPECT_EQ(screen.find("button").traits, accessibility::Traits::button | accessibility::Traits::disabled);
}

TEST(Button, CanBeActivatedAfterItHasGoneWithoutEffect) {
    bool isThere = true;
    int taps = 0;
    TouchScreen screen{[&] { return isThere ? buttonInTheMiddle([&taps] { ++taps; }) : View{}; }};
    const accessibility::SemanticNode button = screen.find("button");

    isThere = false;
    screen.rebuild();
    button.activate();

    EXPECT_EQ(taps, 0);
}

TEST(ButtonStyle, LearnsOfThePressAtOnce) {
    TouchScreen screen{[&] { return buttonInTheMiddle([] {}) | buttonStyle(std::make_shared<ShrinkingStyle>()); }};
    EXPECT_EQ(screen.frame("styled").size, (geometry::Size{120, 70}));

    screen.down(middle);
    EXPECT_EQ(screen.frame("styled").size, (geometry::Size{100, 50}));

    screen.move({150, 390});
    EXPECT_EQ(screen.frame("styled").size, (geometry::Size{120, 70}));

    screen.move(middle);
    EXPECT_EQ(screen.frame("styled").size, (geometry::Size{100, 50}));

    screen.up(middle);
    EXPECT_EQ(screen.frame("styled").size, (geometry::Size{120, 70}));
}

TEST(ButtonStyle, ReachesButtonsDeepInside) {
    const auto style = std::make_shared<ShrinkingStyle>();
    TouchScreen screen{[&] { return VStack{.content = {HStack{.content = {buttonInTheMiddle([] {})}}}} | buttonStyle(style); }};

    EXPECT_EQ(screen.frame("styled").size, (geometry::Size{120, 70}));
}

TEST(ButtonStyle, AutomaticDimsWhilePressedAndWhileDisabled) {
    bool isDisabled = false;
    TouchScreen screen{[&] { return buttonInTheMiddle([] {}) | disabled(isDisabled); }};
    EXPECT_EQ(screen.find("label").opacity, 1);

    screen.down(middle);
    EXPECT_LT(screen.find("label").opacity, 0.8);

    screen.up(middle);
    EXPECT_EQ(screen.find("label").opacity, 1);

    isDisabled = true;
    screen.rebuild();
    EXPECT_LT(screen.find("label").opacity, 0.8);
}

TEST(ButtonStyle, PlainNeverDims) {
    TouchScreen screen{[&] { return buttonInTheMiddle([] {}) | buttonStyle(ButtonStyle::plain()); }};

    screen.down(middle);

    EXPECT_EQ(screen.find("label").opacity, 1);
}

TEST(ButtonStyle, KeepsTheLabelsStateWhenThePressComesAndGoes) {
    struct Counter {
        View body(BuildContext& context) const {
            const Binding<int> builds = context.state<int>(0);
            return box(100, 50, "state" + std::to_string(builds.get())) | onAppear([builds] { builds.set(builds.get() + 1); });
        }
    };
    TouchScreen screen{
        [&] { return Button{.action = [] {}, .label = Counter{}} | buttonStyle(std::make_shared<ShrinkingStyle>()); }};

    screen.down(middle);
    screen.up(middle);

    screen.find("state1");
}

} // namespace
