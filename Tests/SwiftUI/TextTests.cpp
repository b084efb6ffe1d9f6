// Words: wrapped, cut, aligned, scaled and described.
#include "Tests/SwiftUI/Screen.hpp"

namespace proupsells::swiftui::tests {
namespace {

using graphics::TextAlignment;
using testing::ElementsAre;

View words(const std::string& text) { return Text{text} | font(tenPoints); }

struct WrapCase {
    double width;
    Size expected;
    int lines;
};
class WrapTable : public testing::TestWithParam<WrapCase> {};

TEST_P(WrapTable, ATextIsAsWideAsItsWidestLine) {
    Screen screen{[] { return words("aaaa bb cccccc"); }, {GetParam().width, 200}};

    const auto node = screen.text("aaaa bb cccccc");

    EXPECT_EQ(node.frame.size, GetParam().expected);
    EXPECT_EQ(node.text->lineCount, GetParam().lines);
}
INSTANTIATE_TEST_SUITE_P(Widths, WrapTable,
                         testing::Values(WrapCase{100, {70, 12.5}, 1}, WrapCase{70, {70, 12.5}, 1}, WrapCase{69, {35, 25}, 2},
                                         WrapCase{34, {30, 37.5}, 3}, WrapCase{20, {20, 50}, 4}));

TEST(Text, IsCutWhereTheHeightRunsOut) {
    Screen screen{[] { return words("aaaa bbbb cccc dddd"); }, {50, 26}};

    const auto node = screen.text("aaaa bbbb cccc dddd");

    EXPECT_TRUE(node.text->isTruncated == false && node.text->lineCount == 2);
    screen.host().setSize({50, 24});
    screen.settle();
    EXPECT_TRUE(screen.text("aaaa bbbb cccc dddd").text->isTruncated);
    EXPECT_EQ(screen.text("aaaa bbbb cccc dddd").text->lineCount, 1);
}

TEST(Text, IsCutAtItsLineLimit) {
    Screen screen{[] { return words("aaaa bbbb cccc") | lineLimit(2); }, {25, 100}};

    const auto node = screen.text("aaaa bbbb cccc");

    EXPECT_EQ(node.text->lineCount, 2);
    EXPECT_TRUE(node.text->isTruncated);
    EXPECT_EQ(node.frame.height(), 25);
}

TEST(Text, ShrinksBeforeItIsCut) {
    Screen screen{[] { return words("aaaaaaaaaa") | lineLimit(1) | minimumScaleFactor(0.5); }, {40, 100}};

    const auto node = screen.text("aaaaaaaaaa");

    EXPECT_FALSE(node.text->isTruncated);
    EXPECT_NEAR(node.text->size, 8, 1e-9);
    EXPECT_NEAR(node.frame.width(), 40, 0.01);
}

TEST(Text, ShrinksAsFarAsItMay) {
    Screen screen{[] { return words("aaaaaaaaaa") | lineLimit(1) | minimumScaleFactor(0.72); }, {36.5, 100}};

    const auto node = screen.text("aaaaaaaaaa");

    EXPECT_FALSE(node.text->isTruncated);
    EXPECT_NEAR(node.text->size, 7.2, 1e-9);
}

TEST(Text, LinesStandApartByTheLineSpacing) {
    Screen screen{[] { return words("aaaa bbbb") | lineSpacing(8); }, {25, 100}};

    EXPECT_EQ(screen.text("aaaa bbbb").frame.height(), 33);
}

TEST(Text, LinesAreAlignedInTheTextsOwnWidth) {
    Screen screen{[] { return words("aaaa bb") | multilineTextAlignment(TextAlignment::center); }, {20, 100}};

    const auto& commands = screen.host().displayList().commands;

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].frame.minX(), 0);
    EXPECT_EQ(commands[1].frame.minX(), 5);
}

