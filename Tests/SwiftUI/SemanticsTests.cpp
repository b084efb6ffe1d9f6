// What the semantic tree says of a screen.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using testing::ElementsAre;

struct Card {
    View body(BuildContext&) const { return Text{"card"} | padding(5); }
    bool operator==(const Card&) const = default;
};

TEST(Semantics, ModifiersMakeNoNodes) {
    Screen screen{[] { return VStack{.content = {Card{}}} | padding() | opacity(0.5) | frame({.maxWidth = 100}); }, {100, 100}};

    const auto tree = screen.tree();

    EXPECT_EQ(tree.type, "VStack");
    ASSERT_EQ(tree.children.size(), 1u);
    EXPECT_EQ(tree.children[0].type, "Card");
    ASSERT_EQ(tree.children[0].children.size(), 1u);
    EXPECT_EQ(tree.children[0].children[0].type, "Text");
    EXPECT_EQ(tree.children[0].children[0].opacity, 0.5);
}

TEST(Semantics, AnIdentifierStandsOnTheModifiedFrame) {
    Screen screen{[] { return Card{} | padding(18) | frame(44, 44) | accessibilityIdentifier("close"); }, {100, 100}};

    const auto node = screen.node("close");

    EXPECT_EQ(node.type, "Card");
    EXPECT_EQ(node.frame, rect(28, 28, 44, 44));
}

TEST(Semantics, AnIdentifiersFrameComesBeforeALabels) {
    Screen screen{[] { return block("inner", 10, 10) | padding(5) | accessibilityLabel("Label"); }, {100, 100}};

    const auto node = screen.node("inner");

    EXPECT_EQ(node.label, "Label");
    EXPECT_EQ(node.frame.size, (Size{10, 10}));
}

TEST(Semantics, AnIdentifierGoesToTheViewNotToItsBackground) {
    Screen screen{
        [] { return Text{"front"} | background(RoundedRectangle(2)) | overlay(Circle()) | accessibilityIdentifier("id"); },
        {100, 100}};

    EXPECT_EQ(screen.node("id").type, "Text");
}

TEST(Semantics, ShapesTellTheirColoursByName) {
    const graphics::Color red{"red", graphics::rgb(0xFF0000), graphics::rgb(0xFF0000)};
    Screen screen{[&] {
                      return ZStack{.content = {RoundedRectangle(6).fill(red) | accessibilityIdentifier("fill"),
                                                Circle().stroke(2) | accessibilityIdentifier("ring")}};
                  },
                  {100, 100}};

    EXPECT_EQ(screen.node("fill").type, "RoundedRectangle");
    EXPECT_EQ(screen.node("fill").shape->fill, "red");
    EXPECT_EQ(screen.node("fill").shape->cornerRadius, 6);
    EXPECT_EQ(screen.node("ring").shape->stroke, "primary");
    EXPECT_EQ(screen.node("ring").shape->lineWidth, 2);
}

TEST(Semantics, NothingTransparentOrOutsideIsOnScreen) {
    Screen screen{[] {
                      return ZStack{.content = {block("seen", 10, 10), block("clear", 10, 10) | opacity(0),
                                                block("far", 10, 10) | offset(100, 0),
                                                block("cut", 10, 10) | offset(30, 0) | frame(20, 20) | clipped()}};
                  },
                  {100, 100}};

    EXPECT_TRUE(screen.node("seen").isOnScreen);
    EXPECT_FALSE(screen.node("clear").isOnScreen);
    EXPECT_FALSE(screen.node("far").isOnScreen);
    EXPECT_FALSE(screen.node("cut").isOnScreen);
    EXPECT_EQ(screen.node("cut").clip, rect(40, 40, 20, 20));
}

TEST(Semantics, FramesCountScalesIn) {
    Screen screen{[] { return block("box", 20, 20) | scaleEffect(0.5); }, {100, 100}};

    EXPECT_EQ(screen.frame("box"), rect(45, 45, 10, 10));
}

TEST(Semantics, HiddenViewsAreLeftOut) {
    Screen screen{[] { return VStack{.content = {Text{"seen"}, Text{"hidden"} | accessibilityHidden()}}; }, {100, 100}};

    EXPECT_THAT(screen.texts(), ElementsAre("seen"));
}

TEST(Semantics, TraitsOfSeveralModifiersAdd) {
    using accessibility::Traits;
    Screen screen{[] {
                      return Text{"x"} | accessibilityTraits(Traits::header) | accessibilityValue("v") |
                             accessibilityTraits(Traits::selected) | accessibilityIdentifier("id");
                  },
                  {100, 100}};

    EXPECT_EQ(screen.node("id").traits, Traits::header | Traits::selected);
    EXPECT_EQ(screen.node("id").value, "v");
}

TEST(HitTesting, TheFrontMostViewIsHit) {
    Screen screen{[] { return ZStack{.content = {filler("back"), block("front", 10, 10)}}; }, {100, 100}};

    EXPECT_NE(screen.host().nodeAt({50, 50}), screen.host().nodeAt({10, 10}));
}

TEST(HitTesting, TouchesPassThroughWhatIsSwitchedOffOrTransparentOrOnlyAnOutline) {
    for (const int i : {0, 1, 2, 3}) {
        Screen screen{[i] {
                          const View front = i == 2 ? View{RoundedRectangle(2).stroke(2)} : View{Rectangle()};
                          const View passed = i == 0 ? front | allowsHitTesting(false) : i == 1 ? front | opacity(0) : front;
                          return filler("back") | overlay(passed | frame(50, 50));
                      },
                      {100, 100}};
        SCOPED_TRACE(i);
        EXPECT_EQ(screen.host().nodeAt({50, 50}) == screen.host().nodeAt({5, 5}), i != 3);
    }
}

TEST(HitTesting, FollowsTransforms) {
    Screen screen{[] { return block("box", 20, 20) | scaleEffect(2) | offset(20, 0); }, {100, 100}};

    EXPECT_TRUE(screen.host().hits({85, 50}));
    EXPECT_FALSE(screen.host().hits({95, 50}));
    EXPECT_FALSE(screen.host().hits({45, 50}));
}

} // namespace
} // namespace proupsells::swiftui::tests
