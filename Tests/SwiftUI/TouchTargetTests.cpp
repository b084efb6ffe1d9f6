// Fingers that come down beside a control.
#include <gmock/gmock.h>

#include "Tests/SwiftUI/TouchScreen.hpp"

using namespace proupsells;

using namespace swiftui;
using proupsells::tests::box;
using proupsells::tests::TouchScreen;

namespace {

// Buttons in a row of 300 × 400 points, centred, that write down which of them acts.
class TouchTarget : public ::testing::Test {
protected:
    View button(double width, double height, const std::string& name) {
        return Button{.action = [this, name] { tapped += name; }, .label = box(width, height, name)};
    }

    std::string tapped;
};

TEST_F(TouchTarget, IsFortyFourPointsWideAndHigh) {
    TouchScreen screen([this] { return button(20, 10, "a"); });

    for (const geometry::Point place : {geometry::Point{129, 200}, {171, 200}, {150, 179}, {150, 221}, {129, 179}})
        screen.tap(place);
    EXPECT_EQ(tapped, "aaaaa");

    for (const geometry::Point place : {geometry::Point{127, 200}, {173, 200}, {150, 177}, {150, 223}}) screen.tap(place);
    EXPECT_EQ(tapped, "aaaaa");
}

TEST_F(TouchTarget, IsNoLargerThanALargeControl) {
    TouchScreen screen([this] { return button(100, 44, "a"); });

    screen.tap({150, 177.5});
    screen.tap({99.5, 200});

    EXPECT_EQ(tapped, "");
}

TEST_F(TouchTarget, IsTheContentShapeWhereThereIsOne) {
    TouchScreen screen([this] { return button(10, 10, "a") | padding(Edge::top, 30) | frame(44, 44) | contentShape(); });

    screen.tap({129, 179});
    screen.tap({171, 221});
    EXPECT_EQ(tapped, "aa");

    screen.tap({150, 223}); // within 22 points of the button's middle
    EXPECT_EQ(tapped, "aa");
}

TEST_F(TouchTarget, IsThatOfTheNearerControl) {
    // From 130 to 140 and from 160 to 170.
    TouchScreen screen([this] { return HStack{.spacing = 20, .content = {button(10, 10, "a"), button(10, 10, "b")}}; });

    screen.tap({148, 200});
    screen.tap({152, 200});

    EXPECT_EQ(tapped, "ab");
}

TEST_F(TouchTarget, LeavesAControlThatIsHitToItself) {
    TouchScreen screen([this] { return HStack{.spacing = 2, .content = {button(10, 10, "a"), button(100, 60, "b")}}; });

    // The small one ends at 104, the large one begins at 106.
    screen.tap({107, 200});

    EXPECT_EQ(tapped, "b");
}

TEST_F(TouchTarget, ReachesOverWhatIsNoControl) {
    TouchScreen screen([this] { return ZStack{.content = {Rectangle().fill(graphics::Color::white), button(10, 10, "a")}}; });

    screen.tap({150, 215});

    EXPECT_EQ(tapped, "a");
}

TEST_F(TouchTarget, EndsWhereItsSurroundingsAreClipped) {
    TouchScreen screen([this] { return button(10, 10, "a") | frame(20, 20) | clipped(); });

    screen.tap({150, 209});
    screen.tap({150, 211});

    EXPECT_EQ(tapped, "a");
}

TEST_F(TouchTarget, IsNoneOfAControlThatIsScrolledAway) {
    TouchScreen screen([this] {
        return VStack{.spacing = 0,
                      .content = {ScrollView{.content = VStack{.spacing = 0,
                                                               .content = {box(50, 100, "above"), button(50, 10, "a"),
                                                                           box(50, 500, "below")}}} |
                                      frame({.height = 100}),
                                  box(50, 100, "bar")}};
    });

    screen.tap({150, 195}); // the list ends at 200, and the button begins there
    screen.tap({150, 205});

    EXPECT_EQ(tapped, "");
}

TEST_F(TouchTarget, IsNoneOfAControlThatIsCovered) {
    TouchScreen screen([this] { return ZStack{.content = {button(30, 30, "a"), box(30, 30, "cover")}}; });

    screen.tap({150, 200});

    EXPECT_EQ(tapped, "");
}

TEST_F(TouchTarget, LetsTheFingerScrollFromBesideAControl) {
    TouchScreen screen([this] {
        return ScrollView{.content =
                              VStack{.spacing = 0, .content = {box(50, 100, "above"), button(50, 10, "a"), box(50, 900, "below")}}};
    });

    screen.drag({150, 117}, {150, 67}, 0.5);

    EXPECT_EQ(tapped, "");
    EXPECT_GT(screen.offset().y, 30);
}

TEST_F(TouchTarget, KeepsTheFingerThatWandersAsFarAsOneThatHit) {
    TouchScreen screen([this] { return button(20, 20, "a"); });

    screen.down({150, 221});
    screen.move({150, 240});
    screen.up({150, 240});
    EXPECT_EQ(tapped, "a");

    screen.down({150, 221});
    screen.move({150, 300});
    screen.up({150, 300});
    EXPECT_EQ(tapped, "a");
}

} // namespace
