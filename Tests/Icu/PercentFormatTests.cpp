// Percents beside those of ICU's own library of formats, which only the tests have.
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <unicode/decimfmt.h>
#include <unicode/numberformatter.h>
#include <unicode/numsys.h>
#include <vector>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Icu/PercentFormat.hpp"
#include "Platform/Foundation/Locale.hpp"

using namespace proupsells;

using icubackend::PercentFormat;

namespace {

std::string icuText(const icu::Locale& locale, double fraction, int maximumFractionDigits) {
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    icu::number::NumberFormatter::withLocale(locale)
        .unit(icu::NoUnit::percent())
        .scale(icu::number::Scale::powerOfTen(2))
        .precision(icu::number::Precision::maxFraction(maximumFractionDigits))
        .roundingMode(UNUM_ROUND_HALFEVEN)
        .formatDouble(fraction, status)
        .toString(status)
        .toUTF8String(text);
    return U_SUCCESS(status) ? text : u_errorName(status);
}

std::vector<icu::Locale> allLocales() {
    std::int32_t count = 0;
    const icu::Locale* first = icu::Locale::getAvailableLocales(count);
    return {first, first + count};
}

std::vector<std::string> allNumberingSystems() {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> names(icu::NumberingSystem::getAvailableNames(status));
    std::vector<std::string> result{"native", "traditional", "finance", "default"};
    while (const char* name = names->next(nullptr, status)) result.push_back(name);
    return result;
}

constexpr double fractions[] = {0.45, -0.05, 0, -0.0, 12.345, 123.456, -98'765.4321};

std::vector<std::string> differencesIn(const icu::Locale& locale) {
    std::vector<std::string> differences;
    const PercentFormat format(locale);
    for (const double fraction : fractions) {
        const std::string expected = icuText(locale, fraction, 2), text = format.text(fraction, 2);
        if (text != expected) differences.push_back(std::string(locale.getName()) + ": " + text + ", not " + expected);
    }
    return differences;
}

} // namespace

TEST(PercentFormat, WritesEveryLocalesPercents) {
    const std::vector<icu::Locale> locales = allLocales();

    EXPECT_GT(locales.size(), 700u);
    for (const icu::Locale& locale : locales) EXPECT_THAT(differencesIn(locale), testing::IsEmpty());
}

TEST(PercentFormat, WritesEveryNumberingSystem) {
    for (const char* language : {"en", "ar", "fa", "de", "hi", "es"})
        for (const std::string& system : allNumberingSystems()) {
            // With Arabic digits, which nobody gives them, these keep their own pattern; ICU would take the one of no language.
            const bool keepsItsPattern = system == "arab" && std::string_view("de hi es").find(language) != std::string_view::npos;
            if (keepsItsPattern) continue;
            EXPECT_THAT(differencesIn(icu::Locale((std::string(language) + "@numbers=" + system).c_str())), testing::IsEmpty());
        }
}

TEST(PercentFormat, KeepsThePatternOfALanguageWithArabicDigits) {
    EXPECT_EQ(PercentFormat(icu::Locale("de@numbers=arab")).text(0.45, 0), "\u0664\u0665\u00A0\u066A\u061C");
}

TEST(PercentFormat, FindsThePlaceOfANameThatIcuKnowsOtherwise) {
    for (const char* name : {"zh_TW", "zh_HK", "sr_RS@foo=bar", "sr_Latn_XK", "en_AU_POSIX", "de-u-nu-beng", "pt_PT", "no", "nb_SJ",
                             "in_ID", "iw", "es_419", "en_150", "en_Latn_US", "uz_AF", "de_XX", "az_Arab", "de_DE@currency=USD"})
        EXPECT_THAT(differencesIn(icu::Locale(name)), testing::IsEmpty());
}

TEST(PercentFormat, LeavesTheSignsInQuotesAsTheyAre) {
    const auto written = [](const char16_t* pattern) {
        return PercentFormat(icubackend::PercentElements{.pattern = pattern, .percentSign = u"<percent>", .minusSign = u"<minus>"})
            .text(0.05, 0);
    };

    EXPECT_EQ(written(u"-'%-'#,##0%"), "<minus>%-5<percent>");
    EXPECT_EQ(written(u"#,##0'%'%'-'-"), "5%<percent>-<minus>");
    EXPECT_EQ(written(u"%''#,##0''%"), "<percent>'5'<percent>");
}

// What no language's pattern has today.
struct Pattern {
    const char* name;
    const char16_t* pattern;
};

class PercentPattern : public testing::TestWithParam<Pattern> {};

TEST_P(PercentPattern, IsReadAsIcuReadsIt) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::DecimalFormatSymbols symbols(icu::Locale("en_US"), status);
    icu::DecimalFormat icuFormat(GetParam().pattern, symbols, status);
    icuFormat.setMaximumFractionDigits(2);
    icuFormat.setMinimumFractionDigits(0);
    ASSERT_TRUE(U_SUCCESS(status)) << u_errorName(status);
    const PercentFormat format(icubackend::PercentElements{.pattern = GetParam().pattern});

