#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Graphics/TextPainting.hpp"
#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using geometry::LayoutDirection;
using geometry::Point;
using geometry::Rect;
using ::testing::ElementsAre;

constexpr RGBA black{0, 0, 0}, red{255, 0, 0};
constexpr Rect box{{100, 200}, {50, 40}};

class TextPaintingTest : public ::testing::Test {
protected:
    void paint(const ShapedTextPointer& text, const TextLayoutRequest& request, TextAlignment alignment,
               std::vector<TextRunPaint> paints = {{black}}) {
        PaintContext context(list);
        paintTextLayout(context, {}, laidOut(*text, request), text, ellipsis, box, alignment, paints);
    }

    std::vector<Point> baselines() const {
        std::vector<Point> points;
        for (const Command& command : list.commands) {
            if (command.kind == CommandKind::text) points.push_back(command.frame.origin);
        }
        return points;
    }

    const ShapedTextPointer ellipsis = shaped("…");
    DisplayList list;
};

TEST_F(TextPaintingTest, PutsLinesUnderOneAnotherOnTheirBaselines) {
    paint(shaped("one two"), {.width = 20, .lineSpacing = 3}, TextAlignment::leading);

    EXPECT_THAT(baselines(), ElementsAre(Point{100, 210}, Point{100, 225.5}));
}

TEST_F(TextPaintingTest, AlignsEveryLineInTheBox) {
    paint(shaped("one ab"), {.width = 20}, TextAlignment::center);

    EXPECT_THAT(baselines(), ElementsAre(Point{117.5, 210}, Point{120, 222.5}));
}

// Under a transform every line is looked at, so its list is the measure.
TEST_F(TextPaintingTest, PaintsEveryLineThatReachesIntoTheClip) {
    const ShapedTextPointer text = shaped("a b c d e f g h i j k l m n o p q r s t u v w x y z");
    const TextLayout layout = laidOut(*text, {.width = 5, .lineSpacing = 2});
    const std::vector<TextRunPaint> paints{{black}};
    const auto painted = [&](const PaintState& state, const Rect& place) {
        DisplayList painting;
        PaintContext context(painting);
        paintTextLayout(context, state, layout, text, ellipsis, place, TextAlignment::leading, paints);
        std::vector<std::uint32_t> lines;
        for (const Command& command : painting.commands) lines.push_back(command.firstCluster);
        return lines;
    };
    constexpr Rect place{{0, 0}, {5, 400}};
    for (double top = -10; top < 400; top += 0.75) {
        const PaintState clipped = PaintState{}.clippedTo({{0, top}, {5, 20}});
        const PaintState mirrored = clipped.transformedBy(geometry::Transform::scaling(-1, 1).about({2.5, 0}));

        EXPECT_EQ(painted(clipped, place), painted(mirrored, place)) << "clipped from " << top;
    }
}

TEST(LineOffset, FollowsTheDirection) {
    using enum LayoutDirection;

    EXPECT_EQ(lineOffset(50, 20, TextAlignment::leading, leftToRight), 0);
    EXPECT_EQ(lineOffset(50, 20, TextAlignment::trailing, leftToRight), 30);
    EXPECT_EQ(lineOffset(50, 20, TextAlignment::leading, rightToLeft), 30);
    EXPECT_EQ(lineOffset(50, 20, TextAlignment::trailing, rightToLeft), 0);
    EXPECT_EQ(lineOffset(50, 20, TextAlignment::center, rightToLeft), 15);
}

TEST_F(TextPaintingTest, ColoursEachRun) {
    paint(shaped({styled("ab"), styled("c")}), {}, TextAlignment::leading, {{black}, {red}});

    ASSERT_EQ(list.commands.size(), 2u);
    EXPECT_EQ(list.commands[0].color, black);
    EXPECT_EQ(list.commands[1].color, red);
    EXPECT_EQ(list.commands[1].frame.origin, (Point{110, 210}));
}

TEST_F(TextPaintingTest, GivesRunsWithoutAPaintOfTheirOwnTheLastOne) {
    paint(shaped({styled("ab"), styled("c")}), {}, TextAlignment::leading, {{red}});

    EXPECT_EQ(list.commands.back().color, red);
}

TEST_F(TextPaintingTest, StrikesARunThroughAboveItsBaseline) {
    paint(shaped({styled("was ", 16), styled("now", 16)}), {}, TextAlignment::leading, {{red, true}, {black}});

    ASSERT_EQ(list.commands.size(), 3u);
    const Command& line = list.commands[1];
    EXPECT_EQ(line.kind, CommandKind::fillRectangle);
    EXPECT_EQ(line.color, red);
    EXPECT_EQ(line.frame.minX(), 100);
    EXPECT_EQ(line.frame.size, (geometry::Size{32, 1})); // the blank between the runs included
    EXPECT_NEAR(line.frame.midY(), 216 - 0.3 * 16, 1e-9);
}

TEST_F(TextPaintingTest, EndsACutLineWithTheEllipsis) {
    paint(shaped("wonderful"), {.width = 20, .lineLimit = 1, .ellipsisWidth = 5}, TextAlignment::leading);

    EXPECT_THAT(baselines(), ElementsAre(Point{100, 210}, Point{115, 210}));
    EXPECT_EQ(list.texts.back(), ellipsis);
}

TEST_F(TextPaintingTest, PutsTheEllipsisWhereTheParagraphReadsTo) {
    paint(shaped("אבגדהו"), {.width = 20, .lineLimit = 1, .ellipsisWidth = 5}, TextAlignment::leading);

    EXPECT_THAT(baselines(), ElementsAre(Point{105, 210}, Point{100, 210}));
}

TEST_F(TextPaintingTest, AlignsAParagraphLikeTheScreenWhateverItsOwnDirection) {
    paint(shaped("wonderful", LayoutDirection::rightToLeft),
          {.width = 20, .lineLimit = 1, .direction = LayoutDirection::rightToLeft, .ellipsisWidth = 5}, TextAlignment::leading);

    EXPECT_THAT(baselines(), ElementsAre(Point{130, 210}, Point{145, 210}));
}

TEST_F(TextPaintingTest, LeavesOutLinesThatAreClippedAway) {
    const auto text = shaped("a\nb\nc\nd\ne\nf");
    PaintContext context(list);
    const std::vector<TextRunPaint> paints{{black}};
    const PaintState state = PaintState{}.clippedTo({{0, 25.5}, {50, 6}}); // amid the third line
    paintTextLayout(context, state, laidOut(*text, {}), text, ellipsis, {{0, 0}, {50, 75}}, TextAlignment::leading, paints);

    EXPECT_LE(list.commands.size(), 3u);
    EXPECT_GE(list.commands.size(), 1u);
}

TEST_F(TextPaintingTest, PaintsNothingForAnEmptyText) {
    paint(shaped(""), {}, TextAlignment::leading);

    EXPECT_TRUE(list.commands.empty());
}

} // namespace
} // namespace proupsells::graphics
