#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>

#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Platform/Foundation/BuiltInLocaleServices.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/PlainCharacters.hpp"
#include "Platform/Foundation/Utf8.hpp"
#include "Tests/Foundation/AnyText.hpp"

using namespace proupsells;

using foundation::BuiltInLocaleServices;
using foundation::Locale;
using geometry::LayoutDirection;
using icubackend::IcuLocaleServices;

namespace {

const Locale english("en_US");

std::string anyLocale() { return *rc::gen::element<std::string>("en_US", "tr_TR", "de", "el", "lt", "nl", "ar", "th", "az", ""); }

RC_GTEST_PROP(IcuProperty, TakesAnyBytesForText, ()) {
    static const IcuLocaleServices services;
    const std::string bytes = *tests::anyBytes();
    const Locale locale(anyLocale());

    RC_ASSERT(foundation::isValidUtf8(services.upperCased(bytes, locale)));
    RC_ASSERT(foundation::isValidUtf8(services.titleCased(bytes, locale)));
}

RC_GTEST_PROP(IcuProperty, CutsAnyBytesIntoCharactersThatMakeThemUp, ()) {
    static const IcuLocaleServices services;
    const std::string bytes = *tests::anyBytes();

    const auto ends = services.graphemeEnds(bytes);

    RC_ASSERT(ends.size() == services.graphemeCount(bytes));
    RC_ASSERT(std::is_sorted(ends.begin(), ends.end()));
    RC_ASSERT(std::adjacent_find(ends.begin(), ends.end()) == ends.end());
    RC_ASSERT(ends.empty() == bytes.empty());
    if (!ends.empty()) RC_ASSERT(ends.front() > 0 && ends.back() == bytes.size());
}

RC_GTEST_PROP(IcuProperty, NeverCutsInsideACodePoint, ()) {
    static const IcuLocaleServices services;
    const std::string text = *tests::anyText("e\r\n ");
    const auto codePointEnds = BuiltInLocaleServices{}.graphemeEnds(text);

    for (const std::size_t end : services.graphemeEnds(text))
        RC_ASSERT(std::binary_search(codePointEnds.begin(), codePointEnds.end(), end));
}

TEST(IcuPlainCharacters, StandAloneForIcuAsWell) {
    static const IcuLocaleServices services;
    std::string text;
    for (char32_t c = 1; c < 0x3000; ++c)
        if (foundation::isPlainCharacter(c)) foundation::appendUtf8(text, c);
    text += text;
    const std::vector<std::size_t> plainEnds = services.graphemeEnds(text);

    // One character that needs ICU's rules sends the whole text there.
    std::vector<std::size_t> icuEnds = services.graphemeEnds(text + "\u4E00");

    icuEnds.pop_back();
    EXPECT_EQ(plainEnds, icuEnds);
    EXPECT_EQ(plainEnds.back(), text.size());
}

RC_GTEST_PROP(IcuProperty, WritesEnglishPercentagesLikeTheBuiltInServices, ()) {
    static const IcuLocaleServices services;
    const double fraction = *rc::gen::oneOf(rc::gen::map(rc::gen::inRange(-100'000, 100'000), [](int n) { return n / 1000.0; }),
                                            rc::gen::map(rc::gen::inRange(-100'000, 100'000), [](int n) { return n / 1e7; }),
                                            rc::gen::arbitrary<double>());
    RC_PRE(std::isfinite(fraction));
    const int digits = *rc::gen::inRange(0, 6);

    RC_ASSERT(services.percentText(fraction, digits, english) == BuiltInLocaleServices{}.percentText(fraction, digits, english));
}

RC_GTEST_PROP(IcuProperty, ChangesAsciiLikeTheBuiltInServices, ()) {
    static const IcuLocaleServices services;
    const std::string text = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("abcxyzABCXYZ    (/)!")));

    RC_ASSERT(services.upperCased(text, english) == BuiltInLocaleServices{}.upperCased(text, english));
    RC_ASSERT(services.titleCased(text, english) == BuiltInLocaleServices{}.titleCased(text, english));
    RC_ASSERT(services.graphemeEnds(text) == BuiltInLocaleServices{}.graphemeEnds(text));
}

LayoutDirection anyDirection() { return *rc::gen::element(LayoutDirection::leftToRight, LayoutDirection::rightToLeft); }

RC_GTEST_PROP(IcuProperty, CutsAnyBytesIntoRunsThatMakeThemUp, ()) {
    static const IcuLocaleServices services;
    const std::string bytes = *tests::anyBytes();

    const auto runs = services.bidiRuns(bytes, anyDirection());

    RC_ASSERT(runs.empty() == bytes.empty());
    std::size_t begin = 0;
    for (const foundation::BidiRun& run : runs) {
        RC_ASSERT(run.end > begin);
        RC_ASSERT(run.paragraphLevel <= 1);
        begin = run.end;
    }
    RC_ASSERT(begin == bytes.size());
}

RC_GTEST_PROP(IcuProperty, OrdersHebrewPricesLikeTheBuiltInServices, ()) {
    static const IcuLocaleServices services;
    const std::string text = *rc::gen::map(
        rc::gen::container<std::vector<std::string>>(
            rc::gen::element<std::string>("a", "b", "א", "ב", "1", "23", " ", ".", ",", "-", "+", "%", "$", "₪", "!", "\n")),
        [](const std::vector<std::string>& pieces) { return std::accumulate(pieces.begin(), pieces.end(), std::string()); });
    const LayoutDirection fallback = anyDirection();

    RC_ASSERT(services.bidiRuns(text, fallback) == BuiltInLocaleServices{}.bidiRuns(text, fallback));
}

} // namespace