    for (const double fraction : {0.45, -0.05, 9.99, -9.99, 12.345, 123.456, -98'765.4321, 1'234'567.0}) {
        icu::UnicodeString expected;
        std::string text;
        EXPECT_EQ(format.text(fraction, 2), icuFormat.format(fraction, expected).toUTF8String(text)) << fraction;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, PercentPattern,
    testing::Values(Pattern{"WithoutGroups", u"0%"}, Pattern{"GroupOfOne", u"#,0%"}, Pattern{"GroupsOfTwo", u"#,#0%"},
                    Pattern{"GroupsOfTwoSizes", u"#,##,##0%"}, Pattern{"GroupsOfOneBeforeThree", u"#,#,##0%"},
                    Pattern{"GroupsOfFour", u"#,###0%"}, Pattern{"NegativeInParentheses", u"#,##0%;(#,##0%)"},
                    Pattern{"NegativeWithItsSignBehind", u"#,##0%;#,##0%-"}, Pattern{"SignInFront", u"-#,##0%;#,##0%"},
                    Pattern{"QuotedWord", u"'about '#,##0%"}, Pattern{"QuotedCharactersOfNumbers", u"'#0,.'#,##0%' #0'"},
                    Pattern{"QuotedSigns", u"'-%'#,##0%'%-'"}, Pattern{"QuotedSemicolon", u"#,##0%';'"},
                    Pattern{"QuotedSemicolonAndNegative", u"#,##0%';';(#,##0%)"}, Pattern{"Apostrophe", u"#,##0 o''clock%"},
                    Pattern{"ApostropheInsideQuotes", u"'it''s '#,##0%"}, Pattern{"ApostropheAtBothEnds", u"''#,##0%''"},
                    Pattern{"SignBetween", u"% #,##0 x"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(PercentFormat, WritesItsElementsForTheCharactersOfThePattern) {
    const PercentFormat format(icubackend::PercentElements{.pattern = u"% #,##0",
                                                           .digits = u"abcdefghij",
                                                           .decimal = u"<point>",
                                                           .group = u"<group>",
                                                           .percentSign = u"<percent>",
                                                           .minusSign = u"<minus>",
                                                           .fewestDigitsBeforeLastGroup = 2});

    EXPECT_EQ(format.text(0.05, 2), "<percent> f");
    EXPECT_EQ(format.text(-0.12345, 2), "<minus><percent> bc<point>de");
    EXPECT_EQ(format.text(12.34, 2), "<percent> bcde");
    EXPECT_EQ(format.text(123.45, 2), "<percent> bc<group>def");
    EXPECT_EQ(format.text(1234567.89, 2), "<percent> bcd<group>efg<group>hij");
}

TEST(PercentFormat, TakesACommaBeforeAllDigitsForTheOneThatParts) {
    EXPECT_EQ(PercentFormat(icubackend::PercentElements{.pattern = u",##0%"}).text(12345.67, 0), "1,234,567%");
    EXPECT_EQ(PercentFormat(icubackend::PercentElements{.pattern = u"#,##0%"}).text(12345.67, 0), "1,234,567%");
}

RC_GTEST_PROP(PercentFormat, RoundsEveryNumberLikeIcu, ()) {
    const icu::Locale locale("en_US");
    static const PercentFormat format(locale);
    static const icubackend::IcuLocaleServices services;
    const double number = *rc::gen::arbitrary<double>();
    const double halves = *rc::gen::inRange(-200'000, 200'000) / 2000.0;
    const int digits = *rc::gen::inRange(0, 20);

    for (const double fraction : {number, halves, halves * 1e9, halves / 1e9, std::nextafter(halves, 1e9)})
        if (std::isfinite(fraction)) {
            RC_ASSERT(format.text(fraction, digits) == icuText(locale, fraction, digits));
            RC_ASSERT(services.percentText(fraction, digits, foundation::Locale("en_US")) == icuText(locale, fraction, digits));
        }
}
