// Strips in lists, insets, and what scroll views look like.
#include "Tests/UIKit/ScrollScene.hpp"

namespace proupsells::uikit {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Size;
using testing::DoubleNear;
using testing::IsEmpty;

// --- A strip in a list ---

class NestedScrollTest : public ScrollViewTest {
protected:
    NestedScrollTest() : strip(std::make_shared<UIScrollView>()) {
        content->addSubview(strip);
        strip->setFrame({{0, 100}, {375, 100}});
        strip->addSubview(viewAt({{0, 0}, {1000, 100}}));
        strip->setContentSize({1000, 100});
    }
    std::shared_ptr<UIScrollView> strip;
};

TEST_F(NestedScrollTest, TheDirectionOfTheMovementDecides) {
    drag({200, 150}, {160, 145});
    EXPECT_EQ(strip->contentOffset(), (Point{30, 0}));
    EXPECT_EQ(y(), 0);
    lift({160, 145});
    bed.runFor(5);

    drag({200, 150}, {195, 110});
    EXPECT_EQ(y(), 30);
    EXPECT_FALSE(strip->isTracking());
}

TEST_F(NestedScrollTest, OnceAStripIsDraggedTheListLeavesItAlone) {
    drag({200, 150}, {160, 150});
    move({160, 400});

    EXPECT_TRUE(strip->isDragging());
    EXPECT_FALSE(list->isTracking());
    EXPECT_EQ(y(), 0);
}

TEST_F(NestedScrollTest, WheelsMoveWhatCanMoveInTheirDirection) {
    window->scroll({100, 150}, {0, 40});
    EXPECT_EQ(y(), 40);
    window->scroll({100, 150}, {50, 0});
    EXPECT_EQ(strip->contentOffset().x, 50);
    window->scroll({100, 150}, {-500, 0});
    EXPECT_EQ(strip->contentOffset().x, 0);
}

TEST_F(NestedScrollTest, WhatIsToBeSeenIsScrolledToInAllScrollViewsAroundIt) {
    strip->setFrame({{0, 1500}, {375, 100}});
    const auto item = viewAt({{900, 0}, {50, 100}});
    item->accessibilityIdentifier = "item";
    strip->subviews()[0]->addSubview(item);

    item->scrollRectToVisible(item->bounds());
    EXPECT_EQ(strip->contentOffset().x, 950 - 375);
    EXPECT_EQ(y(), 1600 - 800);
    item->scrollRectToVisible(item->bounds());
    EXPECT_EQ(y(), 800);

    list->setContentOffset({});
    strip->setContentOffset({});
    const accessibility::SemanticNode before = window->semanticTree();
    accessibility::findByIdentifier(before, "item")->reveal();
    const accessibility::SemanticNode after = window->semanticTree();
    EXPECT_TRUE(accessibility::findByIdentifier(after, "item")->isOnScreen);
}

// --- Insets ---

TEST_F(ScrollViewTest, InsetsWidenTheRange) {
    list->setContentInset({.bottom = 136});
    window->scroll({10, 10}, {0, 5000});
    EXPECT_EQ(y(), 1336);

    list->setContentOffset({});
    list->setContentInset({.top = 20, .bottom = 136});
    EXPECT_EQ(y(), -20); // stays at its start
}

TEST_F(ScrollViewTest, SafeAreasCountAsInsetsUnlessTheyMustNot) {
    window->setSize({375, 800}, {.top = 44, .left = 10, .bottom = 34});
    bed.settle();
    EXPECT_EQ(list->adjustedContentInset(), (geometry::PhysicalInsets{.top = 44, .bottom = 34}));
    EXPECT_EQ(y(), -44);

    list->setContentInsetAdjustmentBehavior(UIScrollView::ContentInsetAdjustmentBehavior::never);
    EXPECT_EQ(list->adjustedContentInset(), (geometry::PhysicalInsets{}));
    EXPECT_EQ(y(), 0);
}

// --- Picture ---

TEST_F(ScrollViewTest, OnlyWhatCanBeSeenIsPainted) {
    for (int i = 0; i < 20; ++i) {
        const auto row = viewAt({{0, 100.0 * i}, {375, 100}});
        row->setBackgroundColor(UIColor::black);
        list->addSubview(row);
    }
    list->setShowsVerticalScrollIndicator(false);
    list->setContentOffset({0, 950});

    const auto commands = painted().commands;

    ASSERT_EQ(commands.size(), 9u);
    EXPECT_EQ(commands[0].frame, (Rect{{0, -50}, {375, 100}}));
    EXPECT_EQ(commands[0].clip, (Rect{{0, 0}, {375, 800}}));
}

TEST_F(ScrollViewTest, AnIndicatorShowsWhileContentMovesAndFadesAfterwards) {
    EXPECT_THAT(painted().commands, IsEmpty());
    drag({100, 600}, {100, 490});
    ASSERT_EQ(painted().commands.size(), 1u);
    // 800 of 2,000 on a track of 794, 100 of 1,200 down.
    EXPECT_THAT(painted().commands[0].frame.height(), DoubleNear(794 * 0.4, 1e-6));
    EXPECT_THAT(painted().commands[0].frame.minY(), DoubleNear(3 + 794 * 0.6 / 12, 1e-6));

    EXPECT_FALSE(window->isAnimating()); // a finger that rests asks for no frames
    touch(host::TouchPhase::cancelled, {100, 490});
    bed.runFor(0.5);
    EXPECT_LT(painted().commands[0].opacity, 1);
    EXPECT_TRUE(window->isAnimating());
    bed.runFor(0.5);

    EXPECT_THAT(painted().commands, IsEmpty());
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(ScrollViewTest, SaysHowFarItIsScrolled) {
    list->setContentInset({.bottom = 102});
    list->setContentOffset({0, 40});

    const accessibility::SemanticNode node = window->semanticTree().children.at(0);

    EXPECT_EQ(node.type, "UIScrollView");
    EXPECT_EQ(node.scroll->contentOffset, (Point{0, 40}));
    EXPECT_EQ(node.scroll->contentSize, (Size{375, 2000}));
    EXPECT_EQ(node.scroll->contentInset.bottom, 102);
    EXPECT_EQ(node.children.at(0).frame, (Rect{{0, -40}, {375, 2000}}));
}

} // namespace
} // namespace proupsells::uikit
