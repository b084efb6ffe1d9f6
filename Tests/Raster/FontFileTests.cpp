#include <gtest/gtest.h>

#include "Backends/Raster/FontFile.hpp"
#include "Tests/Raster/Shaping.hpp"

using namespace proupsells;

using geometry::Rect;
using rasterbackend::FontFile;
using rasterbackend::GlyphShape;

namespace {

const std::filesystem::path fontFolder = PROUPSELLS_TEST_FONTS;

// The fonts number their glyphs from 1; 0 is the box.
GlyphShape shapeIn(const char* font, std::uint32_t glyph) { return FontFile::open(fontFolder / font, 0, 400)->readShape(glyph); }

} // namespace

TEST(FontFile, ReadsOutlinesInEmsDownwards) {
    const auto font = FontFile::open(fontFolder / "Layers.ttf", 0, 400);

    EXPECT_EQ(font->readShape(0).outline.bounds(), (Rect{{0.05, -0.7}, {0.4, 0.7}}));
    EXPECT_NEAR(font->ascent(), 0.8, 1e-5);
    EXPECT_NEAR(font->descent(), 0.2, 1e-5);
}

TEST(FontFile, IsNotThereWhereTheFileIsNoFontOrHasNoSuchFace) {
    EXPECT_EQ(FontFile::open(fontFolder / "None.ttf", 0, 400), nullptr);
    EXPECT_EQ(FontFile::open(__FILE__, 0, 400), nullptr);
    EXPECT_EQ(FontFile::open(fontFolder / "Layers.ttf", 1, 400), nullptr);
}

TEST(FontFile, KnowsItsCharacters) {
    const auto font = FontFile::open(fontFolder / "Layers.ttf", 0, 400);

    EXPECT_TRUE(font->covers(0x1F600));
    EXPECT_FALSE(font->covers('a'));
    EXPECT_FALSE(font->covers(0xFFFFFFFF));
}

TEST(FontFile, LaysTheLayersOfAColouredGlyphOverEachOther) {
    const GlyphShape face = shapeIn("Layers.ttf", 1);

    ASSERT_FALSE(face.picture.isNull());
    const int side = face.picture.width();
    EXPECT_EQ(face.picture.height(), side);
    EXPECT_EQ(face.picture.row(side / 8)[side / 8], 0xFFFF0000u);
    EXPECT_EQ(face.picture.row(side / 2)[side / 2], 0xFF0000FFu);
    EXPECT_EQ(face.pictureFrame, (Rect{{0, -1}, {1, 1}}));
    EXPECT_TRUE(face.outline.isEmpty());
}

TEST(FontFile, KeepsGlyphsWithoutColoursPlainInAColouredFont) {
    const GlyphShape star = shapeIn("Layers.ttf", 4);

    EXPECT_TRUE(star.picture.isNull());
    EXPECT_EQ(star.outline.bounds(), (Rect{{0, -0.5}, {0.5, 0.5}}));
}

TEST(FontFile, ReadsPicturesOfPixels) {
    const GlyphShape face = shapeIn("Pixels.ttf", 1);

    ASSERT_FALSE(face.picture.isNull());
    EXPECT_EQ(face.picture.width(), 32);
    EXPECT_EQ(face.picture.height(), 16);
    EXPECT_EQ(face.picture.row(8)[16], 0xFF00FF00u);
    EXPECT_EQ(face.pictureFrame, (Rect{{0, -0.5}, {1, 0.5}}));
}

TEST(FontFile, TakesTheSmallestPicturesThatNeedNotBeEnlargedOrTheLargest) {
    const GlyphShape among = shapeIn("Strikes.ttf", 1), below = shapeIn("Small.ttf", 1);

    EXPECT_EQ(among.picture.width(), 160);
    EXPECT_EQ(among.picture.height(), 80);
    EXPECT_EQ(among.pictureFrame, (Rect{{0, -0.5}, {1, 0.5}}));
    EXPECT_EQ(below.picture.width(), 100);
    EXPECT_EQ(below.pictureFrame, (Rect{{0, -0.5}, {1, 0.5}}));
}

// As large as four emoji.
TEST(FontFile, TakesNoPictureThatIsTooLargeForALine) {
    EXPECT_EQ(shapeIn("Strikes.ttf", 2).picture.width(), 544);
    EXPECT_EQ(shapeIn("Strikes.ttf", 3).picture.height(), 544);
    EXPECT_TRUE(shapeIn("Strikes.ttf", 4).picture.isNull());
    EXPECT_TRUE(shapeIn("Strikes.ttf", 5).picture.isNull());
}

TEST(FontFile, MakesPicturesOfLayersAsLargeAsTheyAreDrawn) { EXPECT_EQ(shapeIn("Layers.ttf", 1).picture.width(), 136); }

TEST(FontFile, OutlivesNothingThatATextNeeds) {
    tests::ShapedRef text;
    {
        rasterbackend::RasterTextShaper shaper;
        text = tests::shapedBy(shaper, "A");
    }

    EXPECT_GT(tests::firstShape(text).outline.bounds().height(), 0.5);
}
