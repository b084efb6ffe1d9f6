#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Tests/Foundation/BidiLevels.hpp"

using namespace proupsells;

using foundation::Locale;
using geometry::LayoutDirection;
using icubackend::IcuLocaleServices;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Icu : public testing::Test {
protected:
    std::string percent(double fraction, const char* locale, int digits = 0) const {
        return services.percentText(fraction, digits, Locale(locale)).value_or("absent");
    }
    std::string upper(const char* text, const char* locale = "en_US") const { return services.upperCased(text, Locale(locale)); }
    std::string title(const char* text, const char* locale = "en_US") const { return services.titleCased(text, Locale(locale)); }

    IcuLocaleServices services;
};

TEST_F(Icu, WritesPercentagesInTheLocalesOwnFormat) {
    EXPECT_EQ(percent(0.45, "en_US"), "45%");
    EXPECT_EQ(percent(0.45, "de_AT"), "45\u00A0%");
    EXPECT_EQ(percent(0.45, "fr_FR"), "45\u00A0%");
    EXPECT_EQ(percent(0.45, "ar_EG"), "\u0664\u0665\u066A\u061C");
    EXPECT_EQ(percent(0.45, "fa"), "\u06F4\u06F5\u066A");
    EXPECT_EQ(percent(0.45, "tr"), "%45");
    EXPECT_EQ(percent(0.45, "eu"), "%\u00A045");
    EXPECT_EQ(percent(-0.05, "en_US"), "-5%");
    EXPECT_EQ(percent(-0.05, "sv"), "\u22125\u00A0%");
    EXPECT_EQ(percent(12.34, "de_DE"), "1.234\u00A0%");
}

TEST_F(Icu, WritesPercentagesOfPseudoLanguagesLikeTheirBaseInLatinDigits) {
    EXPECT_EQ(percent(0.45, "en_XA"), "45%");
    EXPECT_EQ(percent(12.345, "en_XA", 1), "1,234.5%");
    EXPECT_EQ(percent(0.45, "ar_XB"), "45\u200E%\u200E");
}

TEST_F(Icu, RunsPseudoLanguagesLikeTheirBase) {
    EXPECT_EQ(services.layoutDirection(Locale("en_XA")), geometry::LayoutDirection::leftToRight);
    EXPECT_EQ(services.layoutDirection(Locale("ar_XB")), geometry::LayoutDirection::rightToLeft);
}

TEST_F(Icu, RoundsPercentagesHalfToEven) {
    EXPECT_EQ(percent(0.125, "en"), "12%");
    EXPECT_EQ(percent(0.135, "en"), "14%");
    EXPECT_EQ(percent(0.145, "en"), "14%");
    EXPECT_EQ(percent(0.12345, "en", 2), "12.34%");
    EXPECT_EQ(percent(0.5, "en", 2), "50%");
    EXPECT_EQ(percent(0.45, "en", -1), "45%");
}

TEST_F(Icu, ChangesFormatWithTheLocaleAndTheDigits) {
    EXPECT_EQ(percent(0.125, "en", 1), "12.5%");
    EXPECT_EQ(percent(0.125, "de", 1), "12,5\u00A0%");
    EXPECT_EQ(percent(0.125, "de", 0), "12\u00A0%");
    EXPECT_EQ(percent(0.125, "en", 1), "12.5%");
}

TEST_F(Icu, CannotWriteWhatIsNoNumber) {
    for (const double number : {HUGE_VAL, -HUGE_VAL, std::nan("")})
        EXPECT_EQ(services.percentText(number, 0, Locale("en")), std::nullopt);
}

TEST_F(Icu, TreatsUnknownLocalesAsTheRoot) {
    for (const char* locale : {"", "xx_YY", "not a locale", "@@@", "_"}) {
        EXPECT_THAT(percent(0.45, locale), testing::HasSubstr("45")) << locale;
        EXPECT_EQ(upper("pro", locale), "PRO") << locale;
        EXPECT_EQ(title("pro", locale), "Pro") << locale;
        EXPECT_EQ(services.layoutDirection(Locale(locale)), LayoutDirection::leftToRight) << locale;
    }
}

