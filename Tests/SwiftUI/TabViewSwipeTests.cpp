// Fingers on pages.
#include <gmock/gmock.h>

#include <random>

#include "Tests/SwiftUI/Pages.hpp"

using namespace proupsells;

using namespace swiftui;
using namespace proupsells::tests;

namespace {

TEST(TabViewSwipe, FollowsTheFinger) {
    Pages pages;

    pages.screen.pull({250, 200}, {150, 200}, 0.3);

    EXPECT_NEAR(pages.position(), 90.0 / 300, 1e-9);
    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());
}

TEST(TabViewSwipe, PublishesThePageWhenTheFingerLifts) {
    Pages pages;
    pages.screen.pull({290, 200}, {60, 200}, 1);
    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());

    pages.screen.up({60, 200});

    EXPECT_THAT(pages.pager.writes, testing::ElementsAre(1));
    EXPECT_LT(pages.position(), 0.99);
}

TEST(TabViewSwipe, SettlesExactlyOnThePage) {
    Pages pages;
    pages.screen.drag({290, 200}, {60, 200}, 1);

    double previous = pages.position();
    for (int frame = 0; frame < 120; ++frame) {
        pages.screen.wait(1.0 / 60);
        EXPECT_GE(pages.position(), previous - 1e-12);
        EXPECT_LE(pages.position(), 1);
        previous = pages.position();
    }

    EXPECT_EQ(pages.position(), 1);
    EXPECT_FALSE(pages.screen.host().isAnimating());
    EXPECT_FALSE(pages.screen.bed().loop().nextDueTime_s());
}

TEST(TabViewSwipe, GoesBackWhenTheFingerHasNotComeFar) {
    Pages pages;

    pages.screen.pull({250, 200}, {150, 200}, 1);
    pages.screen.wait(0.5);
    pages.screen.up({150, 200});
    pages.screen.wait(2);

    EXPECT_EQ(pages.position(), 0);
    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());
}

TEST(TabViewSwipe, TurnsThePageForAQuickShortFlick) {
    Pages pages;

    pages.screen.drag({250, 200}, {200, 200}, 0.08);
    pages.screen.wait(2);

    EXPECT_EQ(pages.position(), 1);
    EXPECT_EQ(pages.selected(), 1);
}

TEST(TabViewSwipe, TurnsBackForAFlickBackwards) {
    Pages pages;
    pages.select(2);

    pages.screen.drag({100, 200}, {150, 200}, 0.08);
    pages.screen.wait(2);

    EXPECT_EQ(pages.selected(), 1);
}

TEST(TabViewSwipe, TurnsOnePageAtATime) {
    Pages pages;

    pages.screen.drag({290, 200}, {10, 200}, 0.05);
    pages.screen.wait(2);

    EXPECT_EQ(pages.selected(), 1);
}

TEST(TabViewSwipe, GivesLikeRubberAtTheEnds) {
    Pages pages;
    pages.screen.pull({100, 200}, {250, 200}, 0.5);
    EXPECT_LT(pages.position(), -0.1);
    EXPECT_GT(pages.position(), -140.0 / 300);

    pages.screen.up({250, 200});
    pages.screen.wait(2);
    EXPECT_EQ(pages.position(), 0);
    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());
}

TEST(TabViewSwipe, DoesNothingWithOnePage) {
    Pages pages{1};

    pages.screen.drag({250, 200}, {50, 200}, 0.3);

    EXPECT_EQ(pages.position(), 0);
    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());
}

TEST(TabViewSwipe, TakesOverASlideWhereItIs) {
    Pages pages;
    pages.select(1, slow);
    pages.screen.wait(0.6);

    pages.screen.down({150, 200});
    pages.screen.wait(1);
    EXPECT_NEAR(pages.position(), 0.3, 1e-9);

    pages.screen.move({120, 200});
    EXPECT_NEAR(pages.position(), 0.4, 1e-9);

    pages.screen.wait(1);
    pages.screen.up({120, 200});
    pages.screen.wait(2);
    EXPECT_EQ(pages.position(), 0);
    EXPECT_EQ(pages.selected(), 0);
}

TEST(TabViewSwipe, KeepsThePagesWhenTheSelectionChangesMeanwhile) {
    Pages pages;
    pages.screen.pull({250, 200}, {160, 200}, 0.5);
    const double held = pages.position();

    pages.select(2, slow);
    pages.screen.wait(0.5);
    EXPECT_NEAR(pages.position(), held, 1e-9);

    pages.screen.up({160, 200});
    pages.screen.wait(3);
    EXPECT_EQ(pages.position(), 0);
    EXPECT_EQ(pages.selected(), 0);
}

TEST(TabViewSwipe, StaysWhereTheOwnerOfTheSelectionRefusesTheTurn) {
    Pages pages;
    pages.pager.isRefused = true;

    pages.screen.drag({290, 200}, {60, 200}, 1);
    pages.screen.wait(3);

    EXPECT_EQ(pages.position(), 0);
}

