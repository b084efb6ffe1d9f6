// Strips: what is in them, and how they drift.
#include <cmath>

#include "Platform/UIKit/Views/UIImageView.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "ProUpsells/RepeatableShelfImageView.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using ScrollDirection = StorePageShelfViewController::ScrollDirection;
using ::testing::DoubleNear;

namespace {

class Tile : public RepeatableView {
public:
    explicit Tile(geometry::Size size) : m_size(size) {}
    std::shared_ptr<uikit::UIView> makeView() const override {
        ++made;
        auto image = std::make_shared<graphics::Image>();
        image->size = m_size;
        return RepeatableShelfImageView({image}).makeView();
    }
    mutable int made = 0;

private:
    geometry::Size m_size;
};

uikit::UIImage imageOf(geometry::Size size) {
    auto image = std::make_shared<graphics::Image>();
    image->name = "picture";
    image->size = size;
    return image;
}

class StoreStrip : public StoreTest {
protected:
    // 21 tiles of 100 points and 20 gaps and two edges of 16 points: 2452 points; a screen of 375 rests at 2077.
    std::shared_ptr<StorePageShelfViewController> drifting(ScrollDirection direction, double tileWidth = 100) {
        auto strip = StorePageShelfViewController::create(Tile({tileWidth, 50}), 16);
        strip->setScrollDirection(direction);
        return strip;
    }
    void setReduceMotion(bool reduceMotion) {
        uikit::UITraitCollection traits = window->traits();
        traits.reduceMotion = reduceMotion;
        window->setTraits(traits);
        bed.settle();
    }
    void showIn(uikit::UIViewController& root, const std::shared_ptr<StorePageShelfViewController>& strip) {
        root.addChild(strip);
        strip->view()->setFrame(root.view()->bounds());
        root.view()->addSubview(strip->view());
        bed.settle();
    }
    static void takeFrom(StorePageShelfViewController& strip) {
        strip.view()->removeFromSuperview();
        strip.removeFromParent();
    }
    static double offset(const StorePageShelfViewController& strip) { return strip.scrollView()->contentOffset().x; }

    static constexpr double width = 2452;
};

} // namespace

TEST_F(StoreStrip, RepeatsItsTileTwentyOneTimes) {
    const Tile tile({100, 50});

    const auto strip = StorePageShelfViewController::create(tile, 16);
    show(strip);

    EXPECT_EQ(tile.made, 21);
    EXPECT_EQ(strip->scrollView()->contentSize(), (geometry::Size{width, 800}));
    const auto row = strip->scrollView()->subviews().front();
    EXPECT_EQ(row->frame(), (geometry::Rect{{16, 0}, {2420, 800}}));
    EXPECT_EQ(row->subviews().size(), 21u);
    EXPECT_EQ(row->subviews()[1]->frame(), (geometry::Rect{{116, 0}, {100, 800}}));
}

TEST_F(StoreStrip, PutsATilesImagesBesideEachOther) {
    const auto tile = RepeatableShelfImageView({imageOf({30, 10}), imageOf({50, 10})}).makeView();

    EXPECT_EQ(tile->intrinsicContentSize(), (geometry::Size{80, 10}));
    for (const auto& subview : tile->subviews())
        EXPECT_EQ(dynamic_cast<const uikit::UIImageView&>(*subview).contentMode(), uikit::UIImageView::ContentMode::aspectFit);
}

TEST_F(StoreStrip, IsEmptyWithoutAnImage) {
    const auto strip = StorePageShelfViewController::create(uikit::UIImage{});
    show(strip);

    EXPECT_TRUE(strip->scrollView()->subviews().empty());
    EXPECT_EQ(strip->scrollView()->frame(), (geometry::Rect{{0, 0}, {375, 800}}));
}

TEST_F(StoreStrip, CentresAnImageInItsFrame) {
    const auto strip = StorePageShelfViewController::create(imageOf({343, 50}));
    show(strip);

    EXPECT_EQ(strip->scrollView()->subviews().front()->frame(), (geometry::Rect{{16, 0}, {343, 800}}));
}

TEST_F(StoreStrip, FillsItsFrameWithAViewWithoutANaturalWidth) {
    const auto strip = StorePageShelfViewController::createWithCustomView(std::make_shared<uikit::UIView>());
    show(strip);

    EXPECT_EQ(strip->scrollView()->subviews().front()->frame(), (geometry::Rect{{0, 0}, {375, 800}}));
    EXPECT_EQ(strip->scrollView()->contentSize(), (geometry::Size{375, 800}));
}

TEST_F(StoreStrip, StandsStillWithoutADirection) {
    const auto strip = drifting(ScrollDirection::none);
    show(strip);

    EXPECT_FALSE(strip->isAutoScrolling());
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    strip->autoScroll();
    bed.runUntil(10);
    EXPECT_EQ(offset(*strip), 0);
}