TEST_F(Icu, RaisesByTheRulesOfTheLanguage) {
    EXPECT_EQ(upper("istanbul", "tr_TR"), "\u0130STANBUL");
    EXPECT_EQ(upper("istanbul", "en_US"), "ISTANBUL");
    EXPECT_EQ(upper("Stra\u00DFe", "de_DE"), "STRASSE");
    EXPECT_EQ(upper("\u03BA\u03B1\u03BB\u03AC", "el"), "\u039A\u0391\u039B\u0391"); // Greek capitals drop the accent
    EXPECT_EQ(upper("\u0444\u0443\u043D\u043A\u0446\u0438\u0438", "ru"), "\u0424\u0423\u041D\u041A\u0426\u0418\u0418");
    EXPECT_EQ(upper("\u6708\u984D 4x", "ja"), "\u6708\u984D 4X");
    EXPECT_EQ(upper(""), "");
}

TEST_F(Icu, ReplacesWhatIsIllFormed) {
    EXPECT_EQ(upper("a\xFFz"), "A\uFFFDZ");
    EXPECT_EQ(title("ab\xE2\x82"), "Ab\uFFFD");
}

TEST_F(Icu, RaisesEachWordsFirstLetter) {
    EXPECT_EQ(title("CREATION tools"), "Creation Tools");
    EXPECT_EQ(title("don't stop"), "Don't Stop");
    EXPECT_EQ(title("istanbul izmir", "tr"), "\u0130stanbul \u0130zmir");
    EXPECT_EQ(title("ijsvrij", "nl"), "IJsvrij");
    EXPECT_EQ(title("ijsvrij", "en"), "Ijsvrij");
    EXPECT_EQ(title("\u00E9l\u00E9ments cr\u00E9atifs", "fr"), "\u00C9l\u00E9ments Cr\u00E9atifs");
    EXPECT_EQ(title(""), "");
}

TEST_F(Icu, FindsWordsByTheRulesOfTheLanguageThatIsAskedForNow) {
    // A colon stands inside Swedish words.
    EXPECT_EQ(title("eu:s regler", "en"), "Eu:S Regler");
    EXPECT_EQ(title("eu:s regler", "sv"), "Eu:s Regler");
    EXPECT_EQ(title("eu:s regler", "en"), "Eu:S Regler");
    EXPECT_EQ(title("eu:s regler", ""), "Eu:S Regler");
}

class IcuBidi : public Icu {
protected:
    std::string levels(const std::string& text, LayoutDirection fallback = LayoutDirection::leftToRight) const {
        return tests::levelsOf(text, services.bidiRuns(text, fallback));
    }
};

TEST_F(IcuBidi, ReadsAParagraphLikeItsFirstLetter) {
    for (const LayoutDirection fallback : {LayoutDirection::leftToRight, LayoutDirection::rightToLeft}) {
        EXPECT_EQ(levels("7 days אב.", fallback), "0:0000000110");
        EXPECT_EQ(levels("7 אב days.", fallback), "1:2111122221");
    }
}

TEST_F(IcuBidi, ReadsAParagraphWithoutLettersLikeTheScreen) {
    EXPECT_EQ(levels("$9.99!"), "0:000000");
    EXPECT_EQ(levels("$9.99!", LayoutDirection::rightToLeft), "1:222221");
    EXPECT_EQ(levels("", LayoutDirection::rightToLeft), "");
}

TEST_F(IcuBidi, StartsAnewWithEveryParagraph) {
    EXPECT_EQ(levels("ab\nאב\n12"), "0:0001:1110:00");
    EXPECT_EQ(levels("ab\nאב\n12", LayoutDirection::rightToLeft), "0:0001:11122");
}

TEST_F(IcuBidi, ObeysInvisibleMarks) {
    EXPECT_EQ(levels("a\u2067b\u2069c"), "0:00200");               // an isolate from right to left
    EXPECT_EQ(levels("a\u2068א!\u2069c"), "0:001100");             // one like its own first letter
    EXPECT_THAT(levels("\u200Fab"), testing::StartsWith("1:122")); // a letter that is not seen
}

