// How rows, columns and layers share out their room.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

TEST(Stack, ARowStandsInTheMiddleWithEightBetweenItsViews) {
    Screen screen{[] { return HStack{.content = {block("a", 10, 20), block("b", 30, 10)}}; }, {100, 50}};

    EXPECT_EQ(screen.frame("a"), rect(26, 15, 10, 20));
    EXPECT_EQ(screen.frame("b"), rect(44, 20, 30, 10));
}

TEST(Stack, AColumnAlignsItsViewsAtTheirLeadingEdges) {
    Screen screen{[] {
                      return VStack{.alignment = HorizontalAlignment::leading,
                                    .spacing = 4,
                                    .content = {block("a", 10, 20), block("b", 30, 10)}};
                  },
                  {100, 50}};

    EXPECT_EQ(screen.frame("a"), rect(35, 8, 10, 20));
    EXPECT_EQ(screen.frame("b"), rect(35, 32, 30, 10));
}

TEST(Stack, ASpacerTakesWhatIsLeftAndCountsForSpacing) {
    Screen screen{[] {
                      return HStack{.content = {block("a", 10, 10), Spacer{} | accessibilityIdentifier("gap"), block("b", 10, 10)}};
                  },
                  {100, 10}};

    EXPECT_EQ(screen.frame("a"), rect(0, 0, 10, 10));
    EXPECT_EQ(screen.frame("gap"), rect(18, 5, 64, 0));
    EXPECT_EQ(screen.frame("b"), rect(90, 0, 10, 10));
}

// Lengths of the fixed views a and b around a spacer, for widths of 0 to 40: a spacer keeps its minimum, then the row overflows
// on both sides alike.
struct SpacerCase {
    double width;
    double firstX;
    double secondX;
};
class SpacerTable : public testing::TestWithParam<SpacerCase> {};

TEST_P(SpacerTable, SpacersKeepTheirMinimum) {
    Screen screen{[] { return HStack{.content = {block("a", 10, 10), Spacer{}, block("b", 10, 10)}}; }, {GetParam().width, 10}};

    EXPECT_EQ(screen.frame("a").minX(), GetParam().firstX);
    EXPECT_EQ(screen.frame("b").minX(), GetParam().secondX);
}
INSTANTIATE_TEST_SUITE_P(Widths, SpacerTable,
                         testing::Values(SpacerCase{0, -22, 12}, SpacerCase{20, -12, 22}, SpacerCase{40, -2, 32},
                                         SpacerCase{44, 0, 34}, SpacerCase{60, 0, 50}));

TEST(Stack, ASpacerIsServedLast) {
    Screen screen{[] { return HStack{.spacing = 0, .content = {Spacer{}, filler("a"), block("b", 10, 10)}}; }, {100, 10}};

    EXPECT_EQ(screen.frame("a"), rect(8, 0, 82, 10));
    EXPECT_EQ(screen.frame("b").minX(), 90);
}

TEST(Stack, ASpacerWithoutMinimumVanishes) {
    Screen screen{[] { return HStack{.content = {block("a", 10, 10), Spacer{.minLength = 0}, block("b", 10, 10)}}; }, {36, 10}};

    EXPECT_EQ(screen.frame("b").minX(), 26);
}

TEST(Stack, FlexibleViewsGetEqualParts) {
    Screen screen{[] { return HStack{.spacing = 0, .content = {filler("a"), block("b", 40, 10), filler("c")}}; }, {100, 20}};

    EXPECT_EQ(screen.frame("a"), rect(0, 0, 30, 20));
    EXPECT_EQ(screen.frame("b"), rect(30, 5, 40, 10));
    EXPECT_EQ(screen.frame("c"), rect(70, 0, 30, 20));
}

TEST(Stack, TheLeastFlexibleViewIsServedFirst) {
    Screen screen{[] {
                      return HStack{.spacing = 0,
                                    .content = {filler("wide"), ColorView{graphics::Color::black} |
                                                                    frame({.minWidth = 10, .maxWidth = 20}) |
                                                                    accessibilityIdentifier("narrow")}};
                  },
                  {100, 10}};

    EXPECT_EQ(screen.frame("narrow").width(), 20);
    EXPECT_EQ(screen.frame("wide").width(), 80);
}