TEST_F(StoreStrip, DriftsLeftAtFiftyPointsASecond) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    EXPECT_TRUE(strip->isAutoScrolling());

    bed.runUntil(0.1);
    EXPECT_EQ(offset(*strip), 0);
    bed.runUntil(0.15); // half of the first step
    EXPECT_THAT(offset(*strip), DoubleNear(2.5, 1e-6));
    bed.runUntil(0.2);
    EXPECT_THAT(offset(*strip), DoubleNear(5, 1e-6));
    bed.runUntil(10.1);
    EXPECT_THAT(offset(*strip), DoubleNear(500, 1e-6));
}

TEST_F(StoreStrip, RestsAtItsEndOverFiveMinutes) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    for (int second = 1; second <= 300; ++second) {
        bed.runUntil(second);
        const double ideal = 50 * second - 5; // the step of this very moment has just begun
        EXPECT_THAT(offset(*strip), DoubleNear(std::min(ideal, 2075.0), 1e-6)) << "after " << second;
    }
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(StoreStrip, StartsARightDriftPastItsLastPageAndWorksBackOverFiveMinutes) {
    const auto strip = drifting(ScrollDirection::right);
    EXPECT_EQ(offset(*strip), width);
    show(strip);
    EXPECT_EQ(offset(*strip), width);

    for (int second = 1; second <= 300; ++second) {
        bed.runUntil(second);
        const double ideal = width - (50 * second - 5);
        EXPECT_THAT(offset(*strip), DoubleNear(std::max(ideal, 2.0), 1e-6)) << "after " << second;
    }
    EXPECT_FALSE(window->isAnimating());
}

// 21 tiles of 98 and what is between and beside them are 2410 points: 2035 points to drift, 407 steps.
TEST_F(StoreStrip, MeetsAnEndThatItsStepsMeetExactly) {
    const auto strip = drifting(ScrollDirection::left, 98);
    show(strip);

    bed.runUntil(300);

    EXPECT_THAT(offset(*strip), DoubleNear(2035, 1e-6));
}

TEST_F(StoreStrip, MeetsTheBeginningThatItsStepsMeetExactly) {
    const auto strip = drifting(ScrollDirection::right, 98);
    show(strip);

    bed.runUntil(300);

    EXPECT_THAT(offset(*strip), DoubleNear(0, 1e-6));
}

TEST_F(StoreStrip, GoesToItsStartWheneverTheDirectionIsSet) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    bed.runUntil(5);

    strip->setScrollDirection(ScrollDirection::right);
    EXPECT_EQ(offset(*strip), width);
    strip->setScrollDirection(ScrollDirection::left);
    EXPECT_EQ(offset(*strip), 0);
    strip->scrollView()->setContentOffset({120, 0});
    strip->setScrollDirection(ScrollDirection::none);
    EXPECT_EQ(offset(*strip), 120);
}

TEST_F(StoreStrip, GivesWayToAFingerAndGoesOnAfterwards) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    bed.runUntil(2);
    touch(host::TouchPhase::began, {200, 20});
    const double held = offset(*strip);

    bed.runUntil(4);
    EXPECT_TRUE(strip->scrollView()->isTracking());
    EXPECT_EQ(offset(*strip), held);
    touch(host::TouchPhase::ended, {200, 20});
    bed.runUntil(6);

    EXPECT_GT(offset(*strip), held + 90);
}

TEST_F(StoreStrip, WaitsUntilAFlickHasComeToRest) {
    const auto strip = drifting(ScrollDirection::right);
    show(strip);
    strip->scrollView()->setContentOffset({1000, 0});
    bed.runUntil(0.05);
    touch(host::TouchPhase::began, {300, 20});
    for (int i = 1; i <= 5; ++i) {
        bed.runFor(0.016);
        touch(host::TouchPhase::moved, {300.0 - 20 * i, 20});
    }
    touch(host::TouchPhase::ended, {200, 20});
    ASSERT_TRUE(strip->scrollView()->isDecelerating());

    double rest = offset(*strip);
    while (strip->scrollView()->isDecelerating()) {
        EXPECT_GE(offset(*strip), rest);
        rest = offset(*strip);
        bed.runFor(0.05);
    }
    bed.runFor(1);

    EXPECT_GT(rest, 1100);
    EXPECT_LT(offset(*strip), rest - 40);
}

