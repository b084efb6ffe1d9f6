// Scroll views along both axes, at the edges of what they do.
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

// A sheet that is larger than its view along both axes.
struct WideScrollTest : ScrollViewTest {
    WideScrollTest() { list->setContentSize({1000, 2000}); }
};

TEST_F(WideScrollTest, FollowsAFingerAlongBothAxes) {
    drag({300, 500}, {240, 420});

    EXPECT_GT(list->contentOffset().x, 30);
    EXPECT_GT(list->contentOffset().y, 40);
    EXPECT_LT(list->contentOffset().x, 61);
    EXPECT_LT(list->contentOffset().y, 81);
}

TEST_F(WideScrollTest, CountsUnsafeEdgesAlongBothAxes) {
    window->setSize({375, 800}, {1, 2, 3, 4});
    list->setContentInset({10, 20, 30, 40});
    bed.settle();

    EXPECT_EQ(list->adjustedContentInset(), (geometry::PhysicalInsets{11, 22, 33, 44}));
    window->scroll({100, 100}, {5000, 5000});
    EXPECT_EQ(list->contentOffset(), (Point{1000 - 375 + 44, 2000 - 800 + 33}));
    window->scroll({100, 100}, {-9000, -9000});
    EXPECT_EQ(list->contentOffset(), (Point{-22, -11}));
}

TEST_F(WideScrollTest, CountsUnsafeEdgesOnlyWhereItScrolls) {
    window->setSize({375, 800}, {1, 2, 3, 4});
    bed.settle();

    list->setContentSize({375, 800});
    EXPECT_EQ(list->adjustedContentInset(), (geometry::PhysicalInsets{}));
    list->setContentSize({376, 801});
    EXPECT_EQ(list->adjustedContentInset(), (geometry::PhysicalInsets{1, 2, 3, 4}));
    list->setContentSize({375, 10});
    list->setAlwaysBounceVertical(true);
    EXPECT_EQ(list->adjustedContentInset(), (geometry::PhysicalInsets{1, 0, 3, 0}));
}

TEST_F(WideScrollTest, MovesAnAnimatedOffsetAlongBothAxes) {
    list->setContentOffset({100, 200}, {motion::TimingCurve::linear(), 1});

    bed.runFor(0.5);

    EXPECT_THAT(list->contentOffset().x, DoubleNear(50, 1e-9));
    EXPECT_THAT(list->contentOffset().y, DoubleNear(100, 1e-9));
    EXPECT_FALSE(list->isDecelerating());
}

