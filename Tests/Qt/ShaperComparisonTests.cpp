// Texts keep their measures, whichever of the two backends shapes them.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "Backends/Qt/QtShapedText.hpp"
#include "Backends/Qt/QtTextShaper.hpp"
#include "Backends/Raster/RasterShapedText.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"

using namespace proupsells;

using geometry::LayoutDirection;
using graphics::StyledRun;

namespace {

struct BothShaped {
    std::shared_ptr<const qtbackend::QtShapedText> byQt;
    std::shared_ptr<const rasterbackend::RasterShapedText> byRaster;
};

BothShaped shape(const std::vector<StyledRun>& runs, const std::string& language) {
    static qtbackend::QtTextShaper qt;
    static rasterbackend::RasterTextShaper raster;
    const auto direction = LayoutDirection::leftToRight;
    return {std::static_pointer_cast<const qtbackend::QtShapedText>(qt.shape(runs, language, direction)),
            std::static_pointer_cast<const rasterbackend::RasterShapedText>(raster.shape(runs, language, direction))};
}

BothShaped shape(const std::string& text, const std::string& language, const std::string& family = "Inter", int weight = 400,
                 double kern = 0) {
    const auto& face = graphics::registerFontFace("Comparison-" + family + std::to_string(weight), family, weight);
    return shape({{text, {.face = &face, .size = 17}, kern}}, language);
}

void expectSameAdvances(const BothShaped& both, double tolerance) {
    ASSERT_EQ(both.byRaster->clusters.size(), both.byQt->clusters.size());
    for (std::size_t index = 0; index < both.byQt->clusters.size(); ++index) {
        const graphics::Cluster &ours = both.byRaster->clusters[index], &theirs = both.byQt->clusters[index];
        EXPECT_EQ(ours.textLength, theirs.textLength) << "cluster " << index;
        EXPECT_EQ(ours.bidiLevel, theirs.bidiLevel) << "cluster " << index;
        EXPECT_EQ(ours.isWhitespace, theirs.isWhitespace) << "cluster " << index;
        EXPECT_EQ(ours.breakAfter, theirs.breakAfter) << "cluster " << index;
        EXPECT_NEAR(ours.advance, theirs.advance, tolerance) << "cluster " << index;
    }
}

// Of the glyphs of each cluster, from the top; in which order they are painted does not matter.
template <class Text>
std::vector<geometry::Point> places(const Text& text) {
    std::vector<geometry::Point> places;
    for (std::size_t cluster = 0; cluster < text.clusters.size(); ++cluster) {
        const auto first = std::ptrdiff_t(places.size());
        for (std::uint32_t glyph = text.glyphStarts[cluster]; glyph < text.glyphStarts[cluster + 1]; ++glyph)
            places.push_back({text.glyphs[glyph].x, text.glyphs[glyph].y});
        std::sort(places.begin() + first, places.end(),
                  [](geometry::Point a, geometry::Point b) { return std::pair(a.y, a.x) < std::pair(b.y, b.x); });
    }
    return places;
}

const std::string english = "Endless premium templates, updated daily. Cancel within 7 days – $99.99 per year ($8.33/month)!";

} // namespace

TEST(ShaperComparison, MeasuresTheDesignSystemsFacesExactlyAlike) {
    const std::pair<const char*, int> faces[] = {{"Inter", 400},         {"Inter", 500},         {"Inter", 600},
                                                 {"Inter", 700},         {"Inter Display", 400}, {"Inter Display", 500},
                                                 {"Inter Display", 700}, {"Sora", 600},          {"Sora", 700}};
    for (const auto& [family, weight] : faces) {
        SCOPED_TRACE(family + std::to_string(weight));
        const BothShaped both = shape(english, "en", family, weight);
        expectSameAdvances(both, 1e-9);
        EXPECT_NEAR(both.byRaster->metrics[0].ascent, both.byQt->metrics[0].ascent, 1e-3);
        EXPECT_NEAR(both.byRaster->metrics[0].descent, both.byQt->metrics[0].descent, 1e-3);
    }
}

TEST(ShaperComparison, SpacesLettersExactlyAlike) {
    for (const double kern : {0.25, 0.5, 1.5, -0.4}) {
        SCOPED_TRACE(kern);
        expectSameAdvances(shape(english, "en", "Inter", 500, kern), 1e-9);
    }
}

TEST(ShaperComparison, MeasuresOtherAlphabetsExactlyAlike) {
    expectSameAdvances(shape("Jahresabo: 99,99 € pro Jahr, jederzeit kündbar; Überraschung", "de"), 1e-9);
    expectSameAdvances(shape("Đăng ký hàng năm với giá ưu đãi", "vi"), 1e-9);
    expectSameAdvances(shape("Годовая подписка: 999 ₽ в год, отмена в любое время", "ru"),
                       1e-9);
    expectSameAdvances(shape("Ετήσια συνδρομή, ακύρωση οποτεδήποτε", "el"), 1e-9);
}

// Words of one font each: what stands between words may come from another font.
TEST(ShaperComparison, MeasuresTheSystemsFontsAlike) {
    const std::pair<const char*, const char*> words[] = {
        {"ar", "اشتراك"}, {"ar", "لا"},        {"he", "מינוי"},    {"hi", "वार्षिक"}, {"hi", "क्षत्रिय"},
        {"th", "สมัคร"},   {"zh-Hans", "年度"}, {"ja", "サブスク"}, {"ja", "漢字"},   {"ko", "연간"},
    };
    for (const auto& [language, word] : words) {
        SCOPED_TRACE(word);
        const BothShaped both = shape(word, language);
        double ours = 0, theirs = 0;
        for (const graphics::Cluster& cluster : both.byRaster->clusters) ours += cluster.advance;
        for (const graphics::Cluster& cluster : both.byQt->clusters) theirs += cluster.advance;
        EXPECT_NEAR(ours, theirs, 0.01);
    }
}

TEST(ShaperComparison, ReadsTheSameOutlines) {
    for (const std::string text : {"A", "g", "%", "é", "Ж"}) {
        SCOPED_TRACE(text);
        const BothShaped both = shape(text, "en");
        const geometry::Rect ours = both.byRaster->glyphs.at(0).shape->outline.bounds();
        const geometry::Rect theirs = both.byQt->glyphs.at(0).shape->outline.bounds();
        EXPECT_NEAR(ours.minX(), theirs.minX(), 1e-4);
        EXPECT_NEAR(ours.minY(), theirs.minY(), 1e-4);
        EXPECT_NEAR(ours.maxX(), theirs.maxX(), 1e-4);
        EXPECT_NEAR(ours.maxY(), theirs.maxY(), 1e-4);
    }
}

TEST(ShaperComparison, PlacesGlyphsAlike) {
    for (const std::string text : {"ab", "e\u0331x", "مَدرسةٌ", "क्षत्रिय", "นี้ที่"}) {
        SCOPED_TRACE(text);
        const BothShaped both = shape(text, "en");
        ASSERT_EQ(both.byRaster->groupStarts, both.byQt->groupStarts);
        ASSERT_EQ(both.byRaster->glyphStarts, both.byQt->glyphStarts);
        const auto ours = places(*both.byRaster), theirs = places(*both.byQt);
        for (std::size_t index = 0; index < theirs.size(); ++index) {
            EXPECT_NEAR(ours[index].x, theirs[index].x, 0.01) << "glyph " << index;
            EXPECT_NEAR(ours[index].y, theirs[index].y, 0.01) << "glyph " << index;
        }
    }
}
