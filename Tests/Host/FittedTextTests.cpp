#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/Host/FittedText.hpp"
#include "Platform/Host/TextCache.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::host {
namespace {

using geometry::Rect;
using geometry::Size;
using graphics::AttributedString;
using graphics::Color;
using ::testing::IsEmpty;

constexpr Color ink{"ink", graphics::rgb(0x111111), graphics::rgb(0xEEEEEE)};

// At size 10 a character is 5 wide and a line 12.5 high.
class FittedTextTest : public ::testing::Test {
protected:
    FittedTextTest() { setText("aaaa bb cccccc"); }

    void setText(std::string words) { text.setRuns({{std::move(words), {.size = 10, .name = "ten"}, 0}}); }
    void setRules(TextRules rules) { text.setRules(rules); }
    accessibility::TextInfo shownIn(const geometry::ProposedSize& room) {
        text.showIn(room);
        return text.described({}, ink);
    }
    const graphics::DisplayList& painted(graphics::ColorScheme scheme = graphics::ColorScheme::light) {
        list = {};
        graphics::PaintContext context(list);
        graphics::PaintState state;
        state.scheme = scheme;
        text.paint(context, state, Rect{{0, 0}, {100, 100}}, graphics::TextAlignment::leading, {}, ink);
        return list;
    }
    std::size_t shapeCount() const { return bed.fixedTextShaper()->shapeCount(); }