TEST_F(WideScrollTest, ShowsAnIndicatorAlongEachAxisThatIsNotSwitchedOff) {
    window->scroll({100, 100}, {10, 10});
    ASSERT_EQ(painted().commands.size(), 2u);
    EXPECT_GT(painted().commands[0].frame.width(), painted().commands[0].frame.height());
    EXPECT_LT(painted().commands[1].frame.width(), painted().commands[1].frame.height());
    EXPECT_TRUE(window->isAnimating());

    list->setShowsHorizontalScrollIndicator(false);
    EXPECT_FALSE(list->showsHorizontalScrollIndicator());
    ASSERT_EQ(painted().commands.size(), 1u);
    EXPECT_LT(painted().commands[0].frame.width(), painted().commands[0].frame.height());
    EXPECT_TRUE(window->isAnimating());

    list->setShowsVerticalScrollIndicator(false);
    EXPECT_FALSE(list->showsVerticalScrollIndicator());
    EXPECT_THAT(painted().commands, IsEmpty());
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(WideScrollTest, IndicatorsSayWhereTheContentStands) {
    window->scroll({100, 100}, {312.5, 600});

    const auto commands = painted().commands;

    ASSERT_EQ(commands.size(), 2u);
    // Half-way along both axes.
    EXPECT_THAT(commands[0].frame.midX(), DoubleNear(187.5, 4));
    EXPECT_THAT(commands[0].frame.maxY(), DoubleNear(797, 1e-6));
    EXPECT_THAT(commands[1].frame.midY(), DoubleNear(400, 4));
    EXPECT_THAT(commands[1].frame.maxX(), DoubleNear(372, 1e-6));
}

TEST_F(WideScrollTest, RevealsWhatIsBesideItsContent) {
    list->setContentInset({10, 20, 30, 40});
    const Rect below{{500, 1500}, {50, 60}}, above{{100, 200}, {50, 60}};

    content->scrollRectToVisible(below);
    EXPECT_EQ(list->contentOffset(), (Point{550 - 375 + 40, 1560 - 800 + 30}));
    content->scrollRectToVisible(above);
    EXPECT_EQ(list->contentOffset(), (Point{100 - 20, 200 - 10}));
    content->scrollRectToVisible({{120, 300}, {100, 100}});
    EXPECT_EQ(list->contentOffset(), (Point{80, 190}));

    // Of what is too large, the beginning.
    content->scrollRectToVisible({{200, 300}, {700, 1500}});
    EXPECT_EQ(list->contentOffset(), (Point{180, 290}));
}

TEST_F(ScrollViewTest, HasNoContentOfALengthThatIsNone) {
    list->setContentSize({-5, std::numeric_limits<double>::quiet_NaN()});
    EXPECT_EQ(list->contentSize(), (Size{0, 0}));

    list->setContentSize({geometry::infinity, 5});
    EXPECT_EQ(list->contentSize(), (Size{0, 5}));
}

TEST_F(ScrollViewTest, PaintsWhatReachesOutOnlyWhereItDoesNotClip) {
    const auto out = viewAt({{0, -50}, {10, 10}}), turned = viewAt({{0, -20}, {10, 10}}), pointlike = viewAt({{0, -90}, {0, 0}}),
               inside = viewAt({{0, 100}, {10, 10}});
    for (const auto& view : {out, turned, inside}) view->setBackgroundColor(UIColor::black);
    turned->setTransform(geometry::Transform::translation(0, 50));
    pointlike->addSubview(inside);
    for (const auto& view : {out, turned, pointlike}) list->addSubview(view);
    EXPECT_TRUE(list->clipsToBounds());

    // The turned one and the one inside what has no area of its own.
    ASSERT_EQ(painted().commands.size(), 2u);
    EXPECT_EQ(painted().commands[1].frame, (Rect{{0, 10}, {10, 10}}));
    list->setFrame({{0, 100}, {375, 700}});
    list->setClipsToBounds(false);
    EXPECT_EQ(painted().commands.size(), 3u);
}

TEST_F(ScrollViewTest, AsksForFramesOnlyWhileWhatMovesIsInSight) {
    class Moving : public UIView {
    public:
        bool isAnimating() const override { return true; }
    };
    const auto moving = std::make_shared<Moving>();
    moving->setFrame({{0, 900}, {10, 10}});
    list->addSubview(moving);
    list->setShowsVerticalScrollIndicator(false);
    EXPECT_FALSE(window->isAnimating());

    list->setContentOffset({0, 200});
    EXPECT_TRUE(window->isAnimating());
    list->setContentOffset({0, 0});
    moving->setTransform(geometry::Transform::translation(0, -500));
    EXPECT_TRUE(window->isAnimating());
    list->setHidden(true);
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(ScrollViewTest, LeavesTheTouchOfAFingerThatIsNotAllowedToScrollToWhatIsAround) {
    class Keeper : public UIView {
    public:
        void touchesBegan(const UITouch&) override { phases += "began "; }
        void touchesMoved(const UITouch&) override { phases += "moved "; }
        void touchesEnded(const UITouch&) override { phases += "ended "; }
        void touchesCancelled(const UITouch&) override { phases += "cancelled "; }
        std::string phases;
    };
    const auto keeper = std::make_shared<Keeper>();
    keeper->setFrame({{0, 0}, {375, 800}});
    root->view()->addSubview(keeper);
    keeper->addSubview(list);
    list->setScrollEnabled(false);
    EXPECT_FALSE(list->isScrollEnabled());

    drag({100, 500}, {100, 400}, 1);
    lift({100, 400});
    touch(host::TouchPhase::began, {100, 500});
    touch(host::TouchPhase::cancelled, {100, 500});

    EXPECT_EQ(keeper->phases, "began moved ended began cancelled ");
}

TEST_F(ScrollViewTest, ADragThatIsForbiddenOnTheWayEndsWhereItIs) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);
    drag({100, 600}, {100, 490});

    list->setScrollEnabled(false);
    move({100, 300});
    lift({100, 300});
    bed.runFor(2);

    EXPECT_EQ(y(), 100);
    EXPECT_FALSE(list->isTracking() || list->isDragging());
    EXPECT_THAT(delegate->calls, ElementsAre("willBeginDragging", "didEndDragging"));
}

