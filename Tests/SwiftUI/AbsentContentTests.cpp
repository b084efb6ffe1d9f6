// Views of which nothing is left, with modifiers that stay.
#include <gmock/gmock.h>

#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using geometry::Point;
using geometry::Rect;
using proupsells::tests::box;
using proupsells::tests::TouchScreen;

// A box in the middle of the screen, or nothing, in a group around which everything stays.
class AbsentContent : public testing::Test {
protected:
    View content() const { return isThere ? Group{.content = {box(100, 50, "box")}} : Group{}; }
    void show(bool isThereNow) {
        isThere = isThereNow;
        screen.rebuild();
    }
    bool tells(std::string_view identifier) {
        const accessibility::SemanticNode tree = screen.tree();
        return accessibility::findByIdentifier(tree, identifier) != nullptr;
    }
    std::size_t commandCount() { return screen.host().displayList().commands.size(); }

    bool isThere = true;
    int taps = 0;
    TouchScreen screen{[this] {
        return content() | background(box(120, 70, "behind")) | padding(10) | onTapGesture([this] { ++taps; }) |
               accessibilityIdentifier("whole");
    }};
};

TEST_F(AbsentContent, LeavesNothingPainted) {
    EXPECT_EQ(commandCount(), 2u);

    show(false);
    EXPECT_EQ(commandCount(), 0u);
    show(true);
    EXPECT_EQ(commandCount(), 2u);
}

TEST_F(AbsentContent, LeavesNothingToTouch) {
    const Point middle{150, 200};
    screen.tap(middle);
    EXPECT_EQ(taps, 1);

    show(false);
    screen.tap(middle);
    EXPECT_EQ(taps, 1);
    show(true);
    screen.tap(middle);
    EXPECT_EQ(taps, 2);
}

TEST_F(AbsentContent, LeavesNothingToTell) {
    EXPECT_TRUE(tells("behind"));

    show(false);
    EXPECT_FALSE(tells("behind"));
    EXPECT_FALSE(tells("whole"));
}

TEST_F(AbsentContent, ComesBackAtItsPlaceWithoutAWayFromTheFormerOne) {
    show(false);
    const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
    show(true);

    ASSERT_EQ(commandCount(), 2u);
    EXPECT_EQ(screen.host().displayList().commands[1].frame, (Rect{{100, 175}, {100, 50}}));
}

// The group is of no size and place of its own in a stack.
TEST(AbsentContentInAGroup, LeavesNothingPainted) {
    bool isThere = true;
    TouchScreen screen{[&] {
        const View inside = isThere ? Group{.content = {box(100, 50, "box")}} : Group{};
        return VStack{.content = {Group{.content = {inside | background(box(120, 70, "behind")), box(10, 10, "other")}}}};
    }};
    EXPECT_EQ(screen.host().displayList().commands.size(), 3u);

    isThere = false;
    screen.rebuild();

    EXPECT_EQ(screen.host().displayList().commands.size(), 1u);
}

// What fades out stays where it is until it has gone, and so does what belongs to it.
TEST(FadingContent, KeepsItsPlaceUntilItHasGone) {
    bool isThere = true;
    TouchScreen screen{[&] {
        const View inside = isThere ? View{box(100, 50, "box") | transition(AnyTransition::opacity())} : View{};
        return Group{.content = {inside}} | background(box(120, 70, "behind")) | padding(10);
    }};
    isThere = false;
    {
        const Transaction::Scope scope(motion::Animation{motion::TimingCurve::linear(), 1});
        screen.host().setNeedsUpdate();
    }
    screen.settle();
    screen.wait(0.5);
    const auto& commands = screen.host().displayList().commands;
    ASSERT_EQ(commands.size(), 2u);
    EXPECT_FLOAT_EQ(commands[1].opacity, 0.5f);
    EXPECT_EQ(commands[1].frame, (Rect{{100, 175}, {100, 50}}));

    screen.wait(0.6);
    EXPECT_TRUE(screen.host().displayList().commands.empty());
}

} // namespace
} // namespace proupsells::swiftui::tests
