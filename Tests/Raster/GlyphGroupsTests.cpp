// Which glyphs belong to which clusters.
#include <gmock/gmock.h>

#include "Tests/Raster/Shaping.hpp"

namespace proupsells::tests {
namespace {

using testing::ElementsAre;

TEST(GlyphGroups, OfLineFeedsAreTheirOwnAndEmpty) {
    rasterbackend::RasterTextShaper shaper;

    const ShapedRef text = shapedBy(shaper, "a\nb\n\nc");
    EXPECT_THAT(text->groupStarts, ElementsAre(0, 1, 2, 3, 4, 5));
    EXPECT_THAT(text->glyphStarts, ElementsAre(0, 1, 1, 2, 2, 2, 3));

    const ShapedRef feeds = shapedBy(shaper, "\n\n");
    EXPECT_THAT(feeds->groupStarts, ElementsAre(0, 1));
    EXPECT_THAT(feeds->glyphStarts, ElementsAre(0, 0, 0));
}

TEST(GlyphGroups, OfBlanksAreEmpty) {
    rasterbackend::RasterTextShaper shaper;
    const ShapedRef text = shapedBy(shaper, "a b");

    EXPECT_THAT(text->groupStarts, ElementsAre(0, 1, 2));
    EXPECT_THAT(text->glyphStarts, ElementsAre(0, 1, 1, 2));
}

TEST(GlyphGroups, OfATextOfNothingAreNone) {
    rasterbackend::RasterTextShaper shaper;
    const ShapedRef text = shapedBy(shaper, "");

    EXPECT_THAT(text->groupStarts, ElementsAre());
    EXPECT_THAT(text->glyphStarts, ElementsAre(0));
}

TEST(GlyphGroups, KeepTheFontsThatTheirGlyphsAreOfOnceEach) {
    rasterbackend::RasterTextShaper shaper;

    EXPECT_EQ(shapedBy(shaper, {{"ab", {}, 0}, {"cd", {}, 0}})->glyphTables.size(), 1u);
    EXPECT_EQ(shapedBy(shaper, {{"a", {.face = faceOf("Inter", 400)}, 0},
                                {"b", {.face = faceOf("Sora", 700)}, 0},
                                {"c", {.face = faceOf("Inter", 400)}, 0}})
                  ->glyphTables.size(),
              2u);
}

} // namespace
} // namespace proupsells::tests