TEST(Text, KeepsItsOwnOrderOnAScreenFromRightToLeft) {
    Screen screen{[] {
                      return words("7 free days. אב") | frame(100, 20, Alignment::leading) |
                             layoutDirection(geometry::LayoutDirection::rightToLeft);
                  },
                  {100, 20}};

    const auto& commands = screen.host().displayList().commands;

    ASSERT_EQ(commands.size(), 2u);
    EXPECT_EQ(commands[0].firstCluster, 0u);
    EXPECT_EQ(commands[0].frame.minX(), 25); // at the right edge
    EXPECT_LT(commands[0].frame.minX(), commands[1].frame.minX());
}

TEST(Text, IsShownInCapitalsAndDescribedAsWritten) {
    Screen screen{[] { return words("Best Value") | textCase(TextCase::uppercase); }, {100, 100}};

    EXPECT_EQ(screen.text("Best Value").type, "Text");
    const auto& list = screen.host().displayList();
    ASSERT_EQ(list.texts.size(), 1u);
    EXPECT_EQ(list.texts.front()->runs.front().text, "BEST VALUE");
}

TEST(Text, FollowsTheContentSizeUnlessItsFontDoesNot) {
    Screen screen{[] {
                      return VStack{
                          .content = {Text{"scaled"} | font({.size = 17, .name = "body"}),
                                      Text{"fixed"} | font({.size = 17, .name = "fixed", .scalesWithContentSize = false})}};
                  },
                  {500, 500}};
    EnvironmentValues values = screen.host().environment();
    values.contentSize = graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge;

    screen.host().setEnvironment(values);
    screen.settle();

    EXPECT_DOUBLE_EQ(screen.text("scaled").text->size, 53);
    EXPECT_DOUBLE_EQ(screen.text("scaled").frame.width(), 6 * 26.5);
    EXPECT_DOUBLE_EQ(screen.text("fixed").text->size, 17);
}

TEST(Text, DescribesItsRuns) {
    const graphics::Font bold{.size = 12, .name = "bold", .weightOption = 2};
    const graphics::Color grey{"grey", graphics::rgb(0x888888), graphics::rgb(0x888888)};
    Screen screen{[&] {
                      graphics::AttributedString rich("was ", {.font = bold, .color = grey, .isStruckThrough = true});
                      rich.append({"now", {}});
                      return Text{rich} | font(tenPoints);
                  },
                  {200, 100}};

    const auto node = screen.text("was now");

    ASSERT_EQ(node.text->runs.size(), 2u);
    EXPECT_EQ(node.text->runs[0].font, "bold");
    EXPECT_EQ(node.text->runs[0].color, "grey");
    EXPECT_TRUE(node.text->runs[0].isStruckThrough);
    EXPECT_EQ(node.text->runs[1].font, "ten");
    EXPECT_EQ(node.text->runs[1].color, "primary");
    EXPECT_EQ(node.frame.size, (Size{4 * 6 + 3 * 5, 15}));
}

TEST(Text, AnEmptyTextHasAHeight) {
    Screen screen{[] { return words(""); }, {100, 100}};

    EXPECT_EQ(screen.text("").frame.size, (Size{0, 12.5}));
}

TEST(Text, ComesBeforeASpacerInARow) {
    Screen screen{[] { return HStack{.content = {words("aaaa bbbb"), Spacer{}, block("end", 10, 10)}}; }, {79, 100}};

    EXPECT_EQ(screen.text("aaaa bbbb").text->lineCount, 1);
    screen.host().setSize({78, 100});
    screen.settle();
    EXPECT_EQ(screen.text("aaaa bbbb").text->lineCount, 2);
    EXPECT_EQ(screen.frame("end").maxX(), 78);
}

TEST(Text, IsShapedOnceWhereNoWordIsWiderThanItsRoom) {
    Screen screen{[] { return words("aaaa bbbb cccc"); }, {50, 100}};
    const std::size_t before = screen.bed().fixedTextShaper()->shapeCount();

    for (double width = 20; width < 100; ++width) {
        screen.host().setSize({width, 100});
        screen.settle();
    }

    EXPECT_LE(screen.bed().fixedTextShaper()->shapeCount(), before + 1); // and the ellipsis
}

} // namespace
} // namespace proupsells::swiftui::tests