TEST_F(StoreStrip, DriftsOnlyWhileItCanBeSeen) {
    const auto root = std::make_shared<uikit::UIViewController>();
    show(root);
    const auto strip = drifting(ScrollDirection::left);
    EXPECT_FALSE(strip->isAutoScrolling());

    root->addChild(strip);
    root->view()->addSubview(strip->view());
    EXPECT_TRUE(strip->isAutoScrolling());
    strip->view()->removeFromSuperview();

    EXPECT_FALSE(strip->isAutoScrolling());
    bed.settle();
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

TEST_F(StoreStrip, GoesOnFromBeyondItsRangeWhereItLeftTheScreen) {
    const auto root = std::make_shared<uikit::UIViewController>();
    show(root);
    const auto strip = drifting(ScrollDirection::right);
    showIn(*root, strip);
    bed.runUntil(2.2);
    takeFrom(*strip);
    bed.runUntil(2.5); // the step that was under way ends unseen
    const double left = offset(*strip);
    EXPECT_GT(left, width - 375); // past the last page
    EXPECT_LT(left, width - 90);

    bed.runUntil(60);
    EXPECT_EQ(offset(*strip), left);
    showIn(*root, strip);
    EXPECT_EQ(offset(*strip), left);
    bed.runFor(10.1);

    EXPECT_THAT(offset(*strip), DoubleNear(left - 500, 1e-6));
}

TEST_F(StoreStrip, ComesBackIntoItsRangeWhenItLeavesTheScreenWhilePulledBeyondIt) {
    for (const bool isHeldMeanwhile : {true, false}) {
        SCOPED_TRACE(isHeldMeanwhile);
        const auto root = std::make_shared<uikit::UIViewController>();
        show(root);
        const auto strip = drifting(ScrollDirection::left);
        showIn(*root, strip);
        touch(host::TouchPhase::began, {50, 20});
        for (int i = 1; i <= 5; ++i) {
            bed.runFor(0.016);
            touch(host::TouchPhase::moved, {50.0 + 30 * i, 20});
        }
        if (!isHeldMeanwhile) touch(host::TouchPhase::ended, {200, 20});
        ASSERT_LT(offset(*strip), -10);

        takeFrom(*strip);
        bed.runFor(1);
        if (isHeldMeanwhile) touch(host::TouchPhase::ended, {200, 20});
        bed.runFor(30);
        EXPECT_EQ(offset(*strip), 0);
        EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
        showIn(*root, strip);
        bed.runFor(10.1);

        EXPECT_THAT(offset(*strip), DoubleNear(500, 1e-6));
    }
}

TEST_F(StoreStrip, RestsWhileItsWindowIsOutOfSight) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    bed.runUntil(1.05);
    const double before = offset(*strip);

    window->setSeen(false);
    bed.runUntil(60);
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    strip->viewWillAppear(false);
    EXPECT_FALSE(strip->isAutoScrolling());
    window->setSeen(true);
    EXPECT_TRUE(strip->isAutoScrolling());

    EXPECT_THAT(offset(*strip), DoubleNear(before, 5));
}

TEST_F(StoreStrip, KeepsItsTimerWhenItAppearsTwice) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);

    strip->viewWillAppear(false);
    bed.runUntil(1.1);

    EXPECT_THAT(offset(*strip), DoubleNear(50, 1e-6));
}

TEST_F(StoreStrip, IsNotKeptAliveByItsTimer) {
    auto strip = drifting(ScrollDirection::left);
    show(strip);
    const std::weak_ptr<StorePageShelfViewController> weak = strip;
    strip.reset();

    window->setRootViewController(nullptr);
    bed.settle();

    EXPECT_TRUE(weak.expired());
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

TEST_F(StoreStrip, CannotComeFromAnArchive) {
    EXPECT_DEATH(StorePageShelfViewController::create(foundation::Coder{}),
                 "Use of unimplemented initializer 'init\\(coder:\\)' for class 'ProUpsells\\.StorePageShelfViewController'");
}

// --- Where motion is to be reduced

TEST_F(StoreStrip, StandsStillWhereMotionIsToBeReduced) {
    setReduceMotion(true);
    const auto strip = drifting(ScrollDirection::left);
    show(strip);

    EXPECT_FALSE(strip->isAutoScrolling());
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
    bed.runUntil(10);
    EXPECT_EQ(offset(*strip), 0);
}

TEST_F(StoreStrip, ShowsItsEndWhereItMayNotDriftBackToIt) {
    setReduceMotion(true);
    const auto strip = drifting(ScrollDirection::right);
    show(strip);

    EXPECT_EQ(offset(*strip), width - 375);
}

TEST_F(StoreStrip, FollowsTheSettingWhileItIsShown) {
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    bed.runUntil(2);
    setReduceMotion(true);
    bed.runUntil(2.2);
    const double rest = offset(*strip);
    bed.runUntil(10);
    EXPECT_EQ(offset(*strip), rest);

    setReduceMotion(false);
    bed.runUntil(12.1);
    EXPECT_THAT(offset(*strip), DoubleNear(rest + 100, 1e-6));
}

TEST_F(StoreStrip, DoesNotBeginToDriftUnseenWhenTheSettingIsTakenBack) {
    setReduceMotion(true);
    const auto strip = drifting(ScrollDirection::left);
    show(strip);
    window->setRootViewController(std::make_shared<uikit::UIViewController>());

    setReduceMotion(false);
    EXPECT_FALSE(strip->isAutoScrolling());
    show(strip);

    EXPECT_TRUE(strip->isAutoScrolling());
}

} // namespace proupsells::tests
