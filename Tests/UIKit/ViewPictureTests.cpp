// The limits of what is painted, touched, covered and described.
#include <numbers>

#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr UIColor paper{"paper", graphics::rgb(0x123456), graphics::rgb(0x654321)};

// An opaque view of 100 by 100.
struct CoverTest : testing::Test {
    CoverTest() { view.setBackgroundColor(paper); }
    bool coversAll() const { return view.covers(all); }

    UIView view{{{10, 10}, {100, 100}}};
    const Rect all{{0, 0}, {100, 100}};
};

TEST_F(CoverTest, AViewCoversNothingBeyondAnyOfItsEdges) {
    EXPECT_TRUE(coversAll());
    EXPECT_TRUE(view.covers({{20, 20}, {10, 10}}));

    EXPECT_FALSE(view.covers({{-1, 0}, {50, 50}}));
    EXPECT_FALSE(view.covers({{0, -1}, {50, 50}}));
    EXPECT_FALSE(view.covers({{51, 50}, {50, 50}}));
    EXPECT_FALSE(view.covers({{50, 51}, {50, 50}}));
}

TEST_F(CoverTest, AScrolledViewCoversWhatItShows) {
    view.setBoundsOrigin({0, 40});

    EXPECT_TRUE(view.covers({{0, 40}, {100, 100}}));
    EXPECT_FALSE(coversAll());
}

TEST_F(CoverTest, NeitherAHiddenNorATurnedNorARoundViewCovers) {
    view.setHidden(true);
    EXPECT_FALSE(coversAll());
    view.setHidden(false);
    view.setTransform(geometry::Transform::translation(1, 0));
    EXPECT_FALSE(coversAll());
    view.setTransform({});
    view.setCornerRadius(1);
    EXPECT_FALSE(coversAll());
    view.setCornerRadius(0);
    EXPECT_TRUE(coversAll());
}

TEST_F(CoverTest, AViewInsideCoversInItsPlace) {
    const auto inside = viewAt({{-20, -30}, {200, 200}});
    inside->setBackgroundColor(paper);
    inside->setBoundsOrigin({7, 8});
    view.setBackgroundColor(std::nullopt);
    EXPECT_FALSE(coversAll());
    view.addSubview(inside);
    EXPECT_TRUE(coversAll());
    EXPECT_TRUE(view.covers({{-20, -30}, {200, 200}}));
    EXPECT_FALSE(view.covers({{-21, -30}, {200, 200}}));
    EXPECT_FALSE(view.covers({{-20, -30}, {200, 201}}));

    inside->setTransform(geometry::Transform::translation(1, 0));
    EXPECT_FALSE(coversAll());
}

TEST_F(CoverTest, WhatIsClippedAwayCoversNothing) {
    const auto inside = viewAt({{-20, -20}, {200, 200}});
    inside->setBackgroundColor(paper);
    view.setBackgroundColor(std::nullopt);
    view.addSubview(inside);
    view.setClipsToBounds(true);
    EXPECT_TRUE(coversAll());
    EXPECT_FALSE(view.covers({{0, 0}, {101, 100}}));

    view.setCornerRadius(1);

    EXPECT_FALSE(coversAll());
}

// --- Touches ---

TEST(HitOpacity, AViewThatCanHardlyBeSeenLetsTouchesThrough) {
    UIView view({{0, 0}, {10, 10}});

    view.setAlpha(0.01);
    EXPECT_EQ(view.hitTest({5, 5}), &view);
    view.setAlpha(0.009);
    EXPECT_EQ(view.hitTest({5, 5}), nullptr);
}

// --- Values ---

TEST(ViewValues, StayWithinTheirBounds) {
    UIView view;

    view.setAlpha(1.5);
    EXPECT_EQ(view.alpha(), 1);
    view.setAlpha(-0.5);
    EXPECT_EQ(view.alpha(), 0);
    view.setCornerRadius(-3);
    EXPECT_EQ(view.cornerRadius(), 0);
    view.setCornerRadius(3);
    EXPECT_EQ(view.cornerRadius(), 3);
}

