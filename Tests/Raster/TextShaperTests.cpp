#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>

#include "Backends/Raster/FontCatalog.hpp"
#include "Backends/Raster/RasterShapedText.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Graphics/TextLayout.hpp"
#include "Tests/Support/LogRecorder.hpp"

using namespace proupsells;

using geometry::LayoutDirection;
using graphics::Cluster;
using graphics::LineBreak;
using graphics::ShapedText;
using graphics::StyledRun;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using TextRef = std::shared_ptr<const ShapedText>;

const graphics::FontFace* inter(int weight) {
    return &graphics::registerFontFace("ShaperTests-Inter" + std::to_string(weight), "Inter", weight);
}
const graphics::FontFace* sora(int weight) {
    return &graphics::registerFontFace("ShaperTests-Sora" + std::to_string(weight), "Sora", weight);
}

TextRef shapeRuns(std::vector<StyledRun> runs, LayoutDirection direction = LayoutDirection::leftToRight) {
    static rasterbackend::RasterTextShaper shaper;
    return shaper.shape(runs, "en", direction);
}

TextRef shape(const std::string& text, LayoutDirection direction = LayoutDirection::leftToRight, double size = 16) {
    return shapeRuns({{text, {.size = size}, 0}}, direction);
}

double width(const ShapedText& text) {
    return std::accumulate(text.clusters.begin(), text.clusters.end(), 0.0,
                           [](double sum, const Cluster& c) { return sum + c.advance; });
}

std::vector<int> levels(const ShapedText& text) {
    std::vector<int> levels;
    for (const Cluster& cluster : text.clusters) levels.push_back(cluster.bidiLevel);
    return levels;
}

std::vector<std::uint32_t> lengths(const ShapedText& text) {
    std::vector<std::uint32_t> lengths;
    for (const Cluster& cluster : text.clusters) lengths.push_back(cluster.textLength);
    return lengths;
}

std::string allText(const ShapedText& text) {
    std::string all;
    for (const StyledRun& run : text.runs) all += run.text;
    return all;
}

// The pieces between the places where lines may break.
std::vector<std::string> unbreakablePieces(const ShapedText& text) {
    const std::string all = allText(text);
    std::vector<std::string> pieces(1);
    for (const Cluster& cluster : text.clusters) {
        pieces.back() += all.substr(cluster.textOffset, cluster.textLength);
        if (cluster.breakAfter != LineBreak::none) pieces.emplace_back();
    }
    return pieces;
}

void expectWholeText(const ShapedText& text) {
    std::uint32_t end = 0;
    for (const Cluster& cluster : text.clusters) {
        ASSERT_EQ(cluster.textOffset, end);
        ASSERT_GT(cluster.textLength, 0u);
        ASSERT_TRUE(std::isfinite(cluster.advance));
        ASSERT_LT(cluster.run, text.runs.size());
        end += cluster.textLength;
    }
    EXPECT_EQ(end, allText(text).size());
    EXPECT_EQ(text.metrics.size(), text.runs.size());
}

double inkWidth(const graphics::FontFace* face) {
    // The stem of an "l" tells how heavy a face is.
    const auto text =
        std::static_pointer_cast<const rasterbackend::RasterShapedText>(shapeRuns({{"l", {.face = face, .size = 100}, 0}}));
    return text->glyphs.at(0).shape->outline.bounds().width();
}

} // namespace

TEST(RasterTextShaper, GrowsEvenlyWithTheFontSize) {
    const double small = width(*shape("Cancel within 7 days", LayoutDirection::leftToRight, 10));

    for (const double size : {11.0, 13.5, 17.0, 100.0})
        EXPECT_NEAR(width(*shape("Cancel within 7 days", {}, size)), small * size / 10, 1e-9);
}

