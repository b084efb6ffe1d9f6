// How far apart letters stand.
#include <gtest/gtest.h>

#include "Backends/Raster/FontFile.hpp"
#include "Tests/Raster/Shaping.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {
namespace {

constexpr double letterSize = 10;
constexpr double unit = letterSize / rasterbackend::shapingUnitsPerEm;

class LetterSpacing : public testing::Test {
protected:
    double advance(const std::string& text, double kern, double size = letterSize) {
        return shapedBy(m_shaper, {{text, {.size = size}, kern}})->clusters.at(0).advance;
    }
    double spacing(double kern) { return advance("a", kern) - advance("a", 0); }

    rasterbackend::RasterTextShaper m_shaper;
};

TEST_F(LetterSpacing, IsInWholeUnitsOfTheFonts) {
    EXPECT_NEAR(spacing(0.9 * unit), 0, 1e-9);
    EXPECT_NEAR(spacing(1.1 * unit), unit, 1e-9);
    EXPECT_NEAR(spacing(-0.9 * unit), 0, 1e-9);
    EXPECT_NEAR(spacing(-1.9 * unit), -unit, 1e-9);
    EXPECT_NEAR(spacing(2), 2, unit);
}

TEST_F(LetterSpacing, IsAtMostEightEms) {
    EXPECT_NEAR(spacing(79), 79, unit);
    EXPECT_NEAR(spacing(81), 80, unit);
    EXPECT_NEAR(spacing(1e9), 80, unit);
    EXPECT_NEAR(spacing(-79), -79, unit);
    EXPECT_NEAR(spacing(-81), -80, unit);
}

TEST_F(LetterSpacing, IsNothingWhereLettersHaveNoSize) {
    EXPECT_EQ(advance("a", 5, 0), 0);
    EXPECT_EQ(advance("a", 5, -3), 0);
}

TEST_F(LetterSpacing, StandsBesideTheRoomOfALetterThatNoFontHas) {
    LogRecorder log;
    const TemporaryFolder folder;
    rasterbackend::RasterTextShaper bare({folder.path() / "none", folder.write("fonts.conf", "<fontconfig></fontconfig>")});

    EXPECT_EQ(shapedBy(bare, {{"a", {.size = letterSize}, 0}})->clusters.at(0).advance, 5);
    EXPECT_NEAR(shapedBy(bare, {{"a", {.size = letterSize}, 3}})->clusters.at(0).advance, 8, unit);
}

// Characters that say something about a text, or nothing at all.
TEST_F(LetterSpacing, GivesControlCharactersNoWidth) {
    for (const char* control : {"\x01", "\x1F", "\x7F", "\u0080", "\u009F", "\u00AD", "\u202A", "\u202E", "\u2066", "\u2069"}) {
        const ShapedRef text = shapedBy(m_shaper, {{control, {.size = letterSize}, 0}});
        EXPECT_EQ(widthOf(*text), 0) << std::uint32_t(std::uint8_t(control[0]));
        EXPECT_TRUE(text->glyphs.empty());
    }
    for (const char* visible : {" ", "~", "\u00A0", "\u00A1", "\u00AC", "\u00AE", "\t", "\uFFFC"})
        EXPECT_GT(advance(visible, 0), 0) << std::uint32_t(std::uint8_t(visible[0]));
    EXPECT_EQ(advance("\t", 0), advance(" ", 0));
    EXPECT_EQ(advance("\uFFFC", 0), advance("\uFFFD", 0));
}

} // namespace
} // namespace proupsells::tests
