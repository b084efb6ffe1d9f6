#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tests/Graphics/ShapedTexts.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::graphics {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;

using Lines = std::vector<std::string>;

// Widths are in characters of 5 points.
struct WrapCase {
    std::string name;
    std::string text;
    double characters;
    Lines lines;
};

class Wrapping : public ::testing::TestWithParam<WrapCase> {};

TEST_P(Wrapping, BreaksGreedilyAtTheAllowedPlaces) {
    const auto& [name, text, characters, lines] = GetParam();

    EXPECT_EQ(linesOf(text, {.width = characters * 5}), lines);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Wrapping,
    ::testing::Values(
        WrapCase{"FitsExactly", "one two", 7, {"one two"}}, WrapCase{"OneCharacterTooNarrow", "one two", 6, {"one", "two"}},
        WrapCase{"BlanksHangAtTheEnd", "one   two", 3, {"one", "two"}},
        WrapCase{"BlanksBetweenWordsCount", "a  b c", 4, {"a  b", "c"}},
        WrapCase{"LeadingBlanksStay", "  one two", 5, {"  one", "two"}}, WrapCase{"TrailingBlanksNeedNoLine", "one   ", 3, {"one"}},
        WrapCase{"OnlyBlanks", "   ", 1, {""}}, WrapCase{"LongWordIsCut", "abcdefgh", 3, {"abc", "def", "gh"}},
        WrapCase{"LongWordStartsOnItsOwnLine", "x abcdefgh", 4, {"x", "abcd", "efgh"}},
        WrapCase{"RestOfALongWordSharesItsLine", "abcdef g", 4, {"abcd", "ef g"}},
        WrapCase{"NoRoomAtAll", "ab c", 0, {"a", "b", "c"}}, WrapCase{"LineFeed", "a\nb", 10, {"a", "b"}},
        WrapCase{"EmptyLine", "a\n\nb", 10, {"a", "", "b"}}, WrapCase{"LineFeedAtTheEnd", "a\n", 10, {"a", ""}},
        WrapCase{"OnlyALineFeed", "\n", 10, {"", ""}}, WrapCase{"CarriageReturnAndLineFeedAreOne", "a\r\nb", 10, {"a", "b"}},
        WrapCase{"LineSeparator",
                 "a\xE2\x80\xA8"
                 "b\xE2\x80\xA9"
                 "c",
                 10,
                 {"a", "b", "c"}},
        WrapCase{"LineFeedAfterAFullLine", "abc\ndef", 3, {"abc", "def"}}, WrapCase{"BlankBeforeALineFeed", "a \nb", 1, {"a", "b"}},
        WrapCase{"Hyphen", "well-known", 6, {"well-", "known"}},
        WrapCase{"NoBreakSpace",
                 "a\u00A0"
                 "b c",
                 3,
                 {"a\u00A0"
                  "b",
                  "c"}},
        WrapCase{"Empty", "", 10, {""}}),
    [](const auto& info) { return info.param.name; });

TEST(TextLayout, IsNeverWrappedWithoutAWidth) {
    EXPECT_EQ(linesOf(std::string(1000, 'x') + " y", {}), (Lines{std::string(1000, 'x') + " y"}));
}

// Texts whose lines may be filled otherwise than greedily.
Lines linesWithoutShortLast(const std::string& text, double characters, std::optional<double> height = {}) {
    ShapedText words = *shaped(text);
    words.keepsGreedyLines = false;
    return linesOf(words, laidOut(words, {.width = characters * 5, .height = height, .avoidsShortLastLine = true}));
}

TEST(TextLayout, TakesAWordDownToAShortLastLine) {
    EXPECT_EQ(linesWithoutShortLast("endless templates every day", 23), (Lines{"endless templates", "every day"}));
    EXPECT_EQ(linesWithoutShortLast("one two three four five six seven to", 16),
              (Lines{"one two three", "four five six", "seven to"}));
}

