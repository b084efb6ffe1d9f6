// Fingers on what is inside a scroll view.
#include "Tests/SwiftUI/Rows.hpp"

using namespace proupsells;

using namespace swiftui;
using namespace proupsells::tests;

namespace {

struct RowOfButtons {
    int taps = 0;
    bool wasPressed = false;
    TouchScreen screen{[this] {
        return ScrollView{.content = {VStack{.spacing = 0,
                                             .content = {Button{.action = [this] { ++taps; }, .label = box(300, 100, "button")},
                                                         box(300, 900, "rest")}}}};
    }};
    bool isPressed() { return screen.find("button").opacity < 1; }
};

TEST(ScrollViewTouches, GoToAControlInside) {
    RowOfButtons row;

    row.screen.tap({150, 50});

    EXPECT_EQ(row.taps, 1);
}

TEST(ScrollViewTouches, AreTakenFromAControlThatIsDragged) {
    RowOfButtons row;
    row.screen.down({150, 90});
    EXPECT_TRUE(row.isPressed());

    row.screen.move({150, 84});
    EXPECT_TRUE(row.isPressed());

    row.screen.move({150, 79});
    EXPECT_FALSE(row.isPressed());
    EXPECT_DOUBLE_EQ(row.screen.offset().y, 1);

    row.screen.move({150, 90}); // back where it came from
    row.screen.up({150, 90});
    EXPECT_EQ(row.taps, 0);
}

TEST(ScrollViewTouches, StayWithAControlThatIsDraggedAcross) {
    RowOfButtons row;

    row.screen.down({100, 50});
    row.screen.move({180, 60});
    row.screen.up({180, 60});

    EXPECT_EQ(row.taps, 1);
    EXPECT_EQ(row.screen.offset().y, 0);
}

TEST(ScrollViewTouches, DragAlsoWithoutAMoveInBetween) {
    RowOfButtons row;

    row.screen.down({150, 90});
    row.screen.up({150, 40});

    EXPECT_EQ(row.taps, 0);
    EXPECT_DOUBLE_EQ(row.screen.offset().y, 40);
}

TEST(ScrollViewTouches, DoNotReachWhatIsScrolledAway) {
    RowOfButtons row;
    row.screen.host().scroll({150, 200}, {0, 100});
    row.screen.settle();

    row.screen.tap({150, 20});

    EXPECT_EQ(row.taps, 0);
}

TEST(ScrollViewTouches, SurviveTheControlThatTheyBeganOn) {
    bool isThere = true;
    TouchScreen screen{[&] {
        View button = isThere ? View{Button{.action = [] {}, .label = box(300, 100, "button")}} : View{};
        return ScrollView{.content = {VStack{.spacing = 0, .content = {button, box(300, 900, "rest")}}}};
    }};
    screen.down({150, 90});

    isThere = false;
    screen.rebuild();
    screen.move({150, 60});

    EXPECT_DOUBLE_EQ(screen.offset().y, 20);
}

TEST(ScrollViewTouches, AcrossGoToTheStripInside) {
    TouchScreen screen{[] {
        return ScrollView{
            .content = {VStack{.spacing = 0,
                               .content = {ScrollView{.axis = Axis::horizontal, .content = {box(1000, 100, "strip")}} |
                                               frame(300, 100) | accessibilityIdentifier("stripView"),
                                           box(300, 900, "rest")}}}};
    }};

    screen.pull({200, 50}, {150, 45}, 0.2);
    EXPECT_DOUBLE_EQ(screen.frame("strip").minX(), -40);
    EXPECT_EQ(screen.offset().y, 0);

    // Once it is dragged across, it is not dragged along.
    screen.move({150, 0});
    EXPECT_EQ(screen.offset().y, 0);
    screen.up({150, 0});
    screen.wait(3);

    screen.pull({200, 50}, {195, 0}, 0.2);
    EXPECT_DOUBLE_EQ(screen.offset().y, 40);
}

TEST(ScrollViewTouches, GoToTheInnerOfTwoAlongTheSameAxis) {
    TouchScreen screen{[] {
        return ScrollView{.content = {VStack{.spacing = 0,
                                             .content = {ScrollView{.content = {box(300, 1000, "inner")}} | frame(300, 200),
                                                         box(300, 900, "outer")}}}};
    }};

    screen.pull({150, 150}, {150, 100}, 0.2);

    EXPECT_DOUBLE_EQ(screen.frame("inner").minY(), -40);
    EXPECT_DOUBLE_EQ(screen.frame("outer").minY(), 200);
}

} // namespace
