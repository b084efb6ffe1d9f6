// Fragments of texts whose glyphs are made of rectangles, so that every pixel is known.
#include "Backends/Raster/TextRasters.hpp"

#include <gmock/gmock.h>

#include <array>
#include <numbers>

#include "Backends/Raster/GlyphTable.hpp"

namespace proupsells::rasterbackend {
namespace {

using geometry::Path;
using geometry::Point;
using geometry::Rect;
using geometry::Transform;
using testing::ElementsAre;
using testing::IsEmpty;
using Columns = std::vector<std::pair<int, int>>; // stretches of covered pixels: the first, and the one behind the last

// From the baseline up to an em above it, between the given places in tenths of an em.
GlyphShape bars(std::initializer_list<std::pair<int, int>> places) {
    GlyphShape shape;
    for (const auto& place : places) {
        const double left = place.first / 10.0, right = place.second / 10.0;
        shape.outline.moveTo({left, -1});
        for (const Point corner : {Point{right, -1}, {right, 0}, {left, 0}}) shape.outline.lineTo(corner);
        shape.outline.close();
    }
    return shape;
}

// Five clusters of 10, 7, 3, 20 and 10 points in letters of 10 points; the three in the middle are one ligature.
class LigatureText {
public:
    explicit LigatureText(std::uint8_t bidiLevel = 0) {
        m_text.runs = {{"abcde", {.size = 10}, 0}};
        std::uint32_t offset = 0;
        for (const double advance : {10, 7, 3, 20, 10})
            m_text.clusters.push_back({.textOffset = offset++, .textLength = 1, .advance = advance, .bidiLevel = bidiLevel});
        m_text.groupStarts = {0, 1, 1, 1, 4};
        m_text.glyphStarts = {0, 1, 2, 2, 2, 3};
        m_text.glyphs = {{&m_first, 0, 0}, {&m_ligature, 0, 0}, {&m_last, 0, 0}};
    }
    RasterShapedText& text() { return m_text; }

private:
    GlyphShape m_first = bars({{1, 9}}), m_ligature = bars({{0, 5}, {10, 16}, {20, 29}}), m_last = bars({{2, 4}});
    RasterShapedText m_text;
};

class TextRastersTest : public testing::Test {
protected:
    TextRaster raster(const RasterShapedText& text, FragmentRange range, Point baseline, const Transform& toPixels = {},
                      Pixel color = 0xFF000000) {
        return m_rasters.raster(text, range, baseline, toPixels, color);
    }
    // Of the row of pixels above the baseline.
    Columns columns(const RasterShapedText& text, std::uint32_t first, std::uint32_t end) {
        Columns columns;
        raster(text, {first, end}, {0, 20})
            .mask.visitRow(19, -100, 100, [&](int left, int right, const std::uint8_t* own, int shared) {
                for (int x = left; x < right; ++x) {
                    if ((own ? own[x - left] : shared) == 0) continue;
                    EXPECT_EQ(own ? own[x - left] : shared, 255) << x;
                    if (!columns.empty() && columns.back().second == x)
                        ++columns.back().second;
                    else
                        columns.push_back({x, x + 1});
                }
            });
        return columns;
    }
    static int coverageAt(const PlacedMask& mask, int x, int y) {
        int coverage = 0;
        mask.visitRow(y, x, x + 1, [&](int, int, const std::uint8_t* own, std::uint8_t shared) { coverage = own ? *own : shared; });
        return coverage;
    }