TEST(TextLayout, KeepsAShortLastLineWhereAnotherLineWouldBeNeeded) {
    EXPECT_EQ(linesWithoutShortLast("abcdefghijkl mnopqrstuvwx yz", 12), (Lines{"abcdefghijkl", "mnopqrstuvwx", "yz"}));
    EXPECT_EQ(linesWithoutShortLast("abcdefghijklmnop\nqr", 16), (Lines{"abcdefghijklmnop", "qr"}));
}

TEST(TextLayout, KeepsALastLineOfSeveralWordsOrOfALongOne) {
    EXPECT_EQ(linesWithoutShortLast("endless templates a b", 17), (Lines{"endless templates", "a b"}));
    EXPECT_EQ(linesWithoutShortLast("endless templates everyday", 17), (Lines{"endless templates", "everyday"}));
}

TEST(TextLayout, FillsLinesGreedilyWhereTheyAreToBeWorkedOut) {
    EXPECT_EQ(linesOf("endless templates every day", {.width = 23 * 5, .avoidsShortLastLine = true}),
              (Lines{"endless templates every", "day"}));
}

TEST(TextLayout, KnowsTheWidthOfWhatMayNotBeBroken) {
    EXPECT_EQ(unbreakableWidth(*shaped("a $119.99 well-known bb")), 35);
    EXPECT_EQ(unbreakableWidth(*shaped("1\u00A0199,99 a")), 40);
    EXPECT_EQ(unbreakableWidth(*shaped("")), 0);
}

TEST(TextLayout, ForgivesARoundingErrorInTheWidth) {
    EXPECT_EQ(linesOf("one two", {.width = 35 - 1e-7}), (Lines{"one two"}));
    EXPECT_EQ(linesOf("one two", {.width = 35 - 1e-5}), (Lines{"one", "two"}));
}

TEST(TextLayout, TakesTheWidestLinesWidthAndEveryLinesHeight) {
    const TextLayout layout = laidOut(*shaped("one three"), {.width = 25});

    EXPECT_EQ(layout.size, (geometry::Size{25, 25}));
    EXPECT_EQ(layout.lines[0].width, 15);
}

TEST(TextLayout, OfAnEmptyTextHasTheFontsHeightAndNoWidth) {
    const TextLayout layout = laidOut(*shaped({styled("", 20)}), {.width = 100});

    ASSERT_EQ(layout.lines.size(), 1u);
    EXPECT_EQ(layout.size, (geometry::Size{0, 25}));
    EXPECT_EQ(layout.lines[0].ascent, 20);
    EXPECT_TRUE(layout.fragments.empty());
}

TEST(TextLayout, GivesAnEmptyLastLineTheHeightOfTheTextBeforeIt) {
    const TextLayout layout = laidOut(*shaped({styled("small", 10), styled("BIG\n", 40)}), {});

    ASSERT_EQ(layout.lines.size(), 2u);
    EXPECT_EQ(layout.lines[1].height, 50);
}

TEST(TextLayout, PutsSpacingBetweenLinesOnly) {
    EXPECT_EQ(laidOut(*shaped("a b c"), {.width = 5, .lineSpacing = 4}).size.height, 3 * 12.5 + 2 * 4);
    EXPECT_EQ(laidOut(*shaped("a"), {.width = 5, .lineSpacing = 4}).size.height, 12.5);
}

TEST(TextLayout, AlignsRunsOfDifferentSizesOnOneBaseline) {
    const TextLayout layout = laidOut(*shaped({styled("a", 10), styled("b", 20)}), {});

    ASSERT_EQ(layout.lines.size(), 1u);
    EXPECT_EQ(layout.lines[0].ascent, 20);
    EXPECT_EQ(layout.lines[0].height, 25);
    EXPECT_EQ(layout.size.width, 15);
}

