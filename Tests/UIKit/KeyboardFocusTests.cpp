// Operating a window by keys.
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Rect;
using host::Key;
using testing::ElementsAre;
using testing::IsEmpty;

class KeyboardFocusTest : public ScreenTest {
protected:
    KeyboardFocusTest() : root(showRoot()), first(addButton(*root, "first", 100)) {}

    // Writes its name down when it is tapped.
    std::shared_ptr<UIButton> addButton(UIViewController& controller, const std::string& name, double y) {
        const auto button = std::make_shared<UIButton>();
        button->setFrame({{100, y}, {50, 50}});
        button->addAction([this, name](UIControl&) { calls.push_back(name); }, UIControl::Event::touchUpInside);
        controller.view()->addSubview(button);
        return button;
    }
    // Where the control in focus stands; the empty rectangle for none. Where there is one, there is a ring.
    Rect inFocus() {
        const accessibility::ReadingElement reading = window->reading();
        Rect frame;
        for (const accessibility::ReadingElement* element : accessibility::elementsOf(reading))
            if (element->isFocused) frame = element->frame;
        EXPECT_EQ(isRingPainted(), !frame.isEmpty());
        return frame;
    }
    bool isRingPainted() {
        const graphics::DisplayList list = painted();
        return std::any_of(list.commands.begin(), list.commands.end(), [](const graphics::Command& command) {
            return command.kind == graphics::CommandKind::strokeRoundedRectangle;
        });
    }

    std::shared_ptr<RecordingController> root;
    std::shared_ptr<UIButton> first;
};

TEST_F(KeyboardFocusTest, TabMovesItAndActivateTapsTheControl) {
    addButton(*root, "second", 200);
    EXPECT_FALSE(window->key(Key::activate));

    window->key(Key::tab);
    window->key(Key::activate);
    window->key(Key::tab);
    window->key(Key::activate);
    window->key(Key::tab);
    window->key(Key::activate);
    window->key(Key::backTab);
    window->key(Key::activate);

    EXPECT_THAT(calls, ElementsAre("first", "second", "first", "second"));
}

TEST_F(KeyboardFocusTest, ItsRingStandsAroundTheControlUntilATouch) {
    window->key(Key::tab);
    EXPECT_EQ(inFocus(), first->frame());

    tap({5, 5});

    EXPECT_THAT(painted().commands, IsEmpty());
}

TEST_F(KeyboardFocusTest, LeavesAtEitherEndWhereItMay) {
    window->setFocusLeaves(true);
    EXPECT_TRUE(window->key(Key::tab));
    EXPECT_FALSE(window->key(Key::tab));
    EXPECT_EQ(inFocus(), Rect{});

    EXPECT_TRUE(window->key(Key::backTab));
    EXPECT_FALSE(window->key(Key::backTab));
}

TEST_F(KeyboardFocusTest, ComesInAtEitherEnd) {
    addButton(*root, "second", 200);

    EXPECT_TRUE(window->takeFocus(host::FocusEnd::last));
    window->key(Key::activate);
    EXPECT_TRUE(window->takeFocus(host::FocusEnd::first));
    window->key(Key::activate);
    window->dropFocus();

    EXPECT_FALSE(window->key(Key::activate));
    EXPECT_THAT(calls, ElementsAre("second", "first"));
}

TEST_F(KeyboardFocusTest, StaysOutsideWhereThereIsNoControl) {
    first->removeFromSuperview();

    EXPECT_FALSE(window->takeFocus(host::FocusEnd::first));
    EXPECT_FALSE(window->key(Key::tab));
}

TEST_F(KeyboardFocusTest, BelongsToTheControlWhateverComesBeforeIt) {
    window->key(Key::tab);
    const auto other = std::make_shared<UIButton>();
    other->setFrame({{0, 0}, {50, 50}});
    other->addAction([this](UIControl&) { calls.push_back("other"); }, UIControl::Event::touchUpInside);
    root->view()->insertSubview(other, 0);

    window->key(Key::activate);

    EXPECT_THAT(calls, ElementsAre("first"));
    EXPECT_EQ(inFocus(), first->frame());
}

TEST_F(KeyboardFocusTest, GoesWithAControlThatGoesAndIsFoundAgainInItsPlace) {
    const auto second = addButton(*root, "second", 200), third = addButton(*root, "third", 300);
    window->key(Key::tab);
    window->key(Key::tab);

    second->removeFromSuperview();
    EXPECT_FALSE(window->key(Key::activate));
    EXPECT_EQ(inFocus(), Rect{});
    EXPECT_THAT(calls, IsEmpty());

    window->key(Key::tab);
    EXPECT_EQ(inFocus(), third->frame());
    third->removeFromSuperview();
    window->key(Key::backTab);
    EXPECT_EQ(inFocus(), first->frame());
}