    headless::TestBed bed;
    FittedText text;
    graphics::DisplayList list;
};

TEST_F(FittedTextTest, IsAsWideAsItsWidestLine) {
    EXPECT_EQ(text.idealSize(), (Size{70, 12.5}));
    EXPECT_EQ(text.sizeIn({69, std::nullopt}), (Size{35, 25}));
    EXPECT_EQ(text.sizeIn({geometry::infinity, 5}), (Size{70, 12.5}));
}

TEST_F(FittedTextTest, IsShapedOnceEvenIfTheSharedCacheForgetsIt) {
    text.showIn({35, std::nullopt});
    const std::size_t before = shapeCount();
    TextCache::shared().clear();

    text.sizeIn({20, std::nullopt});

    EXPECT_EQ(shapeCount(), before);
}

TEST_F(FittedTextTest, ForgivesRoundingErrors) { EXPECT_EQ(text.sizeIn({69.996, 12.496}), (Size{70, 12.5})); }

TEST_F(FittedTextTest, KnowsTheBaselineOfItsFirstLine) { EXPECT_EQ(text.firstBaselineIn({35, std::nullopt}), 10); }

TEST_F(FittedTextTest, KeepsWhatItShowsWhileItIsMeasured) {
    text.showIn({35, std::nullopt});

    EXPECT_EQ(text.sizeIn({20, std::nullopt}), (Size{20, 50}));
    EXPECT_EQ(text.shownSize(), (Size{35, 25}));
}

TEST_F(FittedTextTest, IsLaidOutOnceForEachOfTwoRooms) {
    setText("aaaaaaaaaa");
    setRules({.lineLimit = 1, .minimumScale = 0.5}); // a text that shrinks is shaped again in every other room
    text.showIn({40, 100});
    text.sizeIn({30, 100});
    TextCache::shared().clear();
    const std::size_t before = shapeCount();

    text.showIn({40, 100});
    text.sizeIn({30, 100});
    text.sizeIn({40, 100});

    EXPECT_EQ(shapeCount(), before);
}

TEST_F(FittedTextTest, ShrinksStepByStepAndAtLastToItsMinimum) {
    setText("aaaaaaaaaa");
    setRules({.lineLimit = 1, .minimumScale = 0.72});

    EXPECT_EQ(shownIn({50, 20}).size, 10);
    EXPECT_NEAR(shownIn({40, 20}).size, 8, 1e-9);
    EXPECT_NEAR(shownIn({36.5, 20}).size, 7.2, 1e-9);
    EXPECT_FALSE(shownIn({36.5, 20}).isTruncated);
    EXPECT_TRUE(shownIn({30, 20}).isTruncated);
}

TEST_F(FittedTextTest, ShrinksToTheLeastSizeAndNoFurther) {
    setRules({.lineLimit = 1, .minimumScale = 0.1});
    const auto sizeOf = [this](double size) {
        text.setRuns({{"aaaaaaaaaa", {.size = size}, 0}});
        return shownIn({20, 20}).size;
    };

    EXPECT_EQ(sizeOf(20), graphics::leastTextSize);
    EXPECT_EQ(sizeOf(graphics::leastTextSize), graphics::leastTextSize);
    // What is tiny already is read by nobody for its size.
    EXPECT_LT(sizeOf(10), 10);
}

// No size would make it whole.
TEST_F(FittedTextTest, KeepsItsSizeWhereItsLineLimitAloneCutsIt) {
    setText("aaaa\nbb");
    setRules({.lineLimit = 1, .minimumScale = 0.5});

    const accessibility::TextInfo shown = shownIn({200, 100});

    EXPECT_TRUE(shown.isTruncated);
    EXPECT_EQ(shown.size, 10);
}

TEST_F(FittedTextTest, CutsAShrunkTextWithAnEllipsisAsSmall) {
    setText("aaaaaaaaaa");
    setRules({.lineLimit = 1, .minimumScale = 0.5});

    EXPECT_EQ(text.sizeIn({20, 20}), (Size{20, 6.25})); // seven characters and the ellipsis, 2.5 wide each
    text.showIn({20, 20});
    EXPECT_EQ(painted().commands.back().frame.minX(), 17.5);
}

// Measured in rooms where it is cut and where it is not, a stack keeps asking.
TEST_F(FittedTextTest, KeepsItsEllipsisWhereItIsCutAndOnlyThere) {
    setRules({.lineLimit = 1});
    const auto isEndedByEllipsis = [this] {
        const graphics::Command last = painted().commands.back();
        return list.texts[std::size_t(last.resource)]->runs.front().text == "…";
    };
    text.showIn({40, 20});
    ASSERT_TRUE(isEndedByEllipsis());
    EXPECT_EQ(list.commands.back().frame.maxX(), 40);

    text.sizeIn({200, 20});
    EXPECT_TRUE(isEndedByEllipsis());
    text.sizeIn({30, 20});
    EXPECT_TRUE(isEndedByEllipsis());
    text.showIn({40, 20});
    EXPECT_TRUE(isEndedByEllipsis());
    EXPECT_EQ(list.commands.back().frame.maxX(), 40);

    text.showIn({200, 20});
    EXPECT_FALSE(isEndedByEllipsis());
    EXPECT_EQ(list.commands.size(), 1u);
    text.showIn({30, 20});
    EXPECT_TRUE(isEndedByEllipsis());
    EXPECT_EQ(list.commands.back().frame.maxX(), 25); // without the blank before it
}

TEST_F(FittedTextTest, LosesItsEllipsisWithTheWordsThatWereTooLong) {
    setRules({.lineLimit = 1});
    text.showIn({40, 20});
    ASSERT_EQ(painted().commands.size(), 2u);

    setText("aaaa");
    text.showIn({40, 20});
    EXPECT_EQ(painted().commands.size(), 1u);
    setText("bbbbbbbbbbbb");
    text.showIn({40, 20});

    EXPECT_EQ(painted().commands.size(), 2u);
    EXPECT_EQ(list.commands.back().frame.minX(), 35);
}

TEST_F(FittedTextTest, ShrinksAsLittleAsItMustBeforeItBreaksAWord) {
    setText("aaaa $119.99 bb");
    setRules({.wordScale = 0.8});

    EXPECT_EQ(shownIn({35, std::nullopt}).size, 10);
    EXPECT_NEAR(shownIn({33, std::nullopt}).size, 9, 1e-9);
    EXPECT_NEAR(shownIn({28, std::nullopt}).size, 8, 1e-9);
    EXPECT_EQ(shownIn({28, std::nullopt}).lineCount, 3);
}

TEST_F(FittedTextTest, BreaksAWordAtItsFullSizeWhereShrinkingDoesNotHelp) {
    setText("aaaa $119.99 bb");
    setRules({.wordScale = 0.8});

    EXPECT_EQ(shownIn({27.9, std::nullopt}).size, 10);
    EXPECT_EQ(shownIn({27.9, std::nullopt}).lineCount, 3); // "aaaa", "$119." and "99 bb"
}

TEST_F(FittedTextTest, MayShrinkForAWordAsMuchAsNotToBeCut) {
    setText("aaaa $119.99 bb");
    setRules({.minimumScale = 0.5, .wordScale = 0.8});

    EXPECT_NEAR(shownIn({17.5, std::nullopt}).size, 5, 1e-9); // seven characters of 5 points, half as wide
    EXPECT_EQ(shownIn({17.4, std::nullopt}).size, 10);
}

TEST_F(FittedTextTest, IsNeverNarrowerThanItsLongestWordWhereItKeepsWordsWhole) {
    setText("aaaa $119.99 bb");
    setRules({.wordScale = 0.8, .keepsWordsWhole = true});

    for (const double width : {35.0, 34.9, 28.0, 0.0}) {
        EXPECT_EQ(text.sizeIn({width, std::nullopt}).width, 35) << width; // seven characters of 5 points
        EXPECT_EQ(shownIn({width, std::nullopt}).lineCount, 3) << width;
        EXPECT_EQ(shownIn({width, std::nullopt}).size, 10) << width;
    }
    EXPECT_EQ(shownIn({60, std::nullopt}).lineCount, 2);
    EXPECT_EQ(shownIn({std::nullopt, std::nullopt}).lineCount, 1);
}

TEST_F(FittedTextTest, IsCutInItsOneLineWhereItKeepsWordsWhole) {
    setText("aaaa $119.99 bb");
    setRules({.lineLimit = 1, .keepsWordsWhole = true});

    EXPECT_TRUE(shownIn({20, std::nullopt}).isTruncated);
    EXPECT_LE(text.sizeIn({20, std::nullopt}).width, 20);
}

TEST_F(FittedTextTest, NeverBecomesSmallerThanElevenPoints) {
    text.setRuns({{"aaaaaaaaaa", {.size = 20}, 0}});
    setRules({.lineLimit = 1, .minimumScale = 0.2});

    EXPECT_NEAR(shownIn({55, 20}).size, 11, 1e-9);
    EXPECT_NEAR(shownIn({40, 20}).size, 11, 1e-9);
    EXPECT_TRUE(shownIn({40, 20}).isTruncated);
}

TEST_F(FittedTextTest, NeverShrinksWhereRoomIsNotWhatItLacks) {
    setText("a\nb");
    setRules({.lineLimit = 1, .minimumScale = 0.5});

    EXPECT_TRUE(shownIn({}).isTruncated);
    EXPECT_EQ(shownIn({}).size, 10);
}

TEST_F(FittedTextTest, IsMeasuredAnewWhereItChanges) {
    EXPECT_EQ(text.sizeIn({35, std::nullopt}), (Size{35, 25}));

    EXPECT_TRUE(text.setRules({.lineSpacing = 5}));
    EXPECT_EQ(text.sizeIn({35, std::nullopt}), (Size{35, 30}));
    EXPECT_TRUE(text.setRuns({{"aaaa bb cccccc", {.size = 20}, 0}}));
    EXPECT_EQ(text.idealSize(), (Size{140, 25}));
}

TEST_F(FittedTextTest, IsNotMeasuredAnewWhereNothingChanges) {
    setRules({.language = "de", .lineLimit = 3});

    EXPECT_FALSE(text.setRules({.language = "de", .lineLimit = 3}));
    EXPECT_FALSE(text.setRuns({{"aaaa bb cccccc", {.size = 10, .name = "ten"}, 0}}));
}

TEST_F(FittedTextTest, IsShapedInItsLanguage) {
    text.showIn({});
    const std::size_t before = shapeCount();

    EXPECT_TRUE(text.setRules({.language = "de"}));
    text.showIn({});

    EXPECT_EQ(shapeCount(), before + 1);
}

TEST_F(FittedTextTest, KeepsItsPictureUntilItIsShownAnew) {
    text.showIn({});

    setText("b");

    EXPECT_EQ(painted().commands.back().frame.width(), 70);
    text.showIn({});
    EXPECT_EQ(painted().commands.back().frame.width(), 5);
}

TEST_F(FittedTextTest, TakesTheColourOfTheScheme) {
    text.showIn({});

    EXPECT_EQ(painted().commands.back().color, graphics::rgb(0x111111));
    EXPECT_EQ(painted(graphics::ColorScheme::dark).commands.back().color, graphics::rgb(0xEEEEEE));
}

TEST_F(FittedTextTest, DescribesAPlainTextByItsFont) {
    const accessibility::TextInfo info = shownIn({35, std::nullopt});

    EXPECT_EQ(info.font, "ten");
    EXPECT_EQ(info.color, "ink");
    EXPECT_EQ(info.lineCount, 2);
    EXPECT_THAT(info.runs, IsEmpty());
}

TEST_F(FittedTextTest, DescribesEachRunOfARichText) {
    AttributedString words("was ", {.font = {.size = 12, .name = "twelve"}, .color = Color::white, .isStruckThrough = true});
    words.append({"now", {}});
    text.setRuns({{"WAS ", {.size = 12, .name = "twelve"}, 0}, {"NOW", {.size = 10, .name = "ten"}, 0}});
    text.showIn({});

    const accessibility::TextInfo info = text.described(words, ink);

    EXPECT_EQ(info.text, "was now");
    ASSERT_EQ(info.runs.size(), 2u);
    EXPECT_EQ(info.runs[0].color, "white");
    EXPECT_TRUE(info.runs[0].isStruckThrough);
    EXPECT_EQ(info.runs[1].font, "ten");
    EXPECT_EQ(info.runs[1].color, "ink");
}

TEST_F(FittedTextTest, NamesAFontWithoutADesignNameByItsFace) {
    const auto& face = graphics::registerFontFace("FittedTextTests-Face", "Family", 400);
    text.setRuns({{"a", {.face = &face, .size = 10}, 0}});
    EXPECT_EQ(shownIn({}).font, "FittedTextTests-Face");

    text.setRuns({{"a", {.size = 10}, 0}});
    EXPECT_EQ(shownIn({}).font, "system");
}

TEST_F(FittedTextTest, LaysOutNoMoreThanAnyScreenShows) {
    setText(std::string(10'000'000, 'a'));

    EXPECT_EQ(text.idealSize().width, 5 * (double(FittedText::longestText) + 1));
    EXPECT_TRUE(shownIn({}).isTruncated);
    setText(std::string(FittedText::longestText, 'a'));
    EXPECT_EQ(text.idealSize().width, 5 * double(FittedText::longestText));
    EXPECT_FALSE(shownIn({}).isTruncated);
}

TEST_F(FittedTextTest, CutsATextThatIsTooLongBetweenCharacters) {
    setText("a" + std::string(FittedText::longestText - 2, 'b') + "é");

    EXPECT_EQ(text.idealSize().width, 5 * double(FittedText::longestText));
}

TEST_F(FittedTextTest, LeavesOutTheRunsBehindTheCut) {
    const graphics::Font font{.size = 10, .name = "ten"};
    text.setRuns({{std::string(FittedText::longestText, 'a'), font, 0}, {"b", font, 0}, {"c", font, 0}});

    EXPECT_EQ(text.idealSize().width, 5 * (double(FittedText::longestText) + 1));
    EXPECT_TRUE(shownIn({}).isTruncated);
}

TEST_F(FittedTextTest, CutsWhatIsNoCharacterAnywhere) {
    setText(std::string(FittedText::longestText + 10, '\x80'));

    EXPECT_TRUE(shownIn({}).isTruncated);
    EXPECT_LT(text.idealSize().width, 5 * double(FittedText::longestText));
}

} // namespace
} // namespace proupsells::host
