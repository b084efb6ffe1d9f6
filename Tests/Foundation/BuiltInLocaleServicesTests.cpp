#include <cmath>
#include <limits>
#include <memory>

#include "Platform/Foundation/BuiltInLocaleServices.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/NumberFormatter.hpp"
#include "Tests/Foundation/BidiLevels.hpp"
#include "Tests/Foundation/LocaleFixture.hpp"

using namespace proupsells;

using foundation::Locale;
using foundation::LocaleServices;
using foundation::NumberFormatter;
using geometry::LayoutDirection;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class BuiltInServices : public tests::LocaleFixture {
protected:
    std::string percent(double fraction, int digits = 0) const {
        return services.percentText(fraction, digits, english).value_or("absent");
    }

    const LocaleServices& services = LocaleServices::current();
    const Locale english{"en_US"};
};

TEST_F(BuiltInServices, WritePercentages) {
    EXPECT_EQ(percent(0.45), "45%");
    EXPECT_EQ(percent(0), "0%");
    EXPECT_EQ(percent(1), "100%");
    EXPECT_EQ(percent(-0.05), "-5%");
    EXPECT_EQ(percent(12.34), "1,234%");
    EXPECT_EQ(percent(1e7), "1,000,000,000%");
    EXPECT_EQ(percent(0.07), "7%");
}

TEST_F(BuiltInServices, RoundPercentagesHalfToEven) {
    EXPECT_EQ(percent(0.125), "12%");
    EXPECT_EQ(percent(0.135), "14%");
    EXPECT_EQ(percent(0.145), "14%"); // as written, not the little less that the double is
    EXPECT_EQ(percent(0.14500001), "15%");
    EXPECT_EQ(percent(0.005), "0%");
    EXPECT_EQ(percent(0.0050001), "1%");
    EXPECT_EQ(percent(0.015), "2%");
    EXPECT_EQ(percent(0.995), "100%");
    EXPECT_EQ(percent(9.995), "1,000%");
    EXPECT_EQ(percent(0.0004), "0%");
    EXPECT_EQ(percent(-0.001), "-0%");
}

TEST_F(BuiltInServices, WriteAsManyFractionDigitsAsTheyMayAndMust) {
    EXPECT_EQ(percent(0.12345, 1), "12.3%");
    EXPECT_EQ(percent(0.12355, 2), "12.36%");
    EXPECT_EQ(percent(0.12345, 2), "12.34%");
    EXPECT_EQ(percent(0.5, 3), "50%");
    EXPECT_EQ(percent(0.50125, 5), "50.125%");
    EXPECT_EQ(percent(0.00001, 3), "0.001%");
    EXPECT_EQ(percent(0.00001, 2), "0%");
    EXPECT_EQ(percent(0.45, -3), "45%");
}

TEST_F(BuiltInServices, CannotWriteWhatIsNoNumber) {
    for (const double number : {HUGE_VAL, -HUGE_VAL, std::nan("")})
        EXPECT_EQ(services.percentText(number, 0, english), std::nullopt);
}

TEST_F(BuiltInServices, WriteTheLargestAndTheSmallestNumber) {
    EXPECT_EQ(percent(std::numeric_limits<double>::max()).size(), 311u + 103u + 1u);
    EXPECT_EQ(percent(std::numeric_limits<double>::denorm_min()), "0%");
    EXPECT_EQ(percent(std::numeric_limits<double>::denorm_min(), 400), "0." + std::string(321, '0') + "5%");
}

TEST_F(BuiltInServices, RaiseAsciiLetters) {
    EXPECT_EQ(services.upperCased("Pro \u00E9 100%", english), "PRO \u00E9 100%");
    EXPECT_EQ(services.upperCased("", english), "");
}

TEST_F(BuiltInServices, RaiseEachWordsFirstLetter) {
    EXPECT_EQ(services.titleCased("CREATION tools", english), "Creation Tools");
    EXPECT_EQ(services.titleCased("don't e-mail (pdfs)", english), "Don't E-Mail (Pdfs)");
    EXPECT_EQ(services.titleCased("caf\u00E9s 4x", english), "Caf\u00E9s 4x");
}

TEST_F(BuiltInServices, TakeEveryCodePointForACharacter) {
    EXPECT_EQ(services.graphemeCount("a\u20AC\U0001F600"), 3u);
    EXPECT_THAT(services.graphemeEnds("a\u20AC\U0001F600"), ElementsAre(1, 4, 8));
    EXPECT_THAT(services.graphemeEnds("\r\n\n\r"), ElementsAre(2, 3, 4));
    EXPECT_THAT(services.graphemeEnds("\xC3z\xFF"), ElementsAre(1, 2, 3));
    EXPECT_THAT(services.graphemeEnds(""), IsEmpty());
}

TEST_F(BuiltInServices, KnowWhoWritesFromRightToLeft) {
    for (const char* identifier : {"ar",     "ar_EG",  "he_IL",  "iw",     "fa",     "ur-PK",  "yi",     "ps",         "sd",
                                   "ug",     "dv",     "ckb",    "prs",    "syr",    "nqo",    "AR",     "pa_Arab_PK", "az-arab",
                                   "x_Hebr", "x_Syrc", "x_Thaa", "x_Nkoo", "x_Adlm", "x_Aran", "x_Rohg", "x_Mand",     "x_Samr"})
        EXPECT_EQ(services.layoutDirection(Locale(identifier)), LayoutDirection::rightToLeft) << identifier;
    for (const char* identifier : {"en_US", "de", "", "pa", "ar_Latn", "zh_Hant_TW", "de_1996", "tr_TR", "arab", "arx", "x_Arabi"})
        EXPECT_EQ(services.layoutDirection(Locale(identifier)), LayoutDirection::leftToRight) << identifier;
}

