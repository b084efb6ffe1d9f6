// What passes the border between the two layers: the mouse, sizes before a layout, what is revealed, and what goes on by itself.
#include "Tests/Hosting/HostingScreen.hpp"

#include "Platform/Hosting/UIViewRepresentable.hpp"
#include "Platform/SwiftUI/Views/Button.hpp"
#include "Platform/UIKit/Controls/UIButton.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells::hosting {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using namespace swiftui;

// A button of the retained layer in a declarative tree.
struct RetainedButton {
    std::shared_ptr<uikit::UIButton> button;

    using UIViewType = uikit::UIButton;
    struct Coordinator {};
    std::shared_ptr<Coordinator> makeCoordinator() const { return std::make_shared<Coordinator>(); }
    std::shared_ptr<UIViewType> makeUIView(const UIViewRepresentableContext<RetainedButton>&) const { return button; }
    void updateUIView(UIViewType&, const UIViewRepresentableContext<RetainedButton>&) const {}
    Element* makeElement() && { return newRepresentable(std::move(*this)); }
};

TEST_F(HostingTest, TheMouseReachesAViewOfTheRetainedLayer) {
    const auto button = std::make_shared<uikit::UIButton>();
    show([button]() -> View { return RetainedButton{button} | frame(50, 50); });
    bed.settle();

    window->pointer(Point{200, 400});
    EXPECT_TRUE(window->pointsAtControl());
    EXPECT_TRUE(button->isHovered());
    window->pointer(Point{20, 20});

    EXPECT_FALSE(window->pointsAtControl());
    EXPECT_FALSE(button->isHovered());
}

TEST_F(HostingTest, ACancelledTouchReachesAViewOfTheRetainedLayer) {
    const auto button = std::make_shared<uikit::UIButton>();
    for (const auto& [event, name] :
         std::vector<std::pair<uikit::UIControl::Event, std::string>>{{uikit::UIControl::Event::touchDown, "down"},
                                                                      {uikit::UIControl::Event::touchCancel, "cancel"},
                                                                      {uikit::UIControl::Event::touchUpInside, "inside"},
                                                                      {uikit::UIControl::Event::touchDragExit, "exit"}})
        button->addAction([this, name = name](uikit::UIControl&) { calls.push_back(name); }, event);
    show([button]() -> View { return RetainedButton{button} | frame(50, 50); });
    bed.settle();

    touch(host::TouchPhase::began, {200, 400});
    touch(host::TouchPhase::moved, {200, 600});
    touch(host::TouchPhase::cancelled, {200, 600});
    tap({200, 400});

    EXPECT_THAT(calls, testing::ElementsAre("down", "exit", "cancel", "down", "inside"));
}

TEST_F(HostingTest, ATreeIsMeasuredInItsNewTraitsBeforeItIsLaidOut) {
    const auto controller = show([]() -> View { return Text{"ab"} | font({.size = 16}); });
    bed.settle();
    const Size before = controller->hostingView().sizeThatFits({});

    window->setTraits({.preferredContentSizeCategory = graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge});

    EXPECT_GT(controller->hostingView().sizeThatFits({}).height, before.height);
}

TEST_F(HostingTest, WhatIsRevealedIsScrolledToInTheViewsAroundTheTree) {
    const auto root = std::make_shared<uikit::UIViewController>();
    window->setRootViewController(root);
    const auto list = std::make_shared<uikit::UIScrollView>();
    list->setFrame({{0, 0}, {400, 800}});
    list->setContentSize({2000, 3000});
    const auto tree = UIHostingView::create(
        []() -> View { return ColorView{graphics::Color::black} | frame(50, 100) | accessibilityIdentifier("box"); });
    tree->setFrame({{1000, 2000}, {50, 100}});
    tree->setShown(true);
    list->addSubview(tree);
    root->view()->addSubview(list);
    bed.settle();

    find("box").revealWhole();
    EXPECT_EQ(list->contentOffset(), (Point{1050 - 400, 2100 + 48 - 800}));
    list->setContentOffset({});
    find("box").reveal();
    EXPECT_EQ(list->contentOffset(), (Point{1050 - 400, 2100 - 800}));

    list->setContentOffset({});
    const auto reveal = find("box").reveal;
    tree->removeFromSuperview();
    reveal();
    EXPECT_EQ(list->contentOffset(), (Point{}));
}

TEST_F(HostingTest, ATreeTakesTouchesOnlyWhereItIsSeen) {
    const auto controller = show([]() -> View { return Rectangle(); });
    UIHostingView& tree = controller->hostingView();
    bed.settle();
    EXPECT_EQ(tree.hitTest({10, 10}), &tree);
    EXPECT_EQ(tree.hitTest({-1, 10}), nullptr);

    tree.setAlpha(0);
    EXPECT_EQ(tree.hitTest({10, 10}), nullptr);
    tree.setAlpha(1);
    tree.setUserInteractionEnabled(false);
    EXPECT_EQ(tree.hitTest({10, 10}), nullptr);
    tree.setUserInteractionEnabled(true);
    tree.setHidden(true);
    EXPECT_EQ(tree.hitTest({10, 10}), nullptr);
    EXPECT_FALSE(tree.isAnimating());
}

TEST_F(HostingTest, ViewsBesideTheTreeArePaintedAndDescribedOverIt) {
    const auto controller = show([]() -> View { return ColorView{graphics::Color::black} | accessibilityIdentifier("below"); });
    const auto above = std::make_shared<uikit::UIView>(Rect{{10, 10}, {20, 20}});
    above->setBackgroundColor(graphics::Color::white);
    above->accessibilityIdentifier = "above";
    controller->hostingView().addSubview(above);
    bed.settle();

    const auto commands = painted().commands;

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[1].frame, (Rect{{10, 10}, {20, 20}}));
    const accessibility::SemanticNode tree = window->semanticTree();
    ASSERT_EQ(tree.children.size(), 2u);
    EXPECT_EQ(tree.children[0].identifier, "below");
    EXPECT_EQ(tree.children[1].identifier, "above");
}

TEST_F(HostingTest, ATouchThatNothingInTheTreeTakesGoesOn) {
    class Keeper : public uikit::UIView {
    public:
        void touchesBegan(const uikit::UITouch&) override { ++count; }
        int count = 0;
    };
    const auto root = std::make_shared<uikit::UIViewController>();
    window->setRootViewController(root);
    const auto keeper = std::make_shared<Keeper>();
    keeper->setFrame({{0, 0}, {400, 800}});
    const auto tree = UIHostingView::create([]() -> View { return Button{.action = [] {}, .label = Rectangle()} | frame(50, 50); });
    tree->setFrame({{0, 0}, {400, 800}});
    tree->setShown(true);
    keeper->addSubview(tree);
    root->view()->addSubview(keeper);
    bed.settle();

    tap({200, 400});
    EXPECT_EQ(keeper->count, 0);
    tap({10, 10});
    EXPECT_EQ(keeper->count, 1);
}

} // namespace
} // namespace proupsells::hosting