TEST(TextLayout, MeasuresEachLineByItsOwnRuns) {
    const TextLayout layout = laidOut(*shaped({styled("aaa ", 10), styled("b", 20)}), {.width = 16});

    ASSERT_EQ(layout.lines.size(), 2u);
    EXPECT_EQ(layout.lines[0].height, 12.5);
    EXPECT_EQ(layout.lines[1].height, 25);
}

TEST(TextLayout, CountsLetterSpacingAfterEveryCharacter) {
    EXPECT_EQ(laidOut(*shaped({styled("abc", 10, 0.5)}), {}).size.width, 16.5);
}

TEST(TextLayout, SplitsALineIntoItsRuns) {
    const auto text = shaped({styled("ab"), styled("cd"), styled("e")});
    const TextLayout layout = laidOut(*text, {.width = 15});

    ASSERT_EQ(layout.lines.size(), 2u);
    EXPECT_THAT(layout.fragments, ElementsAre(TextFragment{.firstCluster = 0, .endCluster = 2, .run = 0, .x = 0, .width = 10},
                                              TextFragment{.firstCluster = 2, .endCluster = 3, .run = 1, .x = 10, .width = 5},
                                              TextFragment{.firstCluster = 3, .endCluster = 4, .run = 1, .x = 0, .width = 5},
                                              TextFragment{.firstCluster = 4, .endCluster = 5, .run = 2, .x = 5, .width = 5}));
}

// Widths are in characters; the ellipsis is one wide.
TextLayoutRequest cutAfter(int lineLimit, double characters) {
    return {.width = characters * 5, .lineLimit = lineLimit, .ellipsisWidth = 5};
}

TEST(Truncation, EndsTheLastLineInAnEllipsis) { EXPECT_EQ(linesOf("one two three", cutAfter(2, 5)), (Lines{"one", "two…"})); }

TEST(Truncation, FillsTheLastLineUpToItsEnd) { EXPECT_EQ(linesOf("one wonderful day", cutAfter(1, 8)), (Lines{"one won…"})); }

TEST(Truncation, DropsBlanksBeforeTheEllipsis) { EXPECT_EQ(linesOf("one   wonderful day", cutAfter(1, 6)), (Lines{"one…"})); }

TEST(Truncation, ShowsTheEllipsisAloneWhereNothingElseFits) {
    EXPECT_EQ(linesOf("wonderful", cutAfter(1, 1)), (Lines{"…"}));
    EXPECT_EQ(linesOf("wonderful", cutAfter(1, 0)), (Lines{"…"}));
}

TEST(Truncation, DoesNotFillALineBeyondItsLineFeed) { EXPECT_EQ(linesOf("one\ntwo", cutAfter(1, 20)), (Lines{"one…"})); }

TEST(Truncation, CutsAnUnwrappedTextAtItsLineFeed) {
    EXPECT_EQ(linesOf("one\ntwo", {.lineLimit = 1, .ellipsisWidth = 5}), (Lines{"one…"}));
}

TEST(Truncation, LeavesATextAloneThatJustFits) {
    const TextLayout layout = laidOut(*shaped("one two"), cutAfter(2, 3));

    EXPECT_FALSE(layout.isTruncated);
    EXPECT_FALSE(layout.lines.back().isTruncated);
}

TEST(Truncation, CountsTheEllipsisIntoTheWidth) {
    const TextLayout layout = laidOut(*shaped("one two three"), cutAfter(2, 5));

    EXPECT_TRUE(layout.isTruncated);
    EXPECT_THAT(layout.lines[1].width, DoubleEq(20));
    EXPECT_THAT(layout.lines[1].ellipsisWidth, DoubleEq(5));
}

TEST(Truncation, KeepsTheFirstLineInTheSmallestHeight) {
    EXPECT_EQ(linesOf("one two", {.width = 20, .height = 1, .ellipsisWidth = 5}), (Lines{"one…"}));
    EXPECT_EQ(linesOf("one", {.width = 20, .height = 1, .ellipsisWidth = 5}), (Lines{"one"}));
    EXPECT_EQ(linesOf("one two", {.width = 20, .lineLimit = 0, .ellipsisWidth = 5}), (Lines{"one…"}));
}