    CoverageRasterizer m_rasterizer;
    TextRasters m_rasters{m_rasterizer};
};

TEST_F(TextRastersTest, CutLigaturesBetweenTheirClusters) {
    LigatureText made;
    const RasterShapedText& text = made.text();

    EXPECT_THAT(columns(text, 0, 5), (Columns{{1, 9}, {10, 15}, {20, 26}, {30, 39}, {42, 44}}));
    EXPECT_THAT(columns(text, 1, 4), (Columns{{0, 5}, {10, 16}, {20, 29}}));
    EXPECT_THAT(columns(text, 0, 1), (Columns{{1, 9}}));
    EXPECT_THAT(columns(text, 1, 2), (Columns{{0, 5}}));
    EXPECT_THAT(columns(text, 2, 3), IsEmpty());
    EXPECT_THAT(columns(text, 3, 4), (Columns{{0, 6}, {10, 19}}));
    EXPECT_THAT(columns(text, 2, 4), (Columns{{3, 9}, {13, 22}}));
    EXPECT_THAT(columns(text, 0, 2), (Columns{{1, 9}, {10, 15}}));
    EXPECT_THAT(columns(text, 3, 5), (Columns{{0, 6}, {10, 19}, {22, 24}}));
    EXPECT_THAT(columns(text, 4, 5), (Columns{{2, 4}}));
}

TEST_F(TextRastersTest, CutLigaturesFromTheRightWhereTheTextRunsThatWay) {
    LigatureText made(1);
    const RasterShapedText& text = made.text();

    EXPECT_THAT(columns(text, 0, 5), (Columns{{2, 4}, {10, 15}, {20, 26}, {30, 39}, {41, 49}}));
    EXPECT_THAT(columns(text, 1, 4), (Columns{{0, 5}, {10, 16}, {20, 29}}));
    EXPECT_THAT(columns(text, 1, 2), (Columns{{0, 6}}));
    EXPECT_THAT(columns(text, 2, 3), (Columns{{0, 3}}));
    EXPECT_THAT(columns(text, 3, 4), (Columns{{0, 5}, {10, 16}}));
    EXPECT_THAT(columns(text, 2, 4), (Columns{{0, 5}, {10, 16}, {20, 23}}));
    EXPECT_THAT(columns(text, 1, 3), (Columns{{0, 9}}));
    EXPECT_THAT(columns(text, 0, 2), (Columns{{0, 6}, {8, 16}}));
    EXPECT_THAT(columns(text, 3, 5), (Columns{{2, 4}, {10, 15}, {20, 26}}));
}

TEST_F(TextRastersTest, HaveNothingOfClustersThatAreNotThere) {
    LigatureText made;

    EXPECT_THAT(columns(made.text(), 4, 99), (Columns{{2, 4}}));
    EXPECT_EQ(raster(made.text(), {5, 99}, {}).mask.mask, nullptr);
    EXPECT_EQ(raster(made.text(), {3, 3}, {}).mask.mask, nullptr);
    EXPECT_EQ(raster(made.text(), {3, 2}, {}).mask.mask, nullptr);
}

TEST_F(TextRastersTest, PutEachGlyphAtItsOwnPlace) {
    LigatureText made;
    const GlyphShape mark = bars({{0, 1}});
    RasterShapedText& text = made.text();
    text.glyphStarts = {0, 3, 4, 4, 4, 5};
    text.glyphs.insert(text.glyphs.begin() + 1, {{&mark, 15, 0}, {&mark, -3, -12}});

    EXPECT_THAT(columns(text, 0, 1), (Columns{{1, 9}, {15, 16}}));
    const PlacedMask mask = raster(text, {0, 1}, {0, 20}).mask;
    for (const int y : {-3, -2, 7, 8}) EXPECT_EQ(coverageAt(mask, -3, y), y == -2 || y == 7 ? 255 : 0) << y;
}

TEST_F(TextRastersTest, StandOnQuartersOfAPixelAcrossAndOnWholePixelsDown) {
    LigatureText made;
    const auto coverages = [&](Point baseline) {
        const PlacedMask mask = raster(made.text(), {0, 1}, baseline).mask;
        return std::array{coverageAt(mask, 0, 5), coverageAt(mask, 1, 5), coverageAt(mask, 8, 5), coverageAt(mask, 9, 5)};
    };
    constexpr std::array whole{0, 255, 255, 0}, quarter{0, 191, 255, 64}, half{0, 128, 255, 128}, less{64, 255, 191, 0};

    EXPECT_EQ(coverages({0, 10}), whole);
    EXPECT_EQ(coverages({0.12, 10}), whole);
    EXPECT_EQ(coverages({0.13, 10}), quarter);
    EXPECT_EQ(coverages({0.37, 10}), quarter);
    EXPECT_EQ(coverages({0.38, 10}), half);
    EXPECT_EQ(coverages({-0.25, 10}), less);
    EXPECT_EQ(coverages({-0.12, 10}), whole);
    for (const double y : {9.5, 10.0, 10.49}) {
        const PlacedMask mask = raster(made.text(), {0, 1}, {0, y}).mask;
        EXPECT_EQ(coverageAt(mask, 4, 0), 255) << y;
        EXPECT_EQ(coverageAt(mask, 4, 9), 255) << y;
        EXPECT_EQ(coverageAt(mask, 4, -1), 0) << y;
        EXPECT_EQ(coverageAt(mask, 4, 10), 0) << y;
    }
}

TEST_F(TextRastersTest, StandOnQuartersOfAPixelDownToo) {
    LigatureText made;
    const auto middle = [&](const Transform& toPixels, Point baseline) {
        return raster(made.text(), {0, 1}, baseline, toPixels).mask;
    };

    // Upside down: from the baseline downwards.
    const PlacedMask mirrored = middle(Transform::scaling(1, -1), {0, -10.3});
    EXPECT_EQ(coverageAt(mirrored, 4, 10), 191);
    EXPECT_EQ(coverageAt(mirrored, 4, 15), 255);
    EXPECT_EQ(coverageAt(mirrored, 4, 20), 64);
    // Leaning: the baseline is level, the bars are not.
    const PlacedMask leaning = middle(Transform{1, 0, -0.5, 1, 0, 0}, {0, 20.3});
    EXPECT_EQ(coverageAt(leaning, -6, 20), 64);
    EXPECT_EQ(coverageAt(leaning, -6, 21), 0);
    // Climbing.
    const PlacedMask climbing = middle(Transform{1, 0.5, 0, 1, 0, 0}, {0, 20.3}),
                     higher = middle(Transform{1, 0.5, 0, 1, 0, 0}, {0, 20});
    EXPECT_GT(coverageAt(climbing, 1, 20), coverageAt(higher, 1, 20));
}

TEST_F(TextRastersTest, AreMadeOnceForEachPlaceBetweenPixels) {
    LigatureText made, other;
    const auto mask = [&](const RasterShapedText& text, FragmentRange range, Point baseline, const Transform& toPixels = {}) {
        return raster(text, range, baseline, toPixels).mask.mask;
    };
    const auto usual = mask(made.text(), {0, 2}, {3, 20});

    EXPECT_EQ(mask(made.text(), {0, 2}, {3, 20}), usual);
    EXPECT_EQ(mask(made.text(), {0, 2}, {-40, 7}), usual);
    EXPECT_NE(mask(made.text(), {0, 2}, {3.25, 20}), usual);
    EXPECT_NE(mask(made.text(), {0, 3}, {3, 20}), usual);
    EXPECT_NE(mask(made.text(), {1, 2}, {3, 20}), usual);
    EXPECT_NE(mask(other.text(), {0, 2}, {3, 20}), usual);
    EXPECT_NE(mask(made.text(), {0, 2}, {3, 20}, Transform::scaling(2, 2)), usual);
    EXPECT_NE(mask(made.text(), {0, 2}, {3, 20}, Transform{1, 0, 0.5, 1, -10, 0}), usual);
}

// --- Pictures among the letters ---

// A column of a picture has the red of its place.
class EmojiText {
public:
    EmojiText() {
        m_emoji.picture = Picture(20, 10);
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 20; ++x) m_emoji.picture.row(y)[x] = 0xFF000000u | Pixel(x + 1) << 16 | Pixel(y + 1);
        m_emoji.pictureFrame = {{0, -1}, {2, 1}};
        m_text.runs = {{"abc", {.size = 10}, 0}};
        for (const std::uint32_t offset : {0u, 1u, 2u})
            m_text.clusters.push_back({.textOffset = offset, .textLength = 1, .advance = offset < 2 ? 10.0 : 5.0});
        m_text.groupStarts = {0, 0, 2};
        m_text.glyphStarts = {0, 1, 1, 2};
        m_text.glyphs = {{&m_emoji, 0, 0}, {&m_bar, 0, 0}};
    }
    const RasterShapedText& text() const { return m_text; }

private:
    GlyphShape m_emoji, m_bar = bars({{1, 4}});
    RasterShapedText m_text;
};

constexpr Pixel textColor = 0xFF102030;

TEST_F(TextRastersTest, PutPicturesBesideLettersInTheirColor) {
    const EmojiText emoji;
    const TextRaster made = raster(emoji.text(), {0, 3}, {5, 20}, {}, textColor);

    ASSERT_EQ(made.picture.width(), 24);
    ASSERT_EQ(made.picture.height(), 10);
    EXPECT_EQ(made.mask.x, 5);
    EXPECT_EQ(made.mask.y, 10);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 24; ++x) {
            const Pixel expected = x < 20 ? 0xFF000000u | Pixel(x + 1) << 16 | Pixel(y + 1) : x == 20 ? 0 : textColor;
            EXPECT_EQ(made.picture.row(y)[x], expected) << x << ", " << y;
        }
}