class BuiltInBidi : public BuiltInServices {
protected:
    std::string levels(const std::string& text, LayoutDirection fallback = LayoutDirection::leftToRight) const {
        return tests::levelsOf(text, services.bidiRuns(text, fallback));
    }
};

TEST_F(BuiltInBidi, ReadsAParagraphLikeItsFirstLetter) {
    for (const LayoutDirection fallback : {LayoutDirection::leftToRight, LayoutDirection::rightToLeft}) {
        EXPECT_EQ(levels("7 days אב.", fallback), "0:0000000110");
        EXPECT_EQ(levels("7 אב days.", fallback), "1:2111122221");
    }
}

TEST_F(BuiltInBidi, ReadsAParagraphWithoutLettersLikeTheScreen) {
    EXPECT_EQ(levels("$9.99!"), "0:000000");
    EXPECT_EQ(levels("$9.99!", LayoutDirection::rightToLeft), "1:222221");
}

// The first and the last of each block, and what stands beside it.
TEST_F(BuiltInBidi, TakesSignsForNoLetters) {
    const auto readsRightToLeft = [&](char32_t character) {
        std::string text;
        foundation::appendUtf8(text, character);
        return levels(text, LayoutDirection::rightToLeft).front() == '1';
    };
    for (const char32_t sign : {0xBF,   0xD7,   0xF7,   0x02B9, 0x036F, 0x2010, 0x206F, 0x2190, 0x2BFF, 0x2E00,  0x2E7F, 0x3000,
                                0x3004, 0x3008, 0x3020, 0xFE00, 0xFE6F, 0xFF01, 0xFF20, 0xFEFF, 0xFFFD, 0x1F000, 0x1FAFF})
        EXPECT_TRUE(readsRightToLeft(sign)) << std::hex << std::uint32_t(sign);
    for (const char32_t letter : {0xC0, 0xD6, 0xD8, 0xF6, 0xF8, 0x02B8, 0x0370, 0x1FFF, 0x2C00, 0x2DFF, 0x2E80, 0x2FFF, 0x3005,
                                  0x3007, 0x3021, 0xFF21, 0x1FB00})
        EXPECT_FALSE(readsRightToLeft(letter)) << std::hex << std::uint32_t(letter);
}

TEST_F(BuiltInBidi, StartsAnewWithEveryParagraph) {
    EXPECT_EQ(levels("ab\nאב\r\n12"), "0:0001:1110:000");
    EXPECT_EQ(levels("\n", LayoutDirection::rightToLeft), "1:1");
}

TEST_F(BuiltInBidi, KeepsAPriceTogether) {
    EXPECT_EQ(levels("רק $99.99 לשנה"), "1:11122222211111");
    EXPECT_EQ(levels("ב 1,234.50 ₪"), "1:112222222211");
    EXPECT_EQ(levels("ב45% ٤٥٪"), "1:12221222");
}

TEST_F(BuiltInBidi, GivesBlanksAndPunctuationTheDirectionAroundThem) {
    EXPECT_EQ(levels("ab: (אב, גד) - cd"), "0:00000111111000000");
    EXPECT_EQ(levels("אב: (ab, cd) - גד"), "1:11111222222111111");
}

TEST_F(BuiltInBidi, PutsNumbersInRightToLeftWordsOneLevelUp) {
    EXPECT_EQ(levels("a אב 12"), "0:0011122");
    EXPECT_EQ(levels("אב ab 12"), "1:11122222");
}

TEST_F(BuiltInBidi, TakesAnyBytes) {
    EXPECT_EQ(levels("a\xD7\x90\xD7"), "0:010");
    EXPECT_EQ(levels(""), "");
}

// Answers everything with what it was asked.
class EchoingServices : public foundation::BuiltInLocaleServices {
public:
    std::optional<std::string> percentText(double fraction, int maximumFractionDigits, const Locale& locale) const override {
        if (fraction < 0) return std::nullopt;
        return std::to_string(fraction) + "/" + std::to_string(maximumFractionDigits) + "/" + locale.identifier();
    }
};

using InstalledServices = tests::LocaleFixture;

TEST_F(InstalledServices, TakeThePlaceOfTheBuiltInOnes) {
    const auto services = std::make_shared<EchoingServices>();

    EXPECT_EQ(LocaleServices::setCurrent(services), nullptr);
    EXPECT_EQ(&LocaleServices::current(), services.get());

    EXPECT_EQ(LocaleServices::setCurrent(nullptr), services);
    EXPECT_EQ(LocaleServices::current().percentText(0.5, 0, Locale{}), "50%");
}

TEST_F(InstalledServices, AnswerTheNumberFormatterForTheCurrentLocale) {
    LocaleServices::setCurrent(std::make_shared<EchoingServices>());
    Locale::setCurrent(Locale("de_AT"));

    EXPECT_EQ(NumberFormatter{.maximumFractionDigits = 2}.string(0.5), "0.500000/2/de_AT");
    EXPECT_EQ(NumberFormatter{}.string(-1), std::nullopt);
}

TEST_F(InstalledServices, AreTheBuiltInOnesByDefault) {
    EXPECT_EQ((NumberFormatter{.numberStyle = NumberFormatter::Style::percent, .maximumFractionDigits = 0}.string(0.45)), "45%");
}

} // namespace
