#include "Tests/SwiftUI/TouchScreen.hpp"

using namespace proupsells;

using namespace swiftui;
using proupsells::tests::box;
using proupsells::tests::middle;
using proupsells::tests::TouchScreen;

namespace {

View tappable(int& taps) {
    return VStack{.spacing = 40, .content = {box(100, 30, "top"), box(60, 30, "bottom")}} | onTapGesture([&taps] { ++taps; }) |
           accessibilityIdentifier("tappable");
}

TEST(TapGesture, AnswersAnywhereInTheFrame) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps); }};

    screen.tap(middle);     // between the two
    screen.tap({102, 248}); // beside the smaller one

    EXPECT_EQ(taps, 2);
}

TEST(TapGesture, DoesNotAnswerOutsideTheFrame) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps); }};

    screen.tap({98, 200});

    EXPECT_EQ(taps, 0);
}

TEST(TapGesture, LeavesAControlInsideItsTouch) {
    int taps = 0, presses = 0;
    TouchScreen screen{[&] {
        return VStack{
                   .content = {box(100, 50, "top"), Button{.action = [&presses] { ++presses; }, .label = box(100, 50, "button")}}} |
               onTapGesture([&taps] { ++taps; });
    }};

    screen.tap(screen.frame("button").center());
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(taps, 0);

    screen.tap(screen.frame("top").center());
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(taps, 1);
}

TEST(TapGesture, OnlyTheInnermostOneActs) {
    int inner = 0, outer = 0;
    TouchScreen screen{[&] { return tappable(inner) | padding(20) | onTapGesture([&outer] { ++outer; }); }};

    screen.tap(middle);

    EXPECT_EQ(inner, 1);
    EXPECT_EQ(outer, 0);
}

TEST(TapGesture, IsNoTapOnceTheFingerHasMoved) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps); }};

    screen.down(middle);
    screen.move({150, 211});
    screen.up(middle);
    EXPECT_EQ(taps, 0);

    screen.down(middle);
    screen.move({150, 208});
    screen.up({150, 208});
    EXPECT_EQ(taps, 1);
}

TEST(TapGesture, RestsWhileDisabled) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps) | disabled(true); }};

    screen.tap(middle);

    EXPECT_EQ(taps, 0);
}

TEST(TapGesture, MakesTheViewAControlWithoutCallingItAButton) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps); }};
    const accessibility::SemanticNode node = screen.find("tappable");

    EXPECT_TRUE(node.isControl);
    EXPECT_EQ(node.traits, accessibility::Traits::none);

    node.activate();
    EXPECT_EQ(taps, 1);
}

TEST(TapGesture, LetsTheFingerMoveByTenPoints) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps); }};

    screen.down(middle);
    screen.move({middle.x + 6, middle.y + 8});
    screen.up(middle);
    EXPECT_EQ(taps, 1);

    screen.down(middle);
    screen.move({middle.x + 6, middle.y + 8.1});
    screen.up(middle);
    EXPECT_EQ(taps, 1);
}

TEST(TapGesture, BelongsToTheFirstOfTwoFingers) {
    int taps = 0;
    TouchScreen screen{[&] { return tappable(taps); }};

    EXPECT_TRUE(screen.down(middle));
    EXPECT_TRUE(screen.down({5, 5})); // beside everything, and yet the touch is taken
    EXPECT_TRUE(screen.up(middle));

    EXPECT_EQ(taps, 1);
    EXPECT_FALSE(screen.down({5, 5}));
}

} // namespace
