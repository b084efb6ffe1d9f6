#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::headless {
namespace {

using geometry::LayoutDirection;
using graphics::Cluster;
using graphics::LineBreak;
using graphics::ShapedText;
using graphics::StyledRun;
using ::testing::ElementsAre;

std::shared_ptr<const ShapedText> shape(const std::vector<StyledRun>& runs,
                                        LayoutDirection direction = LayoutDirection::leftToRight) {
    return FixedTextShaper().shape(runs, "en", direction);
}

StyledRun run(std::string text, double size = 10, double kern = 0) { return {std::move(text), {.size = size}, kern}; }

// The text with "|" where a line may end and "¶" where it must.
std::string withBreaks(const std::string& text) {
    std::string result;
    const auto shaped = shape({run(text)});
    for (const Cluster& cluster : shaped->clusters) {
        result += text.substr(cluster.textOffset, cluster.textLength);
        if (cluster.breakAfter == LineBreak::allowed) result += "|";
        if (cluster.breakAfter == LineBreak::mandatory) result += "¶";
    }
    return result;
}

TEST(FixedTextShaper, MakesEveryCharacterHalfItsSizeWide) {
    const auto text = shape({run("iW ", 14)});

    ASSERT_EQ(text->clusters.size(), 3u);
    for (const Cluster& cluster : text->clusters) EXPECT_EQ(cluster.advance, 7);
}

TEST(FixedTextShaper, MakesEveryLineOneAndAQuarterSizesHigh) {
    const auto text = shape({run("a", 16), run("b", 20)});

    EXPECT_EQ(text->metrics[0].ascent, 16);
    EXPECT_EQ(text->metrics[0].descent, 4);
    EXPECT_EQ(text->metrics[1].ascent + text->metrics[1].descent, 25);
}

TEST(FixedTextShaper, AddsLetterSpacingToEveryCharacter) {
    const auto text = shape({run("ab", 10, 1.5)});

    ASSERT_EQ(text->clusters.size(), 2u);
    for (const Cluster& cluster : text->clusters) EXPECT_EQ(cluster.advance, 6.5);
}

TEST(FixedTextShaper, HasMetricsForAnEmptyText) {
    const auto text = shape({run("", 16)});

    EXPECT_TRUE(text->clusters.empty());
    ASSERT_EQ(text->metrics.size(), 1u);
    EXPECT_EQ(text->metrics[0].ascent, 16);
}

TEST(FixedTextShaper, CountsOffsetsThroughAllRuns) {
    const auto text = shape({run("ab"), run(""), run("c")});

    ASSERT_EQ(text->clusters.size(), 3u);
    EXPECT_EQ(text->clusters[2].textOffset, 2u);
    EXPECT_EQ(text->clusters[2].run, 2);
}

TEST(FixedTextShaper, GivesEndsOfLinesNoWidth) {
    const auto text = shape({run("a\nb\r\nc\u2028", 10, 3)});

    std::vector<double> advances;
    for (const Cluster& cluster : text->clusters) advances.push_back(cluster.advance);
    EXPECT_THAT(advances, ElementsAre(8, 0, 8, 0, 8, 0));
}

TEST(FixedTextShaper, TakesBlanksAndEndsOfLinesForWhitespace) {
    const auto text = shape({run("a \n\u00A0\t")});

    std::vector<bool> isWhitespace;
    for (const Cluster& cluster : text->clusters) isWhitespace.push_back(cluster.isWhitespace);
    EXPECT_THAT(isWhitespace, ElementsAre(false, true, true, false, true));
}

TEST(FixedTextShaper, FillsEachLineAsFarAsItGoes) { EXPECT_TRUE(shape({run("a")})->keepsGreedyLines); }

TEST(FixedTextShaper, StopsTheProgramWithoutARun) { EXPECT_DEATH(shape({}), "A text without a run cannot be shaped"); }

TEST(FixedTextShaper, CountsItsCalls) {
    FixedTextShaper shaper;
    const StyledRun text = run("a");
    shaper.shape({&text, 1}, "en", LayoutDirection::leftToRight);
    shaper.shape({&text, 1}, "en", LayoutDirection::leftToRight);

    EXPECT_EQ(shaper.shapeCount(), 2u);
}

TEST(LineBreaks, AreAllowedAfterTheLastOfSeveralBlanks) {
    EXPECT_EQ(withBreaks("a b  c"), "a |b  |c");
    EXPECT_EQ(withBreaks("a "), "a ");
    EXPECT_EQ(withBreaks("a\tb"), "a\t|b");
}

TEST(LineBreaks, AreNotAllowedAtNoBreakSpaces) { EXPECT_EQ(withBreaks("a\u00A0b\u202Fc"), "a\u00A0b\u202Fc"); }

TEST(LineBreaks, AreAllowedAfterHyphensInsideWords) {
    EXPECT_EQ(withBreaks("well-known"), "well-|known");
    EXPECT_EQ(withBreaks("a – b—c"), "a |– |b—|c");
    EXPECT_EQ(withBreaks("-20 -x 3-4 3–4"), "-20 |-x |3-4 |3–|4");
    EXPECT_EQ(withBreaks("a-)"), "a-)");
    EXPECT_EQ(withBreaks("-x a-b"), "-x |a-|b");
    EXPECT_EQ(withBreaks("a--b"), "a--|b");
}

TEST(LineBreaks, AreAllowedBetweenIdeographs) {
    EXPECT_EQ(withBreaks("语言设"), "语|言|设");
    EXPECT_EQ(withBreaks("プロ版"), "プ|ロ|版");
    EXPECT_EQ(withBreaks("a语b"), "a|语|b");
    EXPECT_EQ(withBreaks("1语2"), "1|语|2");
    EXPECT_EQ(withBreaks("〜语〜"), "〜|语|〜");
    EXPECT_EQ(withBreaks("#语#"), "#语#");
    EXPECT_EQ(withBreaks("\u2FFF语"), "\u2FFF语");
}

TEST(LineBreaks, KeepPunctuationWithItsIdeograph) {
    EXPECT_EQ(withBreaks("语，言。"), "语，|言。");
    EXPECT_EQ(withBreaks("「语」言"), "「语」|言");
    EXPECT_EQ(withBreaks("、语"), "、|语");
}

TEST(LineBreaks, AreAllowedWhereABlankWithoutWidthStands) { EXPECT_EQ(withBreaks("a\u200Bb"), "a\u200B|b"); }

TEST(LineBreaks, AreMandatoryAfterEndsOfLines) {
    EXPECT_EQ(withBreaks("a\nb"), "a\n¶b");
    EXPECT_EQ(withBreaks("a\r\nb\n"), "a\r\n¶b\n¶");
    EXPECT_EQ(withBreaks("a\u2028b\u2029"), "a\u2028¶b\u2029¶");
    EXPECT_EQ(withBreaks("a \n"), "a \n¶");
    EXPECT_EQ(withBreaks("a\rb\n\nc"), "a\r¶b\n¶\n¶c");
}

TEST(FixedTextShaper, GivesEveryCharacterItsLevelAndItsParagraphs) {
    const auto text = shape({run("ab א"), run("ב\n$1")}, LayoutDirection::rightToLeft);

    std::string levels, paragraphLevels;
    for (const Cluster& cluster : text->clusters) {
        levels += char('0' + cluster.bidiLevel);
        paragraphLevels += char('0' + cluster.paragraphLevel);
    }
    EXPECT_EQ(levels, "00011022");
    EXPECT_EQ(paragraphLevels, "00000011");
}

RC_GTEST_PROP(FixedTextShaperInvariants, ClustersTileTheText, ()) {
    std::string text;
    for (const auto& piece : *rc::gen::container<std::vector<std::string>>(
             rc::gen::element<std::string>("a", " ", "\r\n", "é", "语", "א", "👍", "-", "$1", "\xFF"))) {
        text += piece;
    }
    const std::size_t split = std::size_t(*rc::gen::inRange(0, int(text.size()) + 1));
    const auto shaped = shape({run(text.substr(0, split)), run(text.substr(split))});

    std::size_t offset = 0;
    for (const Cluster& cluster : shaped->clusters) {
        RC_ASSERT(cluster.textOffset == offset);
        RC_ASSERT(cluster.textLength > 0u);
        RC_ASSERT(cluster.run == (offset < split ? 0 : 1));
        offset += cluster.textLength;
    }
    RC_ASSERT(offset == text.size());
}

} // namespace
} // namespace proupsells::headless