// Of two marks below a letter, the second makes room for the first.
TEST(RasterTextShaper, SetsMarksAsFarBelowTheirLetterAsTheFontIsLarge) {
    const auto depthOfMark = [](double size) {
        const TextRef text = shape("\u0628\u0651\u0650", LayoutDirection::rightToLeft, size);
        return std::static_pointer_cast<const rasterbackend::RasterShapedText>(text)->glyphs.at(0).y;
    };

    EXPECT_GT(depthOfMark(16), 1);
    EXPECT_NEAR(depthOfMark(32), 2 * depthOfMark(16), 0.01);
}

TEST(RasterTextShaper, KernsPairsOfLetters) { EXPECT_LT(width(*shape("AV")), width(*shape("A")) + width(*shape("V")) - 0.1); }

TEST(RasterTextShaper, AddsTheKernAfterEveryCluster) {
    const double plain = width(*shapeRuns({{"PRO plan", {.size = 16}, 0}}));

    EXPECT_NEAR(width(*shapeRuns({{"PRO plan", {.size = 16}, 1.5}})), plain + 8 * 1.5, 1e-3);
    EXPECT_NEAR(width(*shapeRuns({{"PRO plan", {.size = 16}, -0.5}})), plain - 8 * 0.5, 1e-3);
}

TEST(RasterTextShaper, MeasuresALineByTheFontsOwnHeights) {
    const TextRef text = shapeRuns({{"A", {.face = inter(400), .size = 100}, 0}, {"B", {.face = sora(600), .size = 10}, 0}});

    EXPECT_NEAR(text->metrics[0].ascent, 96.875, 0.01);
    EXPECT_NEAR(text->metrics[0].descent, 24.148, 0.01);
    EXPECT_NEAR(text->metrics[1].ascent, 9.7, 0.01);
    EXPECT_NEAR(text->metrics[1].descent, 2.9, 0.01);
}

TEST(RasterTextShaper, TakesTheWeightThatAFaceAsksFor) {
    EXPECT_LT(inkWidth(inter(400)), inkWidth(inter(500)) - 0.01);
    EXPECT_LT(inkWidth(inter(500)), inkWidth(inter(600)) - 0.01);
    EXPECT_LT(inkWidth(inter(600)), inkWidth(inter(700)) - 0.01);
    EXPECT_LT(inkWidth(sora(400)), inkWidth(sora(600)) - 0.01);
    EXPECT_LT(inkWidth(sora(600)), inkWidth(sora(700)) - 0.01);
}

TEST(RasterTextShaper, TakesTheRegularDefaultFaceWhereNoneIsNamed) { EXPECT_EQ(inkWidth(nullptr), inkWidth(inter(400))); }

TEST(RasterTextShaper, TakesTheNearestWeightThatIsThere) {
    // Sora has no medium.
    EXPECT_EQ(inkWidth(sora(500)), inkWidth(sora(400)));
}

TEST(RasterTextShaper, ReportsAFamilyThatIsNotInstalledOnce) {
    tests::LogRecorder log;
    const auto& face = graphics::registerFontFace("ShaperTests-Missing", "No Such Family", 400);
    const auto& bold = graphics::registerFontFace("ShaperTests-MissingBold", "No Such Family", 700);

    const std::vector<StyledRun> runs{{"text", {.face = &face, .size = 16}, 0}, {"text", {.face = &bold, .size = 16}, 0}};

    const TextRef text = rasterbackend::RasterTextShaper().shape(runs, "en", LayoutDirection::leftToRight);

    EXPECT_GT(width(*text), 0);
    EXPECT_THAT(log.messages(), ElementsAre(testing::HasSubstr("No Such Family")));
}

TEST(RasterTextShaper, GivesAnEmptyTextItsHeightOnly) {
    const TextRef text = shape("");

    EXPECT_THAT(text->clusters, IsEmpty());
    ASSERT_EQ(text->metrics.size(), 1u);
    EXPECT_GT(text->metrics[0].ascent, 0);
}