TEST_F(TextRastersTest, CutPicturesBetweenTheirClusters) {
    const EmojiText emoji;
    const TextRaster left = raster(emoji.text(), {0, 1}, {5, 20}, {}, textColor),
                     right = raster(emoji.text(), {1, 3}, {5, 20}, {}, textColor);

    ASSERT_EQ(left.picture.width(), 10);
    ASSERT_EQ(right.picture.width(), 14);
    EXPECT_EQ(left.mask.x, 5);
    EXPECT_EQ(right.mask.x, 5);
    for (int x = 0; x < 10; ++x) {
        EXPECT_EQ(left.picture.row(0)[x], 0xFF000001u | Pixel(x + 1) << 16);
        EXPECT_EQ(right.picture.row(9)[x], 0xFF00000Au | Pixel(x + 11) << 16);
    }
    EXPECT_EQ(right.picture.row(0)[12], textColor);
}

TEST_F(TextRastersTest, MakePicturesOnceForEachColour) {
    const EmojiText emoji;
    const auto pixels = [&](Pixel color) -> const Pixel* {
        const TextRaster made = raster(emoji.text(), {0, 3}, {5, 20}, {}, color);
        return made.picture.row(0);
    };
    const Pixel *first = pixels(textColor), *second = pixels(0xFFFF0000);

    EXPECT_NE(first, second);
    EXPECT_EQ(pixels(textColor), first);
    EXPECT_EQ(pixels(0xFFFF0000), second);
    EXPECT_EQ(first[22], textColor);
    EXPECT_EQ(second[22], 0xFFFF0000);
}

