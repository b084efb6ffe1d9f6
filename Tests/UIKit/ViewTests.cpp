#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::ElementsAre;
using testing::IsEmpty;

// --- Hierarchy ---

TEST(ViewHierarchy, SubviewsStandInTheOrderInWhichTheyWereInserted) {
    UIView parent;
    const auto a = viewAt({}), b = viewAt({}), c = viewAt({}), d = viewAt({});

    parent.addSubview(b);
    parent.insertSubview(a, 0);
    parent.insertSubviewAbove(c, *b);
    parent.insertSubviewBelow(d, *b);

    EXPECT_THAT(parent.subviews(), ElementsAre(a, d, b, c));
}

TEST(ViewHierarchy, AViewThatIsAddedAgainComesToTheFront) {
    UIView parent;
    const auto a = viewAt({}), b = viewAt({});
    parent.addSubview(a);
    parent.addSubview(b);

    parent.addSubview(a);

    EXPECT_THAT(parent.subviews(), ElementsAre(b, a));
}

TEST(ViewHierarchy, AViewLeavesItsFormerSuperview) {
    UIView first, second;
    first.addSubview(viewAt({}));

    second.addSubview(first.subviews().front());

    EXPECT_THAT(first.subviews(), IsEmpty());
    EXPECT_EQ(second.subviews().front()->superview(), &second);
}

TEST(ViewHierarchy, AViewThatOutlivesItsSuperviewHasNone) {
    const auto child = viewAt({});
    {
        UIView parent;
        parent.addSubview(child);
    }

    EXPECT_EQ(child->superview(), nullptr);
}

TEST(ViewHierarchyDeathTest, AViewCannotStandInsideItself) {
    const auto outer = viewAt({}), inner = viewAt({});
    outer->addSubview(inner);

    EXPECT_DEATH(inner->addSubview(outer), "UIView: a view cannot stand inside itself");
    EXPECT_DEATH(outer->addSubview(outer), "UIView: a view cannot stand inside itself");
    EXPECT_DEATH(outer->addSubview(nullptr), "UIView: there is no view to add");
    EXPECT_DEATH(outer->insertSubviewAbove(viewAt({}), *viewAt({})), "UIView: the sibling is not a subview of this view");
}

// --- Geometry ---

TEST(ViewGeometry, PointsConvertThroughFramesBoundsAndTransforms) {
    UIView outer({{0, 0}, {200, 200}});
    const auto scrolled = viewAt({{10, 20}, {100, 100}}), scaled = viewAt({{40, 0}, {20, 20}});
    outer.addSubview(scrolled);
    scrolled->addSubview(scaled);
    scrolled->setBoundsOrigin({0, 50});
    scaled->setTransform(geometry::Transform::scaling(2, 2));

    // The centre stays; the corner moves out by half the size.
    EXPECT_EQ(scaled->convertTo(Point{10, 10}, &outer), (Point{60, -20}));
    EXPECT_EQ(scaled->convertTo(Point{0, 0}, &outer), (Point{40, -40}));
    EXPECT_EQ(scaled->convertFrom({40, -40}, &outer), (Point{0, 0}));
    EXPECT_EQ(scrolled->convertTo(Rect{{0, 50}, {5, 5}}, nullptr), (Rect{{10, 20}, {5, 5}}));
}

TEST(ViewGeometry, NewBoundsKeepTheCentre) {
    UIView view({{10, 10}, {20, 20}});

    view.setBounds({{5, 5}, {40, 10}});

    EXPECT_EQ(view.frame(), (Rect{{0, 15}, {40, 10}}));
    EXPECT_EQ(view.bounds(), (Rect{{5, 5}, {40, 10}}));
}

// --- Hit testing ---

struct HitTest : testing::Test {
    HitTest() {
        root->addSubview(back);
        root->addSubview(front);
        front->addSubview(inner);
    }
    std::shared_ptr<UIView> root = viewAt({{0, 0}, {100, 100}}), back = viewAt({{0, 0}, {60, 60}}),
                            front = viewAt({{40, 40}, {60, 60}}), inner = viewAt({{10, 10}, {100, 10}});
};

TEST_F(HitTest, FindsTheDeepestFrontMostView) {
    EXPECT_EQ(root->hitTest({10, 10}), back.get());
    EXPECT_EQ(root->hitTest({45, 45}), front.get());
    EXPECT_EQ(root->hitTest({55, 55}), inner.get());
    EXPECT_EQ(root->hitTest({90, 10}), root.get());
    EXPECT_EQ(root->hitTest({100, 10}), nullptr);
}

TEST_F(HitTest, NothingOutsideASuperviewIsHit) {
    root->setFrame({{0, 0}, {200, 100}});

    EXPECT_EQ(root->hitTest({120, 55}), root.get());
}

