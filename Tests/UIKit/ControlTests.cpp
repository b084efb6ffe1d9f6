#include "Tests/UIKit/Screen.hpp"

#include "Platform/UIKit/Controls/UIButton.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

struct Receiver {
    explicit Receiver(Calls& calls) : calls(calls) {}
    void act() { calls.push_back("act"); }
    void actFor(UIControl& sender) { calls.push_back("act for " + sender.accessibilityIdentifier); }
    Calls& calls;
};

class ControlTest : public ScreenTest {
protected:
    ControlTest() : root(showRoot()), button(std::make_shared<UIButton>()), receiver(std::make_shared<Receiver>(calls)) {
        button->setFrame({{100, 100}, {50, 50}});
        button->accessibilityIdentifier = "button";
        root->view()->addSubview(button);
    }
    void note(UIControl::Event event, std::string text) {
        button->addAction([this, text](UIControl&) { calls.push_back(text); }, event);
    }

    std::shared_ptr<RecordingController> root;
    std::shared_ptr<UIButton> button;
    std::shared_ptr<Receiver> receiver;
};

TEST_F(ControlTest, ATapSendsItsActionsInTheOrderInWhichTheyWereAdded) {
    using enum UIControl::Event;
    button->addTarget(std::weak_ptr(receiver), &Receiver::act, touchUpInside);
    button->addTarget(std::weak_ptr(receiver), &Receiver::actFor, touchUpInside);
    note(touchDown, "down");

    tap({120, 120});

    EXPECT_THAT(calls, ElementsAre("down", "act", "act for button"));
}

TEST_F(ControlTest, ATargetIsHeldWeakly) {
    button->addTarget(std::weak_ptr(receiver), &Receiver::act, UIControl::Event::touchUpInside);
    std::weak_ptr<Receiver> gone = receiver;

    receiver.reset();
    tap({120, 120});

    EXPECT_TRUE(gone.expired());
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ControlTest, ARemovedTargetIsToldNothing) {
    using enum UIControl::Event;
    button->addTarget(std::weak_ptr(receiver), &Receiver::act, touchUpInside);
    button->addTarget(std::weak_ptr(receiver), &Receiver::act, touchDown);

    button->removeTarget(receiver.get(), touchUpInside);
    tap({120, 120});

    EXPECT_THAT(calls, ElementsAre("act"));
}

TEST_F(ControlTest, AFingerThatWandersOffAndBackStillTaps) {
    using enum UIControl::Event;
    note(touchDragExit, "exit");
    note(touchDragEnter, "enter");
    note(touchUpInside, "inside");
    note(touchUpOutside, "outside");

    touch(host::TouchPhase::began, {120, 120});
    EXPECT_TRUE(button->isHighlighted());
    touch(host::TouchPhase::moved, {120, 221}); // more than 70 points below
    EXPECT_FALSE(button->isHighlighted());
    touch(host::TouchPhase::moved, {120, 219});
    EXPECT_TRUE(button->isHighlighted());
    touch(host::TouchPhase::ended, {120, 219});
    EXPECT_FALSE(button->isHighlighted());

    EXPECT_THAT(calls, ElementsAre("exit", "enter", "inside"));
}

TEST_F(ControlTest, AFingerThatLiftsFarAwayDoesNotTap) {
    note(UIControl::Event::touchUpInside, "inside");
    note(UIControl::Event::touchUpOutside, "outside");

    touch(host::TouchPhase::began, {120, 120});
    touch(host::TouchPhase::ended, {300, 300});

    EXPECT_THAT(calls, ElementsAre("outside"));
}

TEST_F(ControlTest, ACancelledTouchIsNoTap) {
    note(UIControl::Event::touchUpInside, "inside");
    note(UIControl::Event::touchCancel, "cancel");

    touch(host::TouchPhase::began, {120, 120});
    touch(host::TouchPhase::cancelled, {120, 120});
    touch(host::TouchPhase::ended, {120, 120});

    EXPECT_THAT(calls, ElementsAre("cancel"));
    EXPECT_FALSE(button->isHighlighted());
}

TEST_F(ControlTest, ADisabledControlTakesTheTouchAndDoesNothing) {
    note(UIControl::Event::touchDown, "down");
    note(UIControl::Event::touchUpInside, "inside");
    button->setEnabled(false);

    tap({120, 120});

    EXPECT_THAT(calls, IsEmpty());
    const accessibility::SemanticNode node = window->semanticTree().children.at(0);
    EXPECT_TRUE(accessibility::contains(node.traits, accessibility::Traits::disabled));
    EXPECT_FALSE(node.activate);
}

