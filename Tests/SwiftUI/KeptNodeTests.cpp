// Nodes of the semantic tree that somebody has kept, and uses after the screen has changed.
#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using proupsells::tests::box;
using proupsells::tests::TouchScreen;

// A button and a view with a gesture, whose nodes were looked at when both could be used.
class KeptNode : public testing::Test {
protected:
    View root() {
        if (!isThere) return View{};
        const Action action = isWired ? Action([this, tap = tap] { taps += tap; }) : Action();
        return VStack{.content = {Button{.action = action, .label = box(100, 50, "label")} | accessibilityIdentifier("button"),
                                  box(100, 50, "gesture") | onTapGesture(action)}} |
               disabled(isDisabled) | transition(AnyTransition::opacity());
    }
    void activateBoth() {
        button.activate();
        gesture.activate();
    }

    bool isThere = true, isDisabled = false, isWired = true;
    int taps = 0, tap = 1;
    TouchScreen screen{[this] { return root(); }};
    const accessibility::SemanticNode button = screen.find("button"), gesture = screen.find("gesture");
};

TEST_F(KeptNode, ActsWhileNothingHasChanged) {
    activateBoth();

    EXPECT_EQ(taps, 2);
}

TEST_F(KeptNode, RunsTheNewestActionEvenBeforeTheUpdate) {
    tap = 10;
    screen.host().setNeedsUpdate();

    activateBoth();

    EXPECT_EQ(taps, 20);
}

TEST_F(KeptNode, RestsOnceDisabled) {
    isDisabled = true;
    screen.rebuild();

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST_F(KeptNode, RestsWhenTheUpdateThatDisablesItIsStillDue) {
    isDisabled = true;
    screen.host().setNeedsUpdate();

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST_F(KeptNode, RestsWithoutAnAction) {
    isWired = false;
    screen.rebuild();

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST_F(KeptNode, RestsOnceGone) {
    isThere = false;
    screen.rebuild();

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST_F(KeptNode, RestsWhenTheUpdateThatTakesItAwayIsStillDue) {
    isThere = false;
    screen.host().setNeedsUpdate();

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST_F(KeptNode, RestsWhileItIsOnItsWayOut) {
    isThere = false;
    withAnimation(motion::Animation{.duration_s = 2}, [&] { screen.host().setNeedsUpdate(); });
    screen.settle();
    screen.wait(1);
    const accessibility::SemanticNode tree = screen.tree();
    ASSERT_EQ(accessibility::findAllByType(tree, "Button").size(), 1u) << "It should still be seen";

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST_F(KeptNode, RestsWhileTheTreeIsNotShown) {
    screen.host().setVisible(false);
    activateBoth();
    EXPECT_EQ(taps, 0);

    screen.host().setVisible(true);
    activateBoth();
    EXPECT_EQ(taps, 2);
}

TEST_F(KeptNode, RestsAfterTheTree) {
    screen.hostPointer().reset();

    activateBoth();

    EXPECT_EQ(taps, 0);
}

TEST(KeptActivation, RestsWhileTheTreeEnds) {
    accessibility::SemanticNode button;
    int taps = 0, farewells = 0;
    TouchScreen screen{[&] {
        return Button{.action = [&taps] { ++taps; }, .label = box(100, 50, "label")} | accessibilityIdentifier("button") |
               onDisappear([&button, &farewells] {
                   ++farewells;
                   button.activate();
               });
    }};
    button = screen.find("button");

    screen.hostPointer().reset();

    EXPECT_EQ(farewells, 1);
    EXPECT_EQ(taps, 0);
}

TEST(KeptReveal, ScrollsNothingOnceTheViewHasGone) {
    bool isThere = true;
    TouchScreen screen{[&] {
        return isThere ? View(ScrollView{.content = VStack{.spacing = 0, .content = {box(100, 1000, "top"), box(100, 50, "last")}}})
                       : View(box(100, 100, "other"));
    }};
    const accessibility::SemanticNode last = screen.find("last");
    ASSERT_TRUE(last.reveal);

    isThere = false;
    screen.rebuild();
    last.reveal();
    screen.settle();
    screen.find("other");

    screen.hostPointer().reset();
    last.reveal();
}

// An action that has the screen brought up to date at once, as an event loop of the host's would, and whose view is then gone.
TEST(ActionThatTakesItsViewAway, HasWhatItHoldsUntilItIsDone) {
    bool isThere = true, hadIt = false, hasRun = false;
    std::weak_ptr<int> held;
    ViewHost* host = nullptr;
    TouchScreen screen{[&] {
        if (!isThere) return View{};
        const auto token = std::make_shared<int>(1);
        held = token;
        const auto act = [&, token] {
            hasRun = true;
            isThere = false;
            host->setNeedsUpdate();
            host->update();
            hadIt = !held.expired();
        };
        return View{Button{.action = act, .label = box(100, 50, "label")} | accessibilityIdentifier("button")};
    }};
    host = &screen.host();

    screen.find("button").activate();

    EXPECT_TRUE(hasRun);
    EXPECT_TRUE(hadIt);
    EXPECT_TRUE(held.expired());
}

} // namespace
} // namespace proupsells::swiftui::tests
