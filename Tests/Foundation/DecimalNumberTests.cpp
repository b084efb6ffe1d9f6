#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>

#include "Platform/Foundation/Format.hpp"
#include "Tests/Foundation/AnyText.hpp"

using namespace proupsells;

using foundation::decimalNumber;

namespace {

struct Reading {
    const char* text;
    double number;
};

TEST(DecimalNumber, ReadsPlainNumbers) {
    for (const Reading& reading : {Reading{"0", 0},
                                   {"9.99", 9.99},
                                   {"99.99", 99.99},
                                   {"240", 240},
                                   {"-8.5", -8.5},
                                   {"+8.5", 8.5},
                                   {".5", 0.5},
                                   {"5.", 5},
                                   {"-.5", -0.5},
                                   {"007", 7},
                                   {"1e2", 100},
                                   {"1E+2", 100},
                                   {"25e-1", 2.5},
                                   {"+.5e1", 5},
                                   {"1e308", 1e308},
                                   {"5e-324", 5e-324},
                                   {"0e999", 0},
                                   {"123456789012345678901234567890", 123456789012345678901234567890.0}})
        EXPECT_EQ(decimalNumber(reading.text), reading.number) << reading.text;
}

TEST(DecimalNumber, KeepsTheSignOfZero) { EXPECT_TRUE(std::signbit(decimalNumber("-0").value_or(1))); }

TEST(DecimalNumber, IsAbsentForEverythingElse) {
    for (const char* text :
         {"",    " ",     "$99.99", "99.99 $", "99,99",  "1,000", "1 000", " 1",   "1 ",     "\t1",      "\n1",    "\v1",
          "\f1", "\r1",   "1\n",    "+",       "-",      ".",     "+-1",   "-+1",  "++1",    "--1",      "e1",     "1e",
          "1e+", "1.2.3", "1e1.5",  "0x10",    "-0x1p3", "0X",    "inf",   "-inf", "+inf",   "infinity", "INF",    "nan",
          "NaN", "-nan",  "nan(1)", "abc",     "1a",     "1_000", "1d3",   "1f",   "\u0661", "\uFF11",   "1\u00A0"})
        EXPECT_EQ(decimalNumber(text), std::nullopt) << '"' << text << '"';
}

TEST(DecimalNumber, IsAbsentWhenThereIsANul) {
    EXPECT_EQ(decimalNumber(std::string_view("\0001", 2)), std::nullopt);
    EXPECT_EQ(decimalNumber(std::string_view("1\0", 2)), std::nullopt);
}

TEST(DecimalNumber, IsAbsentWhenNoDoubleCanHoldIt) {
    for (const char* text : {"1e999", "-1e999", "1e309", "1e-999", "-1e-400"}) EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
    EXPECT_EQ(decimalNumber(std::string(400, '9')), std::nullopt);
}

TEST(DecimalNumber, DoesNotFollowTheProcesssLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    // Any locale with a decimal comma shows it; without one installed, the C locale passes as well.
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8"})
        if (std::setlocale(LC_ALL, name)) break;

    EXPECT_EQ(decimalNumber("9.99"), 9.99);
    EXPECT_EQ(decimalNumber("9,99"), std::nullopt);

    std::setlocale(LC_ALL, before.c_str());
}

RC_GTEST_PROP(DecimalNumber, ReadsBackEveryNumberThatIsPrintedExactly, ()) {
    const double number = *rc::gen::arbitrary<double>();
    RC_PRE(std::isfinite(number));
    char text[400];
    std::snprintf(text, sizeof text, "%.17g", number);

    RC_ASSERT(decimalNumber(text) == number);
}

RC_GTEST_PROP(DecimalNumber, IsFiniteOrAbsentForAnyText, ()) {
    const auto number = decimalNumber(*tests::anyText("0123456789+-.eExinfa "));

    RC_ASSERT(std::isfinite(number.value_or(0)));
}

} // namespace