TEST(Truncation, CutsLinesThatDoNotFitTheHeight) {
    const TextLayoutRequest request{.width = 15, .height = 29.9, .lineSpacing = 5, .ellipsisWidth = 5};
    TextLayoutRequest justEnough = request;
    justEnough.height = 30;

    EXPECT_EQ(linesOf("one two", request), (Lines{"on…"}));
    EXPECT_EQ(linesOf("one two", justEnough), (Lines{"one", "two"}));
}

TEST(Truncation, CountsTheSpacingBetweenAllLines) {
    TextLayoutRequest request{.width = 5, .height = 3 * 12.5 + 2 * 5, .lineSpacing = 5, .ellipsisWidth = 5};
    EXPECT_EQ(linesOf("a b c", request), (Lines{"a", "b", "c"}));

    *request.height -= 0.1;
    EXPECT_EQ(linesOf("a b c", request).size(), 2u);
}

TEST(Truncation, NeverMakesTheLastLineTaller) {
    const auto text = shaped({styled("aa bb ", 10), styled("CCC", 40)});

    // A large letter would have room beside the ellipsis.
    const TextLayout layout = laidOut(*text, {.width = 60, .height = 20, .ellipsisWidth = 5});

    EXPECT_EQ(linesOf(*text, layout), (Lines{"aa bb…"}));
    EXPECT_EQ(layout.size.height, 12.5);
}

TEST(Truncation, KeepsAFirstLineThatIsTallerThanTheHeight) {
    const auto text = shaped({styled("aa bb ", 10), styled("CCC", 40)});

    EXPECT_EQ(laidOut(*text, {.width = 100, .height = 20, .ellipsisWidth = 5}).size.height, 50);
}

TEST(Truncation, StylesTheEllipsisLikeTheTextBeforeIt) {
    const auto text = shaped({styled("aa "), styled("bb "), styled("cc")});

    EXPECT_EQ(laidOut(*text, cutAfter(1, 4)).lines[0].ellipsisRun, 0);
    EXPECT_EQ(laidOut(*text, cutAfter(1, 5)).lines[0].ellipsisRun, 1);
}

TEST(Truncation, LeavesTheEllipsisRoomOnTheLeftOfARightToLeftParagraph) {
    const auto text = shaped("אבג דהו");
    const TextLayout layout = laidOut(*text, cutAfter(1, 5));

    EXPECT_EQ(linesOf(*text, layout), (Lines{"אבג…"}));
    ASSERT_EQ(layout.fragments.size(), 1u);
    EXPECT_EQ(layout.fragments[0].x, 5);
    EXPECT_EQ(layout.lines[0].width, 20);
}

TEST(Truncation, LeavesTheEllipsisRoomOnTheRightOfALeftToRightParagraph) {
    const auto text = shaped("one two", geometry::LayoutDirection::rightToLeft);
    TextLayoutRequest request = cutAfter(1, 5);
    request.direction = geometry::LayoutDirection::rightToLeft;
    const TextLayout layout = laidOut(*text, request);

    ASSERT_EQ(layout.fragments.size(), 1u);
    EXPECT_EQ(layout.fragments[0].x, 0);
}

TEST(TextLayout, KeepsNothingOfAnEarlierLayout) {
    TextLayout layout = laidOut(*shaped("one two three"), cutAfter(1, 5));

    layOutText(*shaped("a"), {}, layout);

    EXPECT_EQ(layout.lines.size(), 1u);
    EXPECT_EQ(layout.fragments.size(), 1u);
    EXPECT_FALSE(layout.isTruncated);
    EXPECT_EQ(layout.size, (geometry::Size{5, 12.5}));
}

} // namespace
} // namespace proupsells::graphics
