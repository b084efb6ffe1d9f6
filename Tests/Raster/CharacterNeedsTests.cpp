#include <gtest/gtest.h>

#include "Backends/Raster/CharacterNeeds.hpp"

namespace proupsells::rasterbackend {
namespace {

CharacterNeeds needsOf(std::u16string_view cluster) {
    // What was there before does not count.
    CharacterNeeds needs{U"x", Presentation::emoji};
    findNeeds(cluster, needs);
    return needs;
}

TEST(CharacterNeeds, AreTheCharactersThatWantAGlyph) {
    EXPECT_EQ(needsOf(u"").characters, U"");
    EXPECT_EQ(needsOf(u"a").characters, U"a");
    EXPECT_EQ(needsOf(u"e\u0301").characters, U"e\u0301");
    EXPECT_EQ(needsOf(u"\u200Da\u00ADb\uFE0F").characters, U"ab");
    EXPECT_EQ(needsOf(u"\U0001F468\u200D\U0001F469").characters, U"\U0001F468\U0001F469");
}

TEST(CharacterNeeds, ShowLettersAsTextAndFacesAsEmoji) {
    EXPECT_EQ(needsOf(u"").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"a").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"\U00010900").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"\u2713").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"\u2764").presentation, Presentation::symbol);
    EXPECT_EQ(needsOf(u"\u2B50").presentation, Presentation::emoji);
    EXPECT_EQ(needsOf(u"\U0001F600").presentation, Presentation::emoji);
}

TEST(CharacterNeeds, ShowASymbolAsItsSelectorSays) {
    EXPECT_EQ(needsOf(u"\u2764\uFE0F").presentation, Presentation::emoji);
    EXPECT_EQ(needsOf(u"\u2764\uFE0E").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"\U0001F600\uFE0E").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"a\uFE0F").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"1\uFE0F\u20E3").presentation, Presentation::emoji);
}

TEST(CharacterNeeds, ShowAClusterLikeItsFirstCharacter) {
    EXPECT_EQ(needsOf(u"a\U0001F600").presentation, Presentation::text);
    EXPECT_EQ(needsOf(u"\U0001F600a").presentation, Presentation::emoji);
    EXPECT_EQ(needsOf(u"\u2764a").presentation, Presentation::symbol);
}

TEST(CharacterNeeds, JoinMarksWithTheirCharactersAndTakeThemApart) {
    EXPECT_EQ(composed(U"e\u0301x"), U"\u00E9x");
    EXPECT_EQ(decomposed(U"\u00E9x"), U"e\u0301x");
    EXPECT_EQ(composed(U"a\U00011099\U000110BAb\U0001F600c"), U"a\U0001109Ab\U0001F600c");
    EXPECT_EQ(decomposed(U"\U0001F600\U0001109Abc"), U"\U0001F600\U00011099\U000110BAbc");
    EXPECT_EQ(composed(U""), U"");
}

} // namespace
} // namespace proupsells::rasterbackend