TEST_F(TextRastersTest, TurnAndMirrorPicturesToo) {
    const EmojiText emoji;
    const auto redAt = [&](const Transform& toPixels, Point baseline, int x, int y) {
        const TextRaster made = raster(emoji.text(), {0, 2}, baseline, toPixels, textColor);
        x -= made.mask.x;
        y -= made.mask.y;
        if (x < 0 || y < 0 || x >= made.picture.width() || y >= made.picture.height()) return -1;
        return int(made.picture.row(y)[x] >> 16 & 0xFF);
    };

    EXPECT_EQ(redAt({}, {0, 20}, 3, 15), 4);
    EXPECT_NEAR(redAt(Transform::scaling(-1, 1), {0, 20}, -4, 15), 4, 1);
    EXPECT_EQ(redAt(Transform::scaling(-1, 1), {0, 20}, 3, 15), -1);
    EXPECT_NEAR(redAt(Transform::scaling(1, -1), {0, -20}, 3, 25), 4, 1);
    EXPECT_EQ(redAt(Transform::scaling(1, -1), {0, -20}, 3, 15), -1);
    EXPECT_NEAR(redAt(Transform{0, 1, -1, 0, 0, 0}, {0, 0}, 5, 3), 4, 1);
    EXPECT_NEAR(redAt(Transform{0, 1, -1, 0, 0, 0}, {0, 0}, 5, 16), 17, 1);
    EXPECT_EQ(redAt(Transform::scaling(2, 2), {0, 10}, 7, 10), 4);
    // Leaning to the left by a half of the height above the baseline, or falling.
    EXPECT_NEAR(redAt(Transform{1, 0, 0.5, 1, 0, 0}, {0, 0}, 3, -6), 6, 1);
    EXPECT_NEAR(redAt(Transform{1, 0.5, 0, 1, 0, 0}, {0, 0}, 18, 4), 19, 1);
}