TEST(RasterTextShaper, KeepsUserPerceivedCharactersTogether) {
    EXPECT_THAT(lengths(*shape("ae\u0301z")), ElementsAre(1, 3, 1));
    EXPECT_THAT(lengths(*shape("a👨‍👩‍👧‍👦b")), ElementsAre(1, 25, 1));
    EXPECT_THAT(lengths(*shape("🇩🇪🇦🇹x")), ElementsAre(8, 8, 1));
    EXPECT_THAT(lengths(*shape("a\r\nb")), ElementsAre(1, 2, 1));
}

TEST(RasterTextShaper, NeverJoinsCharactersOfTwoRuns) {
    const TextRef text = shapeRuns({{"e", {.size = 16}, 0}, {"\u0301x", {.size = 16}, 0}});

    EXPECT_THAT(lengths(*text), ElementsAre(1, 2, 1));
    EXPECT_EQ(text->clusters[0].run, 0);
    EXPECT_EQ(text->clusters[1].run, 1);
}

TEST(RasterTextShaper, ShapesARunInARichTextLikeATextOfItsOwn) {
    const StyledRun price{"$99.99", {.face = inter(700), .size = 18}, 0},
        period{" per year", {.face = inter(400), .size = 16}, 0.25};

    const TextRef both = shapeRuns({price, period});

    EXPECT_NEAR(width(*both), width(*shapeRuns({price})) + width(*shapeRuns({period})), 0.01);
    EXPECT_EQ(both->clusters[6].run, 1);
    EXPECT_EQ(both->clusters[6].textOffset, 6u);
}

TEST(RasterTextShaper, BreaksLinesBetweenWords) {
    EXPECT_THAT(unbreakablePieces(*shape("per year.")), ElementsAre("per ", "year."));
    EXPECT_THAT(unbreakablePieces(*shape("no\u00A0break")), ElementsAre("no\u00A0break"));
    EXPECT_THAT(unbreakablePieces(*shape("well-known")), ElementsAre("well-", "known"));
}

TEST(RasterTextShaper, NeverEndsALineInASoftHyphen) {
    EXPECT_THAT(unbreakablePieces(*shape("ab\u00ADcd")), ElementsAre("ab\u00ADcd"));
}

TEST(RasterTextShaper, KeepsAPriceAndItsPeriodTogether) {
    EXPECT_THAT(unbreakablePieces(*shape("year ($8.33/month).")), ElementsAre("year ", "($8.33/month)."));
}

TEST(RasterTextShaper, BreaksLinesBetweenIdeographs) {
    EXPECT_THAT(unbreakablePieces(*shape("漢字、仮名")), ElementsAre("漢", "字、", "仮", "名"));
}

TEST(RasterTextShaper, MustBreakAfterALineFeedWhichHasNoWidth) {
    for (const std::string feed : {"\n", "\r\n", "\r", "\u2028", "\u2029", "\u0085"}) {
        SCOPED_TRACE(testing::PrintToString(feed));
        const TextRef text = shape("a" + feed + "b" + feed);

        ASSERT_EQ(text->clusters.size(), 4u);
        EXPECT_EQ(text->clusters[1].breakAfter, LineBreak::mandatory);
        EXPECT_EQ(text->clusters[1].advance, 0);
        EXPECT_TRUE(text->clusters[1].isWhitespace);
        EXPECT_EQ(text->clusters[3].breakAfter, LineBreak::mandatory);
        EXPECT_NEAR(width(*text), width(*shape("a")) + width(*shape("b")), 1e-9);
    }
}

TEST(RasterTextShaper, TellsBlanksFromLetters) {
    const TextRef text = shape("a \t\u2003\u00A0");

    std::vector<bool> blanks;
    for (const Cluster& cluster : text->clusters) blanks.push_back(cluster.isWhitespace);
    EXPECT_THAT(blanks, ElementsAre(false, true, true, true, false));
}

