#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "Platform/Foundation/DecimalText.hpp"
#include "Tests/Foundation/AnyText.hpp"

using namespace proupsells;

using foundation::Decimal;
using foundation::readDecimal;
using foundation::shortestDecimal;

namespace {

std::string shortest(double magnitude) {
    const Decimal decimal = shortestDecimal(magnitude);
    return decimal.digits + "e" + std::to_string(decimal.pointPosition - int(decimal.digits.size()));
}

double anyMagnitude() {
    std::uint64_t bits = 0;
    for (const int byte : *rc::gen::container<std::vector<int>>(8, rc::gen::inRange(0, 256)))
        bits = bits << 8 | std::uint64_t(byte);
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return std::isfinite(number) ? std::abs(number) : 0;
}

TEST(ShortestDecimal, HasNoMoreDigitsThanItNeeds) {
    EXPECT_EQ(shortest(0), "0e0");
    EXPECT_EQ(shortest(1), "1e0");
    EXPECT_EQ(shortest(0.1), "1e-1");
    EXPECT_EQ(shortest(0.145), "145e-3");
    EXPECT_EQ(shortest(1234.5), "12345e-1");
    EXPECT_EQ(shortest(1e22), "1e22");
    EXPECT_EQ(shortest(0.1 + 0.2), "30000000000000004e-17");
    EXPECT_EQ(shortest(9007199254740992.0), "9007199254740992e0");
}

TEST(ShortestDecimal, ReachesTheEndsOfWhatADoubleHolds) {
    EXPECT_EQ(shortest(std::numeric_limits<double>::denorm_min()), "5e-324");
    EXPECT_EQ(shortest(std::numeric_limits<double>::min()), "22250738585072014e-324");
    EXPECT_EQ(shortest(std::numeric_limits<double>::max()), "17976931348623157e292");
}

TEST(ShortestDecimal, TakesTheNeighbourAboveAPowerOfTwoWhereTheNearestDoesNotReadBack) {
    EXPECT_EQ(shortest(std::ldexp(1.0, -44)), "5684341886080802e-29");
    EXPECT_EQ(shortest(std::ldexp(1.0, 89)), "6189700196426902e11");
}

TEST(ReadDecimal, SaysHowFarTheNumberReaches) {
    struct Case {
        const char* text;
        double number;
        std::size_t length;
    };
    for (const Case& expected : {Case{"12", 12, 2},
                                 {"12px", 12, 2},
                                 {"-1.5,", -1.5, 4},
                                 {"1.2.3", 1.2, 3},
                                 {"5.", 5, 2},
                                 {".5", .5, 2},
                                 {"1e", 1, 1},
                                 {"1em", 1, 1},
                                 {"1e+", 1, 1},
                                 {"1e-2e3", .01, 4},
                                 {"0x10", 0, 1},
                                 {"007", 7, 3},
                                 {"0.000e99999999999999999999", 0, 26}}) {
        const auto reading = readDecimal(expected.text);
        ASSERT_TRUE(reading) << expected.text;
        EXPECT_EQ(reading->number, expected.number) << expected.text;
        EXPECT_EQ(reading->length, expected.length) << expected.text;
    }
    for (const char* text :
         {"", "-", ".", "-.", "+1", " 1", "e1", "inf", "nan", "--1", "1e309", "1e-400", "1e99999999999999999999"})
        EXPECT_FALSE(readDecimal(text)) << text;
}

TEST(ReadDecimal, GivesTheNearestDoubleHoweverManyDigitsThereAre) {
    EXPECT_EQ(readDecimal("0." + std::string(400, '0') + "1e401")->number, 1);
    EXPECT_EQ(readDecimal("1" + std::string(400, '0') + "e-400")->number, 1);
    // Half way between two doubles goes to the even one; the least bit more goes up.
    EXPECT_EQ(readDecimal("9007199254740993")->number, 9007199254740992);
    EXPECT_EQ(readDecimal("9007199254740993." + std::string(1000, '0') + "1")->number, 9007199254740994);
}

TEST(DecimalText, DoesNotFollowTheProcesssLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    // Any locale with a decimal comma shows it; without one installed, the C locale passes as well.
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8"})
        if (std::setlocale(LC_ALL, name)) break;

    EXPECT_EQ(shortest(1.25), "125e-2");
    EXPECT_EQ(readDecimal("1.25")->number, 1.25);

    std::setlocale(LC_ALL, before.c_str());
}

RC_GTEST_PROP(DecimalText, ComesBackAsTheSameNumber, ()) {
    const double number = anyMagnitude();

    RC_ASSERT(readDecimal(shortest(number))->number == number);
}

#ifdef __cpp_lib_to_chars
std::string shortestOfStandardLibrary(double magnitude) {
    char text[40];
    std::string all(text, std::to_chars(std::begin(text), std::end(text), magnitude, std::chars_format::scientific).ptr);
    const std::size_t exponent = all.find('e');
    std::string digits = all.substr(0, exponent);
    std::erase(digits, '.');
    return digits + "e" + std::to_string(std::stoi(all.substr(exponent + 1)) + 1 - int(digits.size()));
}

RC_GTEST_PROP(DecimalText, HasTheDigitsOfTheStandardLibrary, ()) {
    const double number = anyMagnitude();

    RC_ASSERT(shortest(number) == shortestOfStandardLibrary(number));
}

TEST(ShortestDecimal, HasTheDigitsOfTheStandardLibraryForEveryPowerOfTwo) {
    for (int power = -1074; power <= 1023; ++power)
        EXPECT_EQ(shortest(std::ldexp(1.0, power)), shortestOfStandardLibrary(std::ldexp(1.0, power))) << power;
}

RC_GTEST_PROP(DecimalText, IsReadAsTheStandardLibraryReadsIt, ()) {
    const std::string text = *tests::anyText("0123456789.-eE");
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);

    const auto reading = readDecimal(text);

    // It reads words as well.
    RC_PRE(std::isfinite(number));
    RC_ASSERT(reading.has_value() == (error == std::errc{}));
    if (reading) RC_ASSERT(reading->number == number && reading->length == std::size_t(end - text.data()));
}
#endif

} // namespace