TEST_F(TextRastersTest, ShowNothingOfAPictureThatIsLowerThanHalfAPixel) {
    const EmojiText emoji;

    for (const double scale : {0.04, 0.001}) {
        const TextRaster made = raster(emoji.text(), {0, 2}, {0, 0}, Transform::scaling(scale, scale), textColor);
        EXPECT_TRUE(made.picture.isNull() || made.picture.row(0)[0] == 0) << scale;
    }
}

// --- Texts that another shaper made ---

std::shared_ptr<graphics::ShapedText> foreignText(const std::string& letters) {
    auto text = std::make_shared<graphics::ShapedText>();
    text->runs = {{letters, {.size = 10}, 0}};
    text->clusters = {{.textOffset = 0, .textLength = 2, .advance = 60}, {.textOffset = 2, .textLength = 1, .advance = 30}};
    return text;
}

TEST_F(TextRastersTest, PutTheirOwnGlyphsInTheMiddleOfAnotherShapersClusters) {
    RasterTextShaper shaper;
    const graphics::StyledRun run{"HIO", {.size = 10}, 0};
    const auto own =
        std::static_pointer_cast<const RasterShapedText>(shaper.shape({&run, 1}, {}, geometry::LayoutDirection::leftToRight));
    ASSERT_EQ(own->clusters.size(), 3u);
    const double h = own->clusters[0].advance, i = own->clusters[1].advance, o = own->clusters[2].advance;

    const auto text = m_rasters.withGlyphs(foreignText("HIO"));

    EXPECT_EQ(text->groupStarts, (std::vector<std::uint32_t>{0, 1}));
    EXPECT_EQ(text->glyphStarts, (std::vector<std::uint32_t>{0, 2, 3}));
    ASSERT_EQ(text->glyphs.size(), 3u);
    EXPECT_NEAR(text->glyphs[0].x, (60 - h - i) / 2, 1e-4);
    EXPECT_NEAR(text->glyphs[1].x, (60 - h - i) / 2 + h, 1e-4);
    EXPECT_NEAR(text->glyphs[2].x, (30 - o) / 2, 1e-4);
    for (int glyph = 0; glyph < 3; ++glyph)
        EXPECT_EQ(text->glyphs[std::size_t(glyph)].shape->outline, own->glyphs[std::size_t(glyph)].shape->outline);
    EXPECT_EQ(text->clusters.size(), 2u);
    EXPECT_EQ(text->clusters[1].advance, 30);
}

TEST_F(TextRastersTest, RememberAnotherShapersTextAsLongAsItLives) {
    graphics::ShapedText place = *foreignText("HIO");
    const auto nobody = [](const graphics::ShapedText*) {};
    std::shared_ptr<const graphics::ShapedText> text(&place, nobody);

    const auto first = m_rasters.withGlyphs(text);
    EXPECT_EQ(m_rasters.withGlyphs(text), first);

    place = *foreignText("WWW");
    text = std::shared_ptr<const graphics::ShapedText>(&place, nobody);
    const auto second = m_rasters.withGlyphs(text);
    EXPECT_NE(second, first);
    EXPECT_LT(second->glyphs[0].x, first->glyphs[0].x);
}

TEST_F(TextRastersTest, TakeTheirOwnTextsAsTheyAre) {
    RasterTextShaper shaper;
    const graphics::StyledRun run{"HIO", {.size = 10}, 0};
    const std::shared_ptr<const graphics::ShapedText> own = shaper.shape({&run, 1}, {}, geometry::LayoutDirection::leftToRight);

    EXPECT_EQ(m_rasters.withGlyphs(own), own);
}

} // namespace
} // namespace proupsells::rasterbackend