TEST_F(HitTest, HiddenTransparentAndDisabledViewsLetTouchesThrough) {
    front->setHidden(true);
    EXPECT_EQ(root->hitTest({55, 55}), back.get());
    front->setHidden(false);
    front->setAlpha(0);
    EXPECT_EQ(root->hitTest({55, 55}), back.get());
    front->setAlpha(1);
    front->setUserInteractionEnabled(false);
    EXPECT_EQ(root->hitTest({55, 55}), back.get());
}

TEST_F(HitTest, FollowsTransformsAndScrolling) {
    front->setTransform(geometry::Transform::translation(-40, -40));
    EXPECT_EQ(root->hitTest({5, 5}), front.get());
    front->setTransform({});
    front->setBoundsOrigin({0, 10});
    EXPECT_EQ(root->hitTest({55, 45}), inner.get());
}

// --- Layout ---

TEST_F(ScreenTest, PinnedViewsKeepTheirDistancesFromTheEdges) {
    const auto root = showRoot();
    const auto pinned = viewAt({});
    pinned->fillSuperview({.top = 1, .leading = 2, .bottom = 3, .trailing = 4});
    root->view()->addSubview(pinned);

    window->layoutIfNeeded();
    EXPECT_EQ(pinned->frame(), (Rect{{2, 1}, {369, 796}}));

    window->setSize({100, 100}, {});
    window->layoutIfNeeded();
    EXPECT_EQ(pinned->frame(), (Rect{{2, 1}, {94, 96}}));
}

TEST_F(ScreenTest, PinnedViewsAreMirrored) {
    window->setTraits({.layoutDirection = geometry::LayoutDirection::rightToLeft});
    const auto root = showRoot();
    const auto pinned = viewAt({});
    pinned->fillSuperview({.leading = 2, .trailing = 4});
    root->view()->addSubview(pinned);

    window->layoutIfNeeded();

    EXPECT_EQ(pinned->frame(), (Rect{{4, 0}, {369, 800}}));
}

class CountingView : public UIView {
public:
    void layoutSubviews() override {
        ++layouts;
        if (onLayout) onLayout();
    }
    int layouts = 0;
    std::function<void()> onLayout;
};

TEST_F(ScreenTest, AViewIsLaidOutOnceATurnHoweverOftenItAsks) {
    const auto root = showRoot();
    const auto view = std::make_shared<CountingView>();
    root->view()->addSubview(view);
    bed.settle();
    view->layouts = 0;

    view->setNeedsLayout();
    view->setNeedsLayout();
    view->setFrame({{0, 0}, {10, 10}});
    EXPECT_EQ(view->layouts, 0);
    bed.settle();

    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ScreenTest, OnlyWhatIsDueIsLaidOut) {
    const auto root = showRoot();
    const auto first = std::make_shared<CountingView>(), second = std::make_shared<CountingView>();
    root->view()->addSubview(first);
    root->view()->addSubview(second);
    bed.settle();
    first->layouts = second->layouts = 0;

    second->setNeedsLayout();
    bed.settle();

    EXPECT_EQ(first->layouts, 0);
    EXPECT_EQ(second->layouts, 1);
}

TEST_F(ScreenTest, ALayoutThatDirtiesItsSuperviewIsRepeatedInTheSamePass) {
    const auto outer = std::make_shared<CountingView>(), inner = std::make_shared<CountingView>();
    outer->addSubview(inner);
    inner->onLayout = [&] {
        if (inner->layouts == 1) outer->setNeedsLayout();
    };

    outer->layoutIfNeeded();

    EXPECT_EQ(outer->layouts, 2);
    EXPECT_FALSE(outer->needsLayout());
}

TEST_F(ScreenTest, ALayoutThatNeverSettlesEndsAllTheSame) {
    const auto view = std::make_shared<CountingView>();
    view->onLayout = [&] { view->setNeedsLayout(); };
    showRoot()->view()->addSubview(view);

    bed.settle();

    EXPECT_GT(view->layouts, 1);
    EXPECT_LT(view->layouts, 100);
}

// A view keeps a layout that is due through a move between two views that are laid out.
TEST_F(ScreenTest, AViewThatMovesKeepsTheLayoutThatIsDue) {
    const auto root = showRoot();
    const auto former = std::make_shared<UIView>(), next = std::make_shared<UIView>();
    const auto moved = std::make_shared<UIView>(), pinned = std::make_shared<UIView>();
    root->view()->addSubview(former);
    root->view()->addSubview(next);
    former->addSubview(moved);
    moved->addSubview(pinned);
    pinned->fillSuperview();
    moved->setFrame({{0, 0}, {50, 50}});
    root->view()->layoutIfNeeded();

    moved->setFrame({{0, 0}, {80, 80}});
    next->addSubview(moved);
    root->view()->layoutIfNeeded();

    EXPECT_EQ(pinned->frame().size, (geometry::Size{80, 80}));
}

} // namespace
} // namespace proupsells::uikit
