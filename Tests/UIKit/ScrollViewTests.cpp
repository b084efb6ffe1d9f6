#include "Platform/UIKit/Controls/UIControl.hpp"
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using testing::DoubleNear;
using testing::ElementsAre;

// --- Offsets that the program sets ---

TEST_F(ScrollViewTest, GoesWhereItIsToldEvenBeyondItsContent) {
    list->setContentOffset({0, 5000});
    EXPECT_EQ(list->bounds().origin, (Point{0, 5000}));

    list->setContentSize({375, 1500});
    list->setFrame({{0, 0}, {375, 600}});
    bed.runFor(1);

    EXPECT_EQ(list->contentOffset(), (Point{0, 5000}));
}

TEST_F(ScrollViewTest, AnOffsetThatIsNoNumberIsIgnored) {
    list->setContentOffset({0, 50});
    list->setContentOffset({0, std::numeric_limits<double>::quiet_NaN()});
    list->setContentOffset({geometry::infinity, 0}, true);

    EXPECT_EQ(list->contentOffset(), (Point{0, 50}));
}

TEST_F(ScrollViewTest, AnAnimatedOffsetIsAFunctionOfTime) {
    list->setContentOffset({0, 100}, {motion::TimingCurve::linear(), 0.1});
    EXPECT_EQ(y(), 0);

    bed.runFor(0.025);
    EXPECT_THAT(y(), DoubleNear(25, 1e-9));
    EXPECT_TRUE(window->isAnimating());
    EXPECT_THAT(window->semanticTree().children[0].scroll->contentOffset.y, DoubleNear(25, 1e-9));
    EXPECT_THAT(list->bounds().minY(), DoubleNear(25, 1e-9));
    bed.runFor(0.075);

    EXPECT_EQ(y(), 100);
}

TEST_F(ScrollViewTest, AnAnimationTakesThreeTenthsOfASecondUnlessToldOtherwise) {
    list->setContentOffset({0, 100}, true);

    bed.runFor(0.15);
    EXPECT_THAT(y(), DoubleNear(50, 1e-6));
    bed.runFor(0.15);
    EXPECT_EQ(y(), 100);
}

TEST_F(ScrollViewTest, StepsOfATenthOfASecondMeetEachOtherExactly) {
    list->setShowsVerticalScrollIndicator(false);
    int ticks = 0;
    const auto timer = bed.loop().scheduleRepeating(0.1, [&] {
        EXPECT_EQ(y(), 5.0 * ticks);
        ++ticks;
        list->setContentOffset({0, y() + 5}, {motion::TimingCurve::linear(), 0.1});
    });

    bed.runFor(300.05);
    timer->invalidate();

    EXPECT_EQ(ticks, 3000);
    EXPECT_THAT(y(), DoubleNear(15000 - 2.5, 1e-6));
    bed.runFor(1);
    EXPECT_EQ(y(), 15000);
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(ScrollViewTest, AMovingViewThatNobodyFollowsNeedsNoTimer) {
    list->setContentOffset({0, 1000}, true);

    EXPECT_FALSE(bed.loop().nextDueTime_s().value_or(1) > bed.now_s()); // the picture that is asked for now
    bed.settle();
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

TEST_F(ScrollViewTest, ADelegateIsToldOfStepsAndOfTheAnimationsEnd) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);

    list->setContentOffset({0, 10});
    EXPECT_EQ(delegate->scrollCount, 1);
    list->setContentOffset({0, 10});
    EXPECT_EQ(delegate->scrollCount, 1);
    list->setContentOffset({0, 100}, true);
    bed.runFor(1);

    EXPECT_THAT(delegate->scrollCount, testing::AllOf(testing::Ge(18), testing::Le(20)));
    EXPECT_THAT(delegate->calls, ElementsAre("didEndScrollingAnimation"));
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

TEST_F(ScrollViewTest, AMovementThatADelegateBeginsDuringAnotherOneReplacesIt) {
    struct Interrupting : UIScrollViewDelegate {
        bool interrupts = false;
        void scrollViewDidScroll(UIScrollView& view) override {
            if (std::exchange(interrupts, false)) view.setContentOffset({0, 300}, true);
        }
    };
    const auto delegate = std::make_shared<Interrupting>();
    list->setDelegate(delegate);
    list->setContentOffset({0, 100}, true);
    bed.runFor(0.105); // between two steps

    delegate->interrupts = true;
    list->setContentOffset({0, 200}, true);
    bed.runFor(1);

    EXPECT_FALSE(delegate->interrupts);
    EXPECT_EQ(y(), 300);
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

// --- Fingers ---

TEST_F(ScrollViewTest, FollowsAFingerAfterTenPoints) {
    touch(host::TouchPhase::began, {100, 500});
    EXPECT_TRUE(list->isTracking());
    move({100, 491});
    EXPECT_FALSE(list->isDragging());
    move({100, 470});

    EXPECT_TRUE(list->isDragging());
    EXPECT_EQ(y(), 20);
    move({300, 440});
    EXPECT_EQ(list->contentOffset(), (Point{0, 50}));
}

TEST_F(ScrollViewTest, GoesOnAfterAFlickAndComesToRest) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);
    drag({100, 600}, {100, 490});
    EXPECT_EQ(y(), 100);

    lift({100, 490});
    EXPECT_TRUE(list->isDecelerating());
    EXPECT_FALSE(list->isTracking() || list->isDragging());
    // The finger did 1,100 points a second, of which 1/2.002 s remain.
    const motion::Deceleration path(100, 1100, {0, 1200});
    bed.runFor(0.5);
    EXPECT_THAT(y(), DoubleNear(path.offsetAt(0.5), 1));
    bed.runFor(10);

    EXPECT_THAT(y(), DoubleNear(path.target(), 2));
    EXPECT_FALSE(list->isDecelerating());
    EXPECT_THAT(delegate->calls, ElementsAre("willBeginDragging", "didEndDragging, goes on", "didEndDecelerating"));
    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

TEST_F(ScrollViewTest, ATouchHoldsMovingContent) {
    drag({100, 600}, {100, 490});
    lift({100, 490});
    bed.runFor(0.1);
    const double held = y();

    touch(host::TouchPhase::began, {100, 300});
    bed.runFor(1);
    EXPECT_EQ(y(), held);
    EXPECT_TRUE(list->isTracking());
    lift({100, 300});
    bed.runFor(1);

    EXPECT_EQ(y(), held);
    EXPECT_FALSE(list->isTracking());
}

TEST_F(ScrollViewTest, ATouchHoldsAnAnimationToo) {
    list->setContentOffset({0, 100}, {motion::TimingCurve::linear(), 1});
    bed.runFor(0.5);

    touch(host::TouchPhase::began, {100, 300});
    bed.runFor(1);

    EXPECT_THAT(y(), DoubleNear(50, 1e-9));
}

TEST_F(ScrollViewTest, AnAnimationGoesOnWhenAFingerThatOnlyRestedLifts) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);
    touch(host::TouchPhase::began, {100, 300});
    list->setContentOffset({0, 100}, {motion::TimingCurve::linear(), 1});
    bed.runFor(0.5);

    lift({100, 300});
    bed.runFor(1);

    EXPECT_EQ(y(), 100);
    EXPECT_EQ(list->bounds().minY(), 100);
    EXPECT_THAT(delegate->calls, ElementsAre("didEndScrollingAnimation"));
}