TEST(ViewValues, TheTintIsTheNearestOneAround) {
    UIView outer;
    const auto middle = viewAt({}), inner = viewAt({});
    outer.addSubview(middle);
    middle->addSubview(inner);
    EXPECT_EQ(inner->tintColor(), std::nullopt);

    outer.setTintColor(UIColor::black);
    EXPECT_EQ(inner->tintColor(), UIColor::black);
    middle->setTintColor(UIColor::white);
    EXPECT_EQ(inner->tintColor(), UIColor::white);
    EXPECT_EQ(outer.tintColor(), UIColor::black);
}

TEST(ViewValues, AViewIsADescendantOfItselfAndOfWhatIsAroundItOnly) {
    const auto outer = viewAt({}), inner = viewAt({}), other = viewAt({});
    outer->addSubview(inner);
    outer->addSubview(other);

    EXPECT_TRUE(inner->isDescendantOf(*inner));
    EXPECT_TRUE(inner->isDescendantOf(*outer));
    EXPECT_FALSE(outer->isDescendantOf(*inner));
    EXPECT_FALSE(inner->isDescendantOf(*other));
}

TEST(ViewValues, APlainViewFitsWhateverIsOffered) {
    class WideView : public UIView {
    public:
        Size intrinsicContentSize() const override { return {30, noIntrinsicMetric}; }
    };
    class FlatView : public UIView {
    public:
        Size intrinsicContentSize() const override { return {noIntrinsicMetric, 30}; }
    };
    EXPECT_EQ(UIView().sizeThatFits({50, 60}), (Size{50, 60}));
    EXPECT_EQ(UIView().sizeThatFits({}), (Size{0, 0}));
    EXPECT_EQ(WideView().sizeThatFits({50, 60}), (Size{30, 60}));
    EXPECT_EQ(FlatView().sizeThatFits({50, 60}), (Size{50, 30}));
    EXPECT_EQ(UIView().naturalSizeFor({50, 60}), (Size{noIntrinsicMetric, noIntrinsicMetric}));
    EXPECT_EQ(WideView().naturalSizeFor({50, 60}), (Size{30, noIntrinsicMetric}));
    EXPECT_EQ(FlatView().naturalSizeFor({50, 60}), (Size{noIntrinsicMetric, 30}));
}

TEST(ViewValues, AViewThatWrapsIsAsHighAsItsGivenWidthMakesIt) {
    class Wrapping : public UIView {
    public:
        Size intrinsicContentSize() const override { return {100, 10}; }
        Size sizeThatFits(const geometry::ProposedSize& proposal) const override { return {1, 1000 / *proposal.width}; }
    };
    EXPECT_EQ(Wrapping().naturalSizeFor({50, 60}), (Size{100, 20}));
    EXPECT_EQ(Wrapping().naturalSizeFor({100, 60}), (Size{100, 10}));
}

TEST(ViewValues, LayoutThatNeverSettlesIsTriedSixteenTimesAtOnce) {
    class Restless : public UIView {
    public:
        void layoutSubviews() override {
            ++layouts;
            setNeedsLayout();
        }
        int layouts = 0;
    };
    const auto view = std::make_shared<Restless>();

    view->layoutIfNeeded();

    EXPECT_EQ(view->layouts, 16);
}

TEST(ViewValues, APinnedViewIsNeverSmallerThanNothing) {
    UIView outer({{0, 0}, {10, 10}});
    const auto pinned = viewAt({});
    pinned->fillSuperview({.top = 2, .leading = 8, .bottom = 9, .trailing = 8});
    outer.addSubview(pinned);

    outer.layoutIfNeeded();

    EXPECT_EQ(pinned->frame(), (Rect{{8, 2}, {0, 0}}));
}

// --- Picture and description ---