TEST_F(IcuBidi, KeepsBracketsInPairs) { EXPECT_EQ(levels("a (אב) ב"), "0:00011001"); }

TEST_F(IcuBidi, KnowsTheNumbersOfArabicTexts) {
    EXPECT_EQ(levels("سعر 1-2"), "1:1111212");
    EXPECT_EQ(levels("מחיר 1-2"), "1:11111222");
}

TEST_F(IcuBidi, CountsTheBytesOfLongAndOfIllFormedCharacters) {
    using foundation::BidiRun;
    EXPECT_THAT(services.bidiRuns("\U00010900a", LayoutDirection::leftToRight), // a Phoenician letter
                ElementsAre(BidiRun{4, 1, 1}, BidiRun{5, 2, 1}));
    EXPECT_THAT(services.bidiRuns("a\u05D0\xD7", LayoutDirection::leftToRight),
                ElementsAre(BidiRun{1, 0, 0}, BidiRun{3, 1, 0}, BidiRun{4, 0, 0}));
}

TEST_F(IcuBidi, SurvivesDeepNesting) {
    std::string text;
    for (int depth = 0; depth < 200; ++depth) text += depth % 2 ? "\u202Bא" : "\u202Aa";

    EXPECT_EQ(services.bidiRuns(text, LayoutDirection::leftToRight).back().end, text.size());
}

struct Cluster {
    const char* name;
    std::string text;
};

class IcuCluster : public testing::TestWithParam<Cluster> {};

TEST_P(IcuCluster, IsOneCharacterBetweenTwoOthers) {
    const IcuLocaleServices services;
    const std::string text = "a" + GetParam().text + "z";

    EXPECT_EQ(services.graphemeCount(text), 3u);
    EXPECT_THAT(services.graphemeEnds(text), ElementsAre(1, text.size() - 1, text.size()));
}

INSTANTIATE_TEST_SUITE_P(Table, IcuCluster,
                         testing::Values(Cluster{"CombiningAccent", "e\u0301"}, Cluster{"TwoAccents", "e\u0301\u0323"},
                                         Cluster{"Flag", "\U0001F1E6\U0001F1F9"},
                                         Cluster{"Family", "\U0001F468\u200D\U0001F469\u200D\U0001F467"},
                                         Cluster{"SkinTone", "\U0001F44D\U0001F3FD"}, Cluster{"Keycap", "1\uFE0F\u20E3"},
                                         Cluster{"HangulSyllable", "\u1112\u1161\u11AB"}, Cluster{"LineEnd", "\r\n"},
                                         Cluster{"DevanagariVowel", "\u0915\u093F"}, Cluster{"BrokenByte", "\xFF"},
                                         Cluster{"CutShort", "\xF0\x9F\x98"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(Icu, CountsTheCharactersOfPlainTexts) {
    EXPECT_EQ(services.graphemeCount(""), 0u);
    EXPECT_EQ(services.graphemeCount("Save 45%"), 8u);
    EXPECT_EQ(services.graphemeCount("\u00C4\u00D6\u00DC"), 3u);
    EXPECT_EQ(services.graphemeCount("\r\n\n\r"), 3u);
    EXPECT_EQ(services.graphemeCount(std::string_view("a\0b", 3)), 3u);
    EXPECT_THAT(services.graphemeEnds(""), IsEmpty());
    EXPECT_THAT(services.graphemeEnds("ab"), ElementsAre(1, 2));
}

TEST_F(Icu, KnowsWhoWritesFromRightToLeft) {
    for (const char* identifier : {"ar", "ar_EG", "he_IL", "fa", "ur-PK", "pa_Arab_PK", "ckb", "yi"})
        EXPECT_EQ(services.layoutDirection(Locale(identifier)), LayoutDirection::rightToLeft) << identifier;
    for (const char* identifier : {"en_US", "de", "pa", "ar_Latn", "zh_Hant_TW", "tr_TR", "ja"})
        EXPECT_EQ(services.layoutDirection(Locale(identifier)), LayoutDirection::leftToRight) << identifier;
}

} // namespace