TEST(RasterTextShaper, GivesEveryDirectionItsLevel) {
    EXPECT_THAT(levels(*shape("abc")), ElementsAre(0, 0, 0));
    EXPECT_THAT(levels(*shape("אב", LayoutDirection::rightToLeft)), ElementsAre(1, 1));
    EXPECT_THAT(levels(*shape("a אב b")), ElementsAre(0, 0, 1, 1, 0, 0));
    EXPECT_THAT(levels(*shape("א ab ב", LayoutDirection::rightToLeft)), ElementsAre(1, 1, 2, 2, 1, 1));
    EXPECT_THAT(levels(*shape("12", LayoutDirection::rightToLeft)), ElementsAre(2, 2));
}

TEST(RasterTextShaper, LiftsNumbersAboveTheRightToLeftTextAroundThem) {
    EXPECT_THAT(levels(*shape("אב 12 גד")), ElementsAre(1, 1, 1, 2, 2, 1, 1, 1));
    EXPECT_THAT(levels(*shape("x אב 12 y")), ElementsAre(0, 0, 1, 1, 1, 2, 2, 0, 0));
    // A number that follows left-to-right text stays with it.
    EXPECT_THAT(levels(*shape("x 12 אב")), ElementsAre(0, 0, 0, 0, 0, 1, 1));
}

TEST(RasterTextShaper, ShowsMixedTextInItsVisualOrder) {
    const TextRef text = shape("אב 12");
    graphics::TextLayout layout;
    graphics::layOutText(*text, {}, layout);

    // The number stands left of the letters that come before it.
    ASSERT_EQ(layout.fragments.size(), 2u);
    EXPECT_EQ(layout.fragments[0].firstCluster, 3u);
    EXPECT_EQ(layout.fragments[1].firstCluster, 0u);
    EXPECT_TRUE(layout.fragments[1].isRightToLeft);
}

TEST(RasterTextShaper, KeepsTheOrderOfATextWhateverTheScreens) {
    const TextRef trial = shape("7 DAY FREE TRIAL.", LayoutDirection::rightToLeft);
    const TextRef greeting = shape("שלום!", LayoutDirection::leftToRight);

    EXPECT_THAT(levels(*trial), Each(0));
    EXPECT_THAT(levels(*greeting), Each(1));
}

TEST(RasterTextShaper, TurnsLettersRoundWhereTheTextSaysSo) {
    const auto text = std::static_pointer_cast<const rasterbackend::RasterShapedText>(shape("\u202Eab\u202C"));

    EXPECT_EQ(text->clusters[1].bidiLevel, 1);
    EXPECT_EQ(text->clusters[2].bidiLevel, 1);
    EXPECT_NEAR(width(*text), width(*shape("ab")), 0.2);
}

TEST(RasterTextShaper, GivesClustersOfSeveralCharactersTheirOwnPlaces) {
    for (const std::string text : {"क्षत्रिय", "👍🏽👨‍👩‍👧‍👦x", "🇩🇪🇦🇹", "e\u0301\u0302x"}) {
        SCOPED_TRACE(text);
        const auto shaped = std::static_pointer_cast<const rasterbackend::RasterShapedText>(shape(text));
        for (std::size_t cluster = 0; cluster < shaped->clusters.size(); ++cluster) {
            ASSERT_GT(shaped->clusters[cluster].advance, 0);
            for (std::uint32_t glyph = shaped->glyphStarts[cluster]; glyph < shaped->glyphStarts[cluster + 1]; ++glyph) {
                // Marks may reach over their letter a little.
                ASSERT_GT(shaped->glyphs[glyph].x, -8);
                ASSERT_LT(shaped->glyphs[glyph].x, shaped->clusters[cluster].advance + 8);
            }
        }
        // The clusters' widths are those of the clusters alone.
        double alone = 0;
        for (const Cluster& cluster : shaped->clusters) alone += width(*shape(text.substr(cluster.textOffset, cluster.textLength)));
        EXPECT_NEAR(width(*shaped), alone, 0.5);
    }
}

