// Letters that are written as one: joined ones and ligatures.
#include <gmock/gmock.h>

#include "Tests/Raster/Shaping.hpp"

namespace proupsells::tests {
namespace {

using graphics::StyledRun;
using testing::ElementsAre;

class JoinedLetters : public testing::Test {
protected:
    ShapedRef fromTheRight(const std::vector<StyledRun>& runs) {
        return shapedBy(m_shaper, runs, "en", geometry::LayoutDirection::rightToLeft);
    }
    ShapedRef fromTheRight(const std::string& text, double kern = 0) { return fromTheRight({{text, {.size = 16}, kern}}); }

    rasterbackend::RasterTextShaper m_shaper;
};

TEST_F(JoinedLetters, LookAsTheirNeighboursWantIt) {
    const auto shapeOf = [this](const std::string& text, std::size_t cluster) {
        const ShapedRef shaped = fromTheRight(text);
        return shaped->glyphs.at(shaped->glyphStarts.at(cluster)).shape;
    };

    EXPECT_NE(shapeOf("بب", 0), shapeOf("ب", 0));
    EXPECT_NE(shapeOf("بب", 0), shapeOf("بب", 1));
    EXPECT_EQ(shapeOf("بب ب", 3), shapeOf("ب", 0));
}

TEST_F(JoinedLetters, AreJoinedAcrossRuns) {
    const ShapedRef text = fromTheRight({{"ب", {.size = 16}, 0}, {"ب", {.size = 16}, 0}});
    const ShapedRef word = fromTheRight("بب");

    EXPECT_EQ(text->glyphs.at(0).shape, word->glyphs.at(0).shape);
    EXPECT_EQ(text->glyphs.at(1).shape, word->glyphs.at(1).shape);
}

TEST_F(JoinedLetters, ShareTheWidthOfTheirLigature) {
    // Lam and alef become one glyph.
    const ShapedRef text = fromTheRight("لا");

    ASSERT_EQ(text->clusters.size(), 2u);
    EXPECT_GT(text->clusters[0].advance, 0);
    EXPECT_NEAR(text->clusters[0].advance, text->clusters[1].advance, 1e-9);
    EXPECT_THAT(text->groupStarts, ElementsAre(0, 0));
}

TEST_F(JoinedLetters, AreNoLigatureWhereTheyAreSpaced) {
    const auto groups = [this](double kern) {
        return shapedBy(m_shaper, {{"ffi", {.face = faceOf("Sora", 700), .size = 16}, kern}})->groupStarts;
    };

    EXPECT_THAT(groups(0), ElementsAre(0, 0, 0));
    EXPECT_THAT(groups(0.5), ElementsAre(0, 1, 2));
}

TEST_F(JoinedLetters, AreNeverPulledApart) {
    const auto width = [this](const char* word, double kern) { return widthOf(*fromTheRight(word, kern)); };

    EXPECT_EQ(width("سنوي", 2), width("سنوي", 0));
    EXPECT_EQ(width("वार्षिक", 2), width("वार्षिक", 0));
    EXPECT_NEAR(width("שנה", 2), width("שנה", 0) + 6, 1e-2);
}

TEST_F(JoinedLetters, HaveTheirSpaceOnTheFarSideOfALetter) {
    const auto place = [this](double kern) { return fromTheRight("א", kern)->glyphs.at(0).x; };

    EXPECT_NEAR(place(2), place(0) + 2, 1e-3);
}

} // namespace
} // namespace proupsells::tests