TEST_F(ControlTest, AnActionMayReleaseTheControlAndChangeItsActions) {
    button->addAction(
        [this](UIControl& sender) {
            calls.push_back("first");
            sender.removeFromSuperview();
            note(UIControl::Event::touchUpInside, "late");
            button.reset();
        },
        UIControl::Event::touchUpInside);
    note(UIControl::Event::touchUpInside, "second");

    tap({120, 120});

    EXPECT_THAT(calls, ElementsAre("first", "second"));
}

TEST_F(ControlTest, SubviewsOfAButtonPassTheirTouchesOn) {
    const auto content = viewAt({{0, 0}, {50, 50}});
    button->addSubview(content);
    note(UIControl::Event::touchUpInside, "inside");

    tap({120, 120});

    EXPECT_THAT(calls, ElementsAre("inside"));
}

TEST_F(ControlTest, APressedButtonAnswersWithinOneFrame) {
    const auto content = viewAt({{0, 0}, {50, 50}});
    content->setBackgroundColor(UIColor::black);
    button->addSubview(content);
    EXPECT_FLOAT_EQ(painted().commands.at(0).opacity, 1);

    touch(host::TouchPhase::began, {120, 120});

    EXPECT_LT(painted().commands.at(0).opacity, 1);
}

TEST_F(ControlTest, AButtonIsAsLargeAsItsImageAndShowsItInTheMiddle) {
    auto image = std::make_shared<graphics::Image>();
    image->name = "close";
    image->size = {30, 20};
    button->setImage(image);

    EXPECT_EQ(button->intrinsicContentSize(), (geometry::Size{30, 20}));
    EXPECT_EQ(painted().commands.at(0).frame, (Rect{{110, 115}, {30, 20}}));
    const accessibility::SemanticNode node = window->semanticTree().children.at(0);
    EXPECT_EQ(node.type, "UIButton");
    EXPECT_EQ(node.image, "close");
    EXPECT_TRUE(node.isControl);
    EXPECT_TRUE(accessibility::contains(node.traits, accessibility::Traits::button));
}

TEST_F(ControlTest, ActivatingDoesWhatATapDoes) {
    note(UIControl::Event::touchUpInside, "inside");
    const auto activate = window->semanticTree().children.at(0).activate;

    activate();
    EXPECT_THAT(takeCalls(), ElementsAre("inside"));

    button->removeFromSuperview();
    button.reset();
    activate();
    EXPECT_THAT(calls, IsEmpty());
}

TEST_F(ControlTest, ActivatingRestsForWhatIsDisabledHiddenClosedToTouchesOrGone) {
    note(UIControl::Event::touchUpInside, "inside");
    const auto activate = window->semanticTree().children.at(0).activate;
    UIView& around = *button->superview();

    button->setEnabled(false);
    activate();
    button->setEnabled(true);
    button->setHidden(true);
    activate();
    button->setHidden(false);
    around.setUserInteractionEnabled(false);
    activate();
    around.setUserInteractionEnabled(true);
    EXPECT_THAT(calls, IsEmpty());
    activate();
    EXPECT_THAT(takeCalls(), ElementsAre("inside"));

    button->removeFromSuperview();
    activate();
    EXPECT_THAT(calls, IsEmpty());
}

// --- The responder chain ---

class Answering : public RecordingController {
public:
    using RecordingController::RecordingController;
    bool respond(Selector action, UIResponder* sender) override {
        if (action != answered) return false;
        senders.push_back(sender);
        return true;
    }
    Selector answered{"save"};
    std::vector<UIResponder*> senders;
};

TEST_F(ScreenTest, AnActionWithoutATargetGoesUpUntilSomebodyAnswers) {
    const auto outer = std::make_shared<Answering>("outer", calls), inner = std::make_shared<Answering>("inner", calls);
    window->setRootViewController(outer);
    outer->addChild(inner);
    outer->view()->addSubview(inner->view());
    const auto box = viewAt({});
    const auto button = std::make_shared<UIButton>();
    box->addSubview(button);
    inner->view()->addSubview(box);
    button->addTarget(nullptr, Selector{"save"}, UIControl::Event::touchUpInside);

    button->sendActions(UIControl::Event::touchUpInside);
    EXPECT_THAT(inner->senders, ElementsAre(button.get()));
    EXPECT_THAT(outer->senders, IsEmpty());

    inner->answered = {};
    button->sendActions(UIControl::Event::touchUpInside);
    EXPECT_THAT(outer->senders, ElementsAre(button.get()));

    outer->answered = {};
    EXPECT_FALSE(button->sendUpTheChain(Selector{"save"}, nullptr));
}