TEST_F(ScrollViewTest, AWheelDoesNothingUnderAFinger) {
    touch(host::TouchPhase::began, {100, 500});

    window->scroll({100, 500}, {0, 40});
    EXPECT_EQ(y(), 0);
    lift({100, 500});
    window->scroll({100, 500}, {0, 40});

    EXPECT_EQ(y(), 40);
}

TEST_F(ScrollViewTest, AWheelEndsAnAnimationWithoutTellingOfItsEnd) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);
    list->setContentOffset({0, 1000}, {motion::TimingCurve::linear(), 1});
    bed.runFor(0.5);

    window->scroll({100, 500}, {0, 40});
    bed.runFor(2);

    EXPECT_THAT(y(), DoubleNear(540, 1e-6));
    EXPECT_THAT(delegate->calls, IsEmpty());
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

TEST_F(ScrollViewTest, RevealingEndsAnAnimation) {
    list->setContentOffset({0, 1000}, {motion::TimingCurve::linear(), 1});
    bed.runFor(0.5);

    content->scrollRectToVisible({{0, 1500}, {10, 10}});
    EXPECT_EQ(list->bounds().minY(), 1510 - 800);
    bed.runFor(2);

    EXPECT_EQ(y(), 1510 - 800);
}

TEST_F(ScrollViewTest, AFingerThatHasEndedItsTouchScrollsNoMore) {
    drag({100, 500}, {100, 470});
    lift({100, 470});
    bed.runFor(5);
    const double rest = y();

    move({100, 300});

    EXPECT_EQ(y(), rest);
}

TEST_F(ScrollViewTest, TheEndOfADragIsToldOnlyWhereThereWasOne) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);

    tap({100, 300});
    EXPECT_THAT(delegate->calls, IsEmpty());
    drag({100, 600}, {100, 500});
    bed.runFor(1);
    move({100, 500});
    lift({100, 500});

    EXPECT_THAT(delegate->calls, ElementsAre("willBeginDragging", "didEndDragging"));
}

TEST_F(ScrollViewTest, AFlickIsFollowedStepByStep) {
    struct Following : UIScrollViewDelegate {
        void scrollViewDidScroll(UIScrollView& view) override { offsets.push_back(view.bounds().minY()); }
        std::vector<double> offsets;
    };
    const auto delegate = std::make_shared<Following>();
    list->setDelegate(delegate);
    list->setContentOffset({0, 60}, {motion::TimingCurve::linear(), 1});

    bed.runFor(0.1);

    // 60 points a second, 60 steps a second.
    ASSERT_GE(delegate->offsets.size(), 5u);
    for (std::size_t i = 0; i < 5; ++i) EXPECT_THAT(delegate->offsets[i], DoubleNear(double(i + 1), 1e-6));
}

} // namespace
} // namespace proupsells::uikit