TEST_F(ScrollViewTest, AStripThatTheProgramPutBeyondItsEndComesBackOnceAPersonLetsGoOfIt) {
    list->setContentOffset({0, 2000});

    tap({100, 300});
    bed.runFor(1);
    EXPECT_EQ(y(), 2000);
    drag({100, 300}, {100, 340});
    EXPECT_THAT(y(), testing::AllOf(testing::Gt(1200), testing::Lt(2000)));
    lift({100, 340});
    bed.runFor(5);

    EXPECT_EQ(y(), 1200);
}

TEST_F(ScrollViewTest, AnOffsetOfAPersonFollowsTheContentIn) {
    window->scroll({10, 10}, {0, 5000});
    EXPECT_EQ(y(), 1200);

    list->setContentSize({375, 1500});
    EXPECT_EQ(y(), 700);
    list->setFrame({{0, 0}, {375, 1000}});
    EXPECT_EQ(y(), 500);
}

TEST_F(ScrollViewTest, ACancelledTouchDoesNotFlick) {
    drag({100, 600}, {100, 490});
    touch(host::TouchPhase::cancelled, {100, 490});
    bed.runFor(1);

    EXPECT_EQ(y(), 100);
    EXPECT_FALSE(list->isTracking());
}

TEST_F(ScrollViewTest, ContentThatFitsMovesOnlyWhereItAlwaysBounces) {
    list->setContentSize({375, 300});
    drag({100, 100}, {100, 200});
    EXPECT_FALSE(list->isDragging());
    lift({100, 200});

    list->setAlwaysBounceVertical(true);
    drag({100, 100}, {100, 200});
    EXPECT_LT(y(), 0);
    lift({100, 200});
    bed.runFor(3);
    EXPECT_EQ(y(), 0);
}

TEST_F(ScrollViewTest, WithoutScrollingFingersAndWheelsDoNothing) {
    list->setScrollEnabled(false);
    drag({100, 600}, {100, 400});
    lift({100, 400});
    window->scroll({10, 10}, {0, 50});

    EXPECT_EQ(y(), 0);
}

TEST_F(ScrollViewTest, AControlLosesItsTouchToADrag) {
    Calls actions;
    const auto control = std::make_shared<UIControl>();
    control->setFrame({{0, 450}, {375, 100}});
    control->addAction([&](UIControl&) { actions.push_back("tap"); }, UIControl::Event::touchUpInside);
    control->addAction([&](UIControl&) { actions.push_back("cancel"); }, UIControl::Event::touchCancel);
    content->addSubview(control);

    tap({100, 500});
    EXPECT_THAT(std::exchange(actions, {}), ElementsAre("tap"));
    drag({100, 500}, {100, 470});
    lift({100, 470});

    EXPECT_THAT(actions, ElementsAre("cancel"));
    EXPECT_EQ(y(), 20);
}

TEST_F(ScrollViewTest, MayGoAwayWhileItMoves) {
    const auto delegate = std::make_shared<RecordingScrollDelegate>();
    list->setDelegate(delegate);
    list->setContentOffset({0, 1000}, true);
    list->removeFromSuperview();
    list.reset();

    bed.runFor(1);
    painted();

    EXPECT_EQ(bed.loop().nextDueTime_s(), std::nullopt);
}

} // namespace
} // namespace proupsells::uikit