TEST_F(ScreenTest, AFadedOutViewIsNeitherPaintedNorOnScreen) {
    const auto root = showRoot();
    const auto view = viewAt({{10, 10}, {20, 20}});
    view->setBackgroundColor(paper);
    root->view()->addSubview(view);
    view->setAlpha(0);

    EXPECT_THAT(painted().commands, IsEmpty());
    EXPECT_FALSE(window->semanticTree().children.at(0).isOnScreen);
    view->setAlpha(0.01);
    EXPECT_EQ(painted().commands.size(), 1u);
    EXPECT_TRUE(window->semanticTree().children.at(0).isOnScreen);
    view->setHidden(true);
    EXPECT_FALSE(window->semanticTree().children.at(0).isOnScreen);
    EXPECT_EQ(window->semanticTree().children.at(0).opacity, 0);
}

TEST_F(ScreenTest, AViewSaysHowItIsTurnedAndHowRoundItIs) {
    const auto root = showRoot();
    const auto view = viewAt({{10, 10}, {20, 40}}), plain = viewAt({{50, 50}, {10, 10}});
    view->setBackgroundColor(paper);
    view->setCornerRadius(3);
    view->setTransform(geometry::Transform::scaling(2, 2).then(geometry::Transform::rotation(std::numbers::pi / 2)));
    plain->setBackgroundColor(paper);
    plain->setTransform(geometry::Transform::translation(5, 0));
    root->view()->addSubview(view);
    root->view()->addSubview(plain);

    const accessibility::SemanticNode tree = window->semanticTree();

    const accessibility::SemanticNode& turned = tree.children.at(0);
    EXPECT_NEAR(turned.scale.value(), 2, 1e-9);
    EXPECT_NEAR(turned.rotation_degrees.value(), 90, 1e-9);
    EXPECT_EQ(turned.shape->fill, "paper");
    EXPECT_EQ(turned.shape->cornerRadius, 3);
    EXPECT_FALSE(turned.clip);
    EXPECT_NEAR(turned.frame.minX(), -20, 1e-9);
    EXPECT_NEAR(turned.frame.minY(), 10, 1e-9);
    EXPECT_NEAR(turned.frame.width(), 80, 1e-9);
    EXPECT_NEAR(turned.frame.height(), 40, 1e-9);
    const accessibility::SemanticNode& straight = tree.children.at(1);
    EXPECT_FALSE(straight.scale);
    EXPECT_FALSE(straight.rotation_degrees);
    EXPECT_EQ(straight.shape->cornerRadius, std::nullopt);
    EXPECT_FALSE(tree.shape);
}

TEST_F(ScreenTest, AHiddenViewDoesNotMoveByItself) {
    class Moving : public UIView {
    public:
        bool isAnimating() const override { return true; }
    };
    UIView outer;
    const auto still = viewAt({}), around = viewAt({});
    outer.addSubview(still);
    outer.addSubview(around);
    EXPECT_FALSE(outer.isAnimating());

    around->addSubview(std::make_shared<Moving>());
    EXPECT_TRUE(outer.isAnimating());
    around->setHidden(true);
    EXPECT_FALSE(outer.isAnimating());
}

TEST_F(ScreenTest, AnImageIsPaintedInTheTintOfItsScheme) {
    auto image = std::make_shared<graphics::Image>();
    image->name = "tile";
    image->size = {10, 10};
    const auto view = std::make_shared<UIImageView>(image), empty = std::make_shared<UIImageView>();
    view->setFrame({{0, 0}, {10, 10}});
    empty->setFrame({{0, 0}, {30, 10}});
    const auto root = showRoot();
    root->view()->addSubview(view);
    root->view()->addSubview(empty);
    const auto tint = [&] { return painted().commands.at(0).color; };

    EXPECT_EQ(painted().commands.size(), 1u);
    EXPECT_EQ(tint(), UIColor::black.light);
    root->view()->setTintColor(paper);
    EXPECT_EQ(tint(), paper.light);
    window->setTraits({.userInterfaceStyle = graphics::ColorScheme::dark});
    EXPECT_EQ(tint(), paper.dark);

    EXPECT_EQ(empty->intrinsicContentSize(), (Size{noIntrinsicMetric, noIntrinsicMetric}));
    EXPECT_EQ(empty->imageFrame(), (Rect{{0, 0}, {30, 10}}));
    const accessibility::SemanticNode tree = window->semanticTree();
    EXPECT_EQ(tree.children.at(1).image, "");
    for (const accessibility::SemanticNode& node : tree.children)
        EXPECT_TRUE(accessibility::contains(node.traits, accessibility::Traits::image));
    EXPECT_EQ(root->view()->hitTest({5, 5}), root->view().get());
}