TEST(RasterTextShaper, ShapesWhatNoFontHas) {
    for (const std::string text : {"漢字かな交じり文", "👩🏽‍🚀🎉❤️", "\U000F0000\U0010FFFF", "\u0378", "क्षत्रिय",
                                   "ภาษาไทย", "\uFEFF\u200D\u200C\u2060"}) {
        SCOPED_TRACE(text);
        const TextRef shaped = shape(text + " end");
        expectWholeText(*shaped);
        EXPECT_GT(width(*shaped), width(*shape(" end")) - 1e-6);
    }
}

TEST(RasterTextShaper, CountsTheBytesOfInvalidText) {
    const TextRef text = shape("a\xFF"
                               "b\xE2\x82z\xC3");

    expectWholeText(*text);
    EXPECT_THAT(lengths(*text), ElementsAre(1, 1, 1, 2, 1, 1));
    EXPECT_GT(text->clusters[1].advance, 0);
}

TEST(RasterTextShaper, TakesAnySequenceOfBytes) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random{seed};
        const char* pieces[] = {"a",      " ",      "\n",     "א",      "ب",        "12",   "é",  "e\u0301", "漢", "👍🏽",
                                "\u202E", "\u2066", "\u2069", "\u200F", "\xF0\x9F", "\x80", "\r", "ﬁ",       "لا", ", "};
        std::vector<StyledRun> runs;
        for (int run = 0; run < 1 + int(random() % 3); ++run) {
            StyledRun styled{
                {}, {.face = random() % 2 ? inter(400) : sora(700), .size = 10.0 + random() % 10}, random() % 3 == 0 ? 1.0 : 0.0};
            for (unsigned count = random() % 12; count > 0; --count) styled.text += pieces[random() % std::size(pieces)];
            runs.push_back(styled);
        }

        const TextRef text = shapeRuns(runs, random() % 2 ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight);

        expectWholeText(*text);
        for (const Cluster& cluster : text->clusters) ASSERT_GE(cluster.advance, 0);
    }
}

TEST(RasterTextShaper, ShapesAVeryLongParagraphInPieces) {
    std::string text;
    for (int word = 0; word < 3000; ++word) text += "word" + std::to_string(word % 10) + " ";

    const TextRef shaped = shape(text);

    expectWholeText(*shaped);
    EXPECT_NEAR(width(*shaped) / width(*shape(text.substr(0, 60))), double(text.size()) / 60, 0.01);
}

TEST(RasterTextShaper, SurvivesAWordWithoutEnd) {
    const TextRef shaped = shape(std::string(20000, 'm'));

    EXPECT_NEAR(width(*shaped), 20000 * width(*shape("m")), 1);
}

TEST(RasterTextShaper, WritesLettersAsTheLanguageDoes) {
    rasterbackend::RasterTextShaper shaper;
    const auto shapeOf = [&](const char* language) {
        const std::vector<StyledRun> runs{{"ş", {.size = 16}, 0}};
        return std::static_pointer_cast<const rasterbackend::RasterShapedText>(shaper.shape(runs, language, {}))
            ->glyphs.at(0)
            .shape;
    };

    // Turkish has a cedilla, Romanian a comma.
    EXPECT_NE(shapeOf("ro"), shapeOf("tr"));
    EXPECT_EQ(shapeOf("en"), shapeOf("tr"));
    EXPECT_EQ(shapeOf(""), shapeOf("\xFF no language"));
}

TEST(RasterTextShaper, ShapesTheSameTextTheSameWayAgain) {
    const TextRef first = shape("Déjà vu – אב 12 漢"), second = shape("Déjà vu – אב 12 漢");

    ASSERT_EQ(first->clusters.size(), second->clusters.size());
    for (std::size_t index = 0; index < first->clusters.size(); ++index)
        EXPECT_EQ(first->clusters[index].advance, second->clusters[index].advance);
    EXPECT_EQ(levels(*first), levels(*second));
}
