// How far and how fast a finger must go for a control, a page or a list to take it.
#include <gmock/gmock.h>

#include "Tests/SwiftUI/Pages.hpp"

using namespace proupsells;

using namespace swiftui;
using namespace proupsells::tests;

namespace {

// --- Buttons ---

struct ButtonUnderAFinger {
    int count = 0;
    TouchScreen screen{[this] {
        return Button{.action = [this] { ++count; }, .label = box(100, 50, "label")} | accessibilityIdentifier("button");
    }};

    // The button stands from 100 to 200 and from 175 to 225.
    bool actsAfterLiftingAt(geometry::Point place) {
        const int before = count;
        screen.down({150, 200});
        screen.move(place);
        screen.up(place);
        return count > before;
    }
};

TEST(FingerOnAButton, MaySlipByAFingersWidthOnEachSide) {
    ButtonUnderAFinger button;

    EXPECT_TRUE(button.actsAfterLiftingAt({56, 131}));
    EXPECT_TRUE(button.actsAfterLiftingAt({243.9, 268.9}));
    EXPECT_FALSE(button.actsAfterLiftingAt({55.9, 200}));
    EXPECT_FALSE(button.actsAfterLiftingAt({150, 130.9}));
    EXPECT_FALSE(button.actsAfterLiftingAt({244.1, 200}));
    EXPECT_FALSE(button.actsAfterLiftingAt({150, 269.1}));
}

TEST(MouseOverAButton, IsAnsweredUnlessItIsPressed) {
    ButtonUnderAFinger button;
    const auto opacity = [&] { return button.screen.find("button").opacity; };

    EXPECT_EQ(opacity(), 1);
    button.screen.host().hover(geometry::Point{150, 200});
    EXPECT_EQ(opacity(), 0.88);
    button.screen.down({150, 200});
    EXPECT_EQ(opacity(), 1);
    EXPECT_EQ(button.screen.find("label").opacity, 0.5);
    button.screen.up({150, 200});
    EXPECT_EQ(opacity(), 0.88);
    button.screen.host().hover(std::nullopt);
    EXPECT_EQ(opacity(), 1);
}

TEST(MouseOverAButton, AsksForAPicture) {
    ButtonUnderAFinger button;
    button.screen.host().displayList();
    int pictures = 0;
    button.screen.host().setNeedsDisplayHandler([&] { ++pictures; });

    button.screen.host().hover(geometry::Point{150, 200});

    EXPECT_EQ(pictures, 1);
}

// --- Pages ---

TEST(FingerOnPages, TurnsThemByItsSpeedFromTwoHundredAndFiftyPointsASecondOn) {
    const auto pageAfter = [](double speed, int startPage) {
        Pages pages;
        pages.select(startPage);
        const double distance = speed * 0.2;
        pages.screen.drag({150, 200}, {150 - distance, 200}, 0.2);
        pages.screen.wait(2);
        return pages.selected();
    };
    EXPECT_EQ(pageAfter(245, 1), 1);
    EXPECT_EQ(pageAfter(255, 1), 2);
    EXPECT_EQ(pageAfter(-245, 1), 1);
    EXPECT_EQ(pageAfter(-255, 1), 0);
    EXPECT_EQ(pageAfter(255, 3), 3);
    EXPECT_EQ(pageAfter(-255, 0), 0);
}

TEST(FingerOnPages, TurnsThemFromHalfAPageOn) {
    const auto pageAfter = [](double distance) {
        Pages pages;
        pages.screen.pull({290, 200}, {290 - distance, 200}, 1);
        pages.screen.wait(0.5);
        pages.screen.up({290 - distance, 200});
        pages.screen.wait(2);
        return pages.selected();
    };
    // Ten points of the way are the threshold's.
    EXPECT_EQ(pageAfter(159), 0);
    EXPECT_EQ(pageAfter(161), 1);
}

// --- Lists ---

struct ListUnderAFinger {
    Axis axis = Axis::vertical;
    TouchScreen screen{[this] {
        return ScrollView{.axis = axis, .content = {axis == Axis::vertical ? box(300, 2000, "long") : box(2000, 400, "long")}};
    }};
};

TEST(FingerOnAList, MovesItSixtyTimesASecondAfterAFlick) {
    ListUnderAFinger list;
    list.screen.drag({150, 300}, {150, 200}, 0.2);
    ASSERT_TRUE(list.screen.host().isAnimating());

    const auto next_s = list.screen.bed().loop().nextDueTime_s();

    ASSERT_TRUE(next_s);
    EXPECT_GT(*next_s, list.screen.now_s());
    EXPECT_LE(*next_s, list.screen.now_s() + 1.0 / 60 + 1e-9);
    list.screen.wait(10);
    EXPECT_EQ(list.screen.bed().loop().nextDueTime_s(), std::nullopt);
}

TEST(FingerOnAList, AWheelTurnsItTheWayThatItReads) {
    ListUnderAFinger list{Axis::horizontal};
    list.screen.host().scroll({150, 200}, {40, 0});
    list.screen.settle();
    EXPECT_EQ(list.screen.offset(), (geometry::Point{40, 0}));

    ListUnderAFinger mirrored{Axis::horizontal};
    mirrored.screen.setRightToLeft();
    EXPECT_EQ(mirrored.screen.offset(), (geometry::Point{1700, 0}));
    mirrored.screen.host().scroll({150, 200}, {-40, 0});
    mirrored.screen.settle();
    EXPECT_EQ(mirrored.screen.offset(), (geometry::Point{1660, 0}));
    EXPECT_EQ(mirrored.screen.frame("long").minX(), -1660);
}

TEST(FingerOnAList, ShowsItsIndicatorWhereItStands) {
    ListUnderAFinger list;
    list.screen.host().scroll({150, 200}, {0, 800});
    list.screen.settle();

    const auto& commands = list.screen.host().displayList().commands;

    // Half-way down 2,000 points, of which 400 are seen.
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_NEAR(commands[1].frame.midY(), 200, 1e-6);
    EXPECT_NEAR(commands[1].frame.height(), 394 / 5.0, 1e-6);
    EXPECT_EQ(commands[1].frame.maxX(), 297);
}

TEST(SafeAreaOfAList, CountsAsFarAsTheListReachesOverIt) {
    const auto insetsOf = [](Axis axis, const geometry::EdgeInsets& around) {
        TouchScreen screen{
            [=] { return ScrollView{.axis = axis, .content = {box(1000, 1000, "large")}} | ignoresSafeArea() | padding(around); },
            {300, 400},
            {20, 30, 40, 50}};
        return screen.scrollInfo().contentInset;
    };
    EXPECT_EQ(insetsOf(Axis::vertical, {}), (geometry::PhysicalInsets{20, 0, 40, 0}));
    EXPECT_EQ(insetsOf(Axis::horizontal, {}), (geometry::PhysicalInsets{0, 30, 0, 50}));
    EXPECT_EQ(insetsOf(Axis::vertical, {1, 1, 1, 1}), (geometry::PhysicalInsets{}));
}

} // namespace