TEST(ImageView, KeepsAFlatImageAsItIs) {
    for (const Size size : {Size{0, 10}, Size{10, 0}}) {
        auto image = std::make_shared<graphics::Image>();
        image->size = size;
        UIImageView view(image);
        view.setFrame({{0, 0}, {30, 30}});
        view.setContentMode(UIImageView::ContentMode::aspectFit);

        EXPECT_EQ(view.imageFrame(), (Rect{{15 - size.width / 2, 15 - size.height / 2}, size}));
    }
}

// --- Revealing ---

struct RevealTest : ScrollViewTest {
    RevealTest() {
        content->addSubview(item);
        window->layoutIfNeeded();
    }
    accessibility::SemanticNode node() { return window->semanticTree().children.at(0).children.at(0).children.at(0); }

    std::shared_ptr<UIView> item = viewAt({{0, 1000}, {375, 100}});
};

TEST_F(RevealTest, BringsTheMiddleIntoSight) {
    node().reveal();

    // A point of the view's middle stands at the lower edge.
    EXPECT_EQ(y(), 1050 + 1 - 800);
}

TEST_F(RevealTest, BringsTheWholeIntoSightWithRoomAroundIt) {
    node().revealWhole();
    EXPECT_EQ(y(), 1100 + 48 - 800);

    list->setContentOffset({0, 1200});
    node().revealWhole();
    EXPECT_EQ(y(), 1000 - 48);
}

TEST_F(RevealTest, DoesNothingForWhatHasLeft) {
    const auto reveal = node().reveal;

    item->removeFromSuperview();
    reveal();
    item.reset();
    reveal();

    EXPECT_EQ(y(), 0);
}

TEST_F(RevealTest, IsThereOnlyInsideOfWhatScrolls) {
    const accessibility::SemanticNode tree = window->semanticTree();

    EXPECT_FALSE(tree.reveal);
    EXPECT_FALSE(tree.children.at(0).reveal);
    EXPECT_TRUE(tree.children.at(0).children.at(0).reveal);
}

// --- Safe areas ---

TEST_F(ScreenTest, ASafeAreaIsNeverSmallerThanNothing) {
    window->setSize({375, 800}, {20, 5, 34, 6});
    const auto root = showRoot();
    const auto thin = viewAt({{0, 0}, {8, 10}});
    thin->setBoundsOrigin({3, 4});
    root->view()->addSubview(thin);

    EXPECT_EQ(thin->safeAreaInsets(), (geometry::PhysicalInsets{20, 5, 0, 0}));
    EXPECT_EQ(thin->safeAreaRect(), (Rect{{8, 24}, {3, 0}}));
}

TEST_F(ScreenTest, AControllerIsToldOfItsSafeAreaOnceForEachChange) {
    class Told : public UIViewController {
    public:
        void viewSafeAreaInsetsDidChange() override { ++changes; }
        int changes = 0;
    };
    const auto told = std::make_shared<Told>();
    window->setRootViewController(told);
    bed.settle();
    const int before = told->changes;

    window->setSize({375, 800}, {20, 0, 34, 0});
    bed.settle();
    window->setSize({375, 800}, {20, 0, 34, 0});
    told->view()->setNeedsLayout();
    bed.settle();

    EXPECT_EQ(told->changes, before + 1);
}

} // namespace
} // namespace proupsells::uikit
