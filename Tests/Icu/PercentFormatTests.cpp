// Percents beside those of ICU's own library of formats, which only the tests have.
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
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