TEST_F(ScreenTest, ThePresenterAnswersForAPresentedController) {
    const auto root = std::make_shared<Answering>("root", calls);
    window->setRootViewController(root);
    const auto sheet = controller("sheet");
    root->present(sheet, false);

    EXPECT_TRUE(sheet->view()->sendUpTheChain(Selector{"save"}, nullptr));
    EXPECT_EQ(root->senders.size(), 1u);
}

// --- Taking touches over ---

class Taker : public UIView {
public:
    using UIView::UIView;
    bool takesOverTouch(const UITouch& touch) override {
        return touch.phase == host::TouchPhase::moved && std::abs(touch.windowLocation.y - touch.startWindowLocation.y) > 10;
    }
    void touchesBegan(const UITouch& touch) override { starts.push_back(touch.startLocation(*this)); }
    void touchesMoved(const UITouch& touch) override { moves.push_back(touch.location(*this)); }
    void touchesEnded(const UITouch&) override { ++ends; }
    std::vector<Point> starts, moves;
    int ends = 0;
};

TEST_F(ControlTest, AViewAroundTheTouchedOneMayTakeTheTouchOver) {
    const auto taker = std::make_shared<Taker>(Rect{{50, 50}, {200, 200}});
    button->setFrame({{10, 10}, {50, 50}});
    taker->addSubview(button);
    root->view()->addSubview(taker);
    note(UIControl::Event::touchCancel, "cancel");
    note(UIControl::Event::touchUpInside, "inside");

    touch(host::TouchPhase::began, {70, 70});
    touch(host::TouchPhase::moved, {70, 78});
    EXPECT_THAT(taker->starts, IsEmpty());
    touch(host::TouchPhase::moved, {70, 81});
    touch(host::TouchPhase::moved, {70, 90});
    touch(host::TouchPhase::ended, {70, 90});

    EXPECT_THAT(calls, ElementsAre("cancel"));
    EXPECT_THAT(taker->starts, ElementsAre(Point{20, 20}));
    EXPECT_THAT(taker->moves, ElementsAre(Point{20, 40}));
    EXPECT_EQ(taker->ends, 1);
}

TEST_F(ControlTest, AViewThatDoesNothingWithTouchesHandsThemOn) {
    class Keeper : public UIView {
    public:
        using UIView::UIView;
        void touchesBegan(const UITouch&) override { phases += "began "; }
        void touchesMoved(const UITouch& touch) override {
            phases += "moved to " + std::to_string(int(touch.location(*this).x)) + " ";
        }
        void touchesEnded(const UITouch&) override { phases += "ended "; }
        void touchesCancelled(const UITouch&) override { phases += "cancelled "; }
        std::string phases;
    };
    const auto keeper = std::make_shared<Keeper>(Rect{{50, 200}, {200, 200}});
    const auto inner = std::make_shared<UIView>(Rect{{0, 0}, {100, 100}});
    keeper->addSubview(inner);
    root->view()->addSubview(keeper);

    touch(host::TouchPhase::began, {60, 220});
    touch(host::TouchPhase::moved, {70, 220});
    touch(host::TouchPhase::ended, {70, 220});
    touch(host::TouchPhase::began, {60, 220});
    touch(host::TouchPhase::cancelled, {60, 220});

    EXPECT_EQ(keeper->phases, "began moved to 20 ended began cancelled ");
}

// --- The mouse ---

TEST_F(ControlTest, AButtonAnswersTheMouseThatRestsOnIt) {
    window->pointer(Point{120, 120});
    EXPECT_TRUE(window->pointsAtControl());
    EXPECT_NEAR(button->semanticNode({}).opacity, 0.88, 1e-9);

    window->pointer(Point{20, 20});
    EXPECT_FALSE(window->pointsAtControl());
    EXPECT_EQ(button->semanticNode({}).opacity, 1);
}

TEST_F(ControlTest, AButtonThatCannotBeUsedDoesNotAnswerTheMouse) {
    button->setEnabled(false);

    window->pointer(Point{120, 120});

    EXPECT_FALSE(window->pointsAtControl());
    EXPECT_FALSE(button->isHovered());
}

TEST_F(ControlTest, AButtonThatMovesAwayFromTheMouseForgetsIt) {
    window->pointer(Point{120, 120});
    ASSERT_TRUE(window->pointsAtControl());

    button->setFrame({{200, 200}, {50, 50}});

    EXPECT_FALSE(window->pointsAtControl());
    EXPECT_FALSE(button->isHovered());
}

TEST_F(ControlTest, TheMouseMeansNothingDuringATransition) {
    window->pointer(Point{120, 120});
    ASSERT_TRUE(window->pointsAtControl());

    root->present(controller("next"), true);

    EXPECT_FALSE(window->pointsAtControl());
    EXPECT_FALSE(button->isHovered());
}

} // namespace
} // namespace proupsells::uikit