TEST(Stack, ViewsOfHigherPriorityAreServedFirst) {
    Screen screen{
        [] {
            return HStack{.spacing = 0, .content = {filler("low"), filler("high") | layoutPriority(1), block("fixed", 15, 10)}};
        },
        {100, 10}};

    EXPECT_EQ(screen.frame("low").width(), 0);
    EXPECT_EQ(screen.frame("high").width(), 85);
    EXPECT_EQ(screen.frame("fixed").width(), 15);
}

TEST(Stack, GroupsLoopsAndCompositesOfThemAreSeenThrough) {
    Screen screen{[] {
                      return VStack{.spacing = 1,
                                    .content = {block("a", 10, 10),
                                                Group{.content = {block("b", 10, 10), View{}, block("c", 10, 10)}},
                                                ForEach(2, [](int i) { return block(i == 0 ? "d" : "e", 10, 10); }), EmptyView{}}};
                  },
                  {10, 54}};

    EXPECT_EQ(screen.frame("b").minY(), 11);
    EXPECT_EQ(screen.frame("c").minY(), 22);
    EXPECT_EQ(screen.frame("e").minY(), 44);
}

TEST(Stack, AbsentViewsTakeNoSpacingEvenWhenModified) {
    Screen screen{[] { return HStack{.content = {block("a", 10, 10), View{} | padding(), block("b", 10, 10)}}; }, {28, 10}};

    EXPECT_EQ(screen.frame("b").minX(), 18);
}

TEST(Stack, LayersAreAsLargeAsTheLargestAndAligned) {
    Screen screen{[] {
                      return ZStack{.alignment = Alignment::topTrailing,
                                    .content = {block("large", 60, 40), block("small", 10, 10)}} |
                             accessibilityIdentifier("stack");
                  },
                  {100, 100}};

    EXPECT_EQ(screen.frame("stack"), rect(20, 30, 60, 40));
    EXPECT_EQ(screen.frame("small"), rect(70, 30, 10, 10));
}

TEST(Stack, RightToLeftMirrorsPlaces) {
    Screen screen{[] {
                      return HStack{.content = {block("a", 10, 10), Spacer{}, block("b", 20, 10)}} | padding(Edge::leading, 5) |
                             layoutDirection(geometry::LayoutDirection::rightToLeft);
                  },
                  {100, 10}};

    EXPECT_EQ(screen.frame("a"), rect(85, 0, 10, 10));
    EXPECT_EQ(screen.frame("b"), rect(0, 0, 20, 10));
}

TEST(Stack, FirstBaselinesMeet) {
    Screen screen{[] {
                      return HStack{.alignment = VerticalAlignment::firstTextBaseline,
                                    .content = {Text{"a"} | font({.size = 20, .name = "big"}), Text{"b"} | font(tenPoints)}};
                  },
                  {100, 25}};

    EXPECT_EQ(screen.text("a").frame.minY() + 20, screen.text("b").frame.minY() + 10);
}

TEST(Stack, AnEmptyRowHasNoSize) {
    Screen screen{[] { return HStack{} | accessibilityIdentifier("row"); }, {100, 100}};

    EXPECT_EQ(screen.frame("row").size, (Size{0, 0}));
}

TEST(Stack, NestedStacksShareOutFromOutsideIn) {
    Screen screen{[] {
                      return HStack{.content = {VStack{.alignment = HorizontalAlignment::leading,
                                                       .content = {block("title", 50, 20), block("price", 30, 10)}},
                                                Spacer{}, block("circle", 24, 24)}} |
                             padding(Edge::horizontal, 14) | padding(Edge::vertical, 16) |
                             frame({.maxWidth = geometry::infinity, .minHeight = 90, .alignment = Alignment::leading}) |
                             accessibilityIdentifier("card");
                  },
                  {343, 90}};

    EXPECT_EQ(screen.frame("card"), rect(0, 0, 343, 90));
    EXPECT_EQ(screen.frame("title"), rect(14, 26, 50, 20));
    EXPECT_EQ(screen.frame("circle"), rect(305, 33, 24, 24));
}

} // namespace
} // namespace proupsells::swiftui::tests