TEST(TabViewSwipe, EndsWellWhenAllPagesGoUnderTheFinger) {
    Pages pages;
    pages.screen.pull({290, 200}, {60, 200}, 1);

    pages.pager.count = 0;
    pages.screen.rebuild();
    pages.screen.up({60, 200});
    pages.screen.wait(3);

    EXPECT_THAT(pages.pager.writes, testing::IsEmpty());
}

TEST(TabViewSwipe, SettlesWhenTheTouchIsTakenAway) {
    Pages pages;
    pages.screen.pull({290, 200}, {60, 200}, 1);

    pages.screen.cancel();
    pages.screen.wait(3);

    EXPECT_EQ(pages.position(), pages.selected());
}

TEST(TabViewSwipe, ChangesTheSelectionWithAnAnimation) {
    struct Witness {
        View body(BuildContext& context) const {
            const Binding<int> page = context.state<int>(0);
            return ZStack{.content = {TabView{.selection = page,
                                              .content = {ForEach(3, [](int) { return ColorView{graphics::Color::black}; })}},
                                      box(10, 10, "witness") | opacity(page.get() == 0 ? 1 : 0) | allowsHitTesting(false)}};
        }
    };
    TouchScreen screen{[] { return Witness{}; }};

    screen.drag({290, 300}, {60, 300}, 1);
    screen.wait(0.1);

    EXPECT_GT(screen.find("witness").opacity, 0);
    EXPECT_LT(screen.find("witness").opacity, 1);
}

TEST(TabViewSwipe, LeavesDragsAlongToTheScrollViewAround) {
    Pager pager;
    TouchScreen screen{[&pager] {
        return ScrollView{.content = {VStack{.spacing = 0, .content = {PagerView{&pager}, box(300, 900, "rest")}}}};
    }};

    screen.pull({150, 150}, {140, 100}, 0.3);
    EXPECT_DOUBLE_EQ(screen.offset().y, 40);
    EXPECT_EQ(screen.frame("page0").minX(), 0);
    screen.up({140, 100});
    screen.wait(5);
    screen.host().scroll({150, 100}, {0, -1000});

    screen.pull({250, 150}, {150, 190}, 0.3);
    EXPECT_EQ(screen.offset().y, 0);
    EXPECT_NEAR(screen.frame("page0").minX(), -90, 1e-9);
}

TEST(TabViewSwipe, LeavesTapsToControlsOnThePages) {
    int taps = 0;
    TouchScreen screen{[&taps] {
        return TabView{
            .selection = Binding<int>::constant(0),
            .content = {Button{.action = [&taps] { ++taps; }, .label = box(100, 100, "button")}, box(100, 100, "other")}};
    }};

    screen.tap({150, 200});
    EXPECT_EQ(taps, 1);

    screen.drag({150, 200}, {130, 200}, 0.3);
    EXPECT_EQ(taps, 1);
}

// --- From right to left

TEST(TabViewRightToLeft, RunsTheOtherWay) {
    Pages pages;
    pages.screen.setRightToLeft();
    EXPECT_EQ(pages.screen.frame("page0").minX(), 0);
    EXPECT_EQ(pages.screen.frame("page1").minX(), -300);

    pages.screen.pull({50, 200}, {150, 200}, 0.3);
    EXPECT_NEAR(pages.screen.frame("page0").minX(), 90, 1e-9);
    EXPECT_NEAR(pages.screen.frame("page1").minX(), -210, 1e-9);

    pages.screen.up({150, 200});
    pages.screen.wait(2);
    EXPECT_EQ(pages.selected(), 1);
    EXPECT_EQ(pages.screen.frame("page1").minX(), 0);
}

// --- Whatever fingers do

TEST(TabView, SettlesOnAPageAfterAnythingThatAFingerDoes) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random{seed};
        std::uniform_real_distribution<double> x{-50, 350}, pause{0, 0.4};
        std::uniform_int_distribution<int> what{0, 6}, page{0, 3};
        Pages pages;
        for (int action = 0; action < 30; ++action) {
            const geometry::Point at{x(random), 200};
            switch (what(random)) {
            case 0: pages.screen.down(at); break;
            case 1:
            case 2: pages.screen.move(at); break;
            case 3: pages.screen.up(at); break;
            case 4: pages.screen.drag(at, {x(random), 200}, pause(random)); break;
            case 5: pages.select(page(random), slow); break;
            default: pages.select(page(random));
            }
            pages.screen.wait(pause(random));
            ASSERT_TRUE(std::isfinite(pages.position()));
            ASSERT_GT(pages.position(), -1);
            ASSERT_LT(pages.position(), 4);
        }
        pages.screen.up({0, 200});
        pages.screen.wait(10);
        ASSERT_EQ(pages.position(), pages.selected());
        ASSERT_FALSE(pages.screen.bed().loop().nextDueTime_s());
    }
}

} // namespace
