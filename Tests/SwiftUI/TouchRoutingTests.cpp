#include "Tests/SwiftUI/TouchScreen.hpp"

using namespace proupsells;

using namespace swiftui;
using proupsells::tests::box;
using proupsells::tests::middle;
using proupsells::tests::TouchScreen;

namespace {

View button(int& taps, double width = 100, double height = 50) {
    return Button{.action = [&taps] { ++taps; }, .label = box(width, height, "label")};
}

TEST(TouchRouting, GoesToTheFrontMost) {
    int back = 0, front = 0;
    TouchScreen screen{[&] { return ZStack{.content = {button(back, 200, 200), button(front)}}; }};

    screen.tap(middle);
    EXPECT_EQ(front, 1);
    EXPECT_EQ(back, 0);

    screen.tap({60, 200});
    EXPECT_EQ(back, 1);
}

TEST(TouchRouting, StopsAtAnythingPaintedInFront) {
    int taps = 0;
    TouchScreen screen{[&] { return ZStack{.content = {button(taps), box(20, 20, "cover")}}; }};

    screen.tap(middle);
    EXPECT_EQ(taps, 0);

    screen.tap({120, 200});
    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, PassesThroughWhatIsSwitchedOffForTouches) {
    int taps = 0;
    TouchScreen screen{[&] { return ZStack{.content = {button(taps), box(100, 50, "cover") | allowsHitTesting(false)}}; }};

    screen.tap(middle);

    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, PassesThroughWhatIsFullyTransparent) {
    int hidden = 0, taps = 0;
    TouchScreen screen{[&] { return ZStack{.content = {button(taps), button(hidden) | opacity(0)}}; }};

    screen.tap(middle);

    EXPECT_EQ(taps, 1);
    EXPECT_EQ(hidden, 0);
}

TEST(TouchRouting, EndsAtAClip) {
    int taps = 0;
    TouchScreen screen{[&] { return button(taps, 200, 200) | frame(100, 100) | clipped(); }};

    screen.tap({60, 200}); // on the button, outside of what can be seen of it
    EXPECT_EQ(taps, 0);

    screen.tap({120, 200});
    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, FollowsScaling) {
    int taps = 0;
    TouchScreen screen{[&] { return button(taps) | scaleEffect(2); }};

    screen.tap({60, 160});

    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, SaysWhetherAnybodyHasTheTouch) {
    int taps = 0;
    TouchScreen screen{[&] { return button(taps); }};

    EXPECT_FALSE(screen.down({10, 10}));
    EXPECT_FALSE(screen.move(middle));
    EXPECT_FALSE(screen.up(middle));
    EXPECT_TRUE(screen.down(middle));
    EXPECT_TRUE(screen.up(middle));
    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, KnowsOneTouchAtATime) {
    int first = 0, second = 0;
    TouchScreen screen{[&] { return VStack{.content = {button(first), button(second)}}; }};
    const geometry::Point onFirst{150, 170}, onSecond{150, 230};

    screen.down(onFirst);
    screen.down(onSecond);
    screen.up(onFirst);

    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 0);
}

TEST(TouchRouting, BeginsAnewAfterATouchOnNothing) {
    int taps = 0;
    TouchScreen screen{[&] { return button(taps); }};

    screen.down({10, 10});
    screen.tap(middle);

    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, FindsViewsThatHaveJustChanged) {
    bool isThere = false;
    int taps = 0;
    TouchScreen screen{[&] { return isThere ? button(taps) : View{}; }};

    isThere = true;
    screen.host().setNeedsUpdate();
    screen.tap(middle);

    EXPECT_EQ(taps, 1);
}

TEST(TouchRouting, IsMirroredFromRightToLeft) {
    int taps = 0;
    TouchScreen screen{[&] { return HStack{.spacing = 0, .content = {button(taps), Spacer{}}}; }};
    screen.setRightToLeft();

    screen.tap({50, 200});
    EXPECT_EQ(taps, 0);

    screen.tap({250, 200});
    EXPECT_EQ(taps, 1);
}

} // namespace