TEST_F(KeyboardFocusTest, RestsWhileItsControlIsDisabled) {
    window->key(Key::tab);

    first->setEnabled(false);
    EXPECT_FALSE(window->key(Key::activate));
    EXPECT_EQ(inFocus(), Rect{});

    first->setEnabled(true);
    EXPECT_TRUE(window->key(Key::activate));
    EXPECT_THAT(calls, ElementsAre("first"));
}

TEST_F(KeyboardFocusTest, MovesIntoAPresentedScreenAndComesBackToTheControlThatOpenedIt) {
    const auto opener = addButton(*root, "open", 200);
    addButton(*root, "third", 300);
    const auto front = controller("front");
    const auto inside = addButton(*front, "inside", 400);
    opener->addAction([&](UIControl&) { root->present(front, true); }, UIControl::Event::touchUpInside);
    window->key(Key::tab);
    window->key(Key::tab);

    window->key(Key::activate);
    bed.runFor(transition_s + 0.1);
    EXPECT_EQ(inFocus().origin.x, inside->frame().minX());
    EXPECT_TRUE(window->key(Key::activate));
    EXPECT_EQ(calls.back(), "inside");

    front->dismiss(true);
    bed.runFor(transition_s + 0.1);
    EXPECT_EQ(inFocus(), opener->frame());
    calls.clear();
    window->key(Key::activate);
    EXPECT_EQ(calls.front(), "open");
}

TEST_F(KeyboardFocusTest, IsNowhereInAPresentedScreenWhileNobodyUsesKeys) {
    const auto front = controller("front");
    addButton(*front, "inside", 400);

    root->present(front, false);

    EXPECT_EQ(inFocus(), Rect{});
    EXPECT_FALSE(window->key(Key::activate));
}

TEST_F(KeyboardFocusTest, AKeyThatIsHeldDownActivatesNothingTwice) {
    window->key(Key::tab);
    EXPECT_TRUE(window->key(Key::activate));
    for (int repetition = 0; repetition < 24; ++repetition) EXPECT_TRUE(window->key(Key::activate, true));

    EXPECT_THAT(calls, ElementsAre("first"));
}

TEST_F(KeyboardFocusTest, AKeyThatIsHeldDownMovesOn) {
    addButton(*root, "second", 200);
    window->key(Key::tab);
    window->key(Key::tab, true);

    window->key(Key::activate);

    EXPECT_THAT(calls, ElementsAre("second"));
}

// And nobody around the window does, either.
TEST_F(KeyboardFocusTest, NothingIsActivatedDuringATransition) {
    window->key(Key::tab);
    root->present(controller("front"), true);
    calls.clear();

    EXPECT_TRUE(window->key(Key::activate));
    EXPECT_TRUE(window->key(Key::escape));
    EXPECT_TRUE(window->key(Key::space));
    EXPECT_FALSE(window->key(Key::tab));

    EXPECT_THAT(calls, IsEmpty());
    bed.runFor(transition_s + 0.1);
}

TEST_F(KeyboardFocusTest, EscapeMeansNothingToAScreenThatCannotBeLeft) { EXPECT_FALSE(window->key(Key::escape)); }

// A group that begins with a text and whose chosen button cannot be used, and nothing else on the screen.
TEST_F(KeyboardFocusTest, ComesIntoAGroupWhoseChosenButtonIsDisabled) {
    first->removeFromSuperview();
    const auto group = std::make_shared<UIView>();
    group->accessibilitySpoken = {.role = accessibility::Role::radioGroup, .name = "plans"};
    group->setFrame({{0, 0}, {375, 400}});
    root->view()->addSubview(group);
    const auto addRadioButton = [&](const std::string& name, double y, bool isChecked) {
        const auto button = addButton(*root, name, y);
        button->accessibilitySpoken = {.role = accessibility::Role::radioButton, .name = name, .isChecked = isChecked};
        group->addSubview(button);
        return button;
    };
    addRadioButton("chosen", 100, true)->setEnabled(false);
    const auto other = addRadioButton("other", 200, false);

    EXPECT_TRUE(window->key(Key::tab));
    EXPECT_EQ(inFocus(), other->frame());
    EXPECT_TRUE(window->key(Key::tab));
    EXPECT_EQ(inFocus(), other->frame());
}

} // namespace
} // namespace proupsells::uikit
