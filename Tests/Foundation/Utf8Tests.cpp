#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "Platform/Foundation/Utf8.hpp"
#include "Tests/Foundation/AnyText.hpp"

using namespace proupsells;

using foundation::appendUtf8;
using foundation::decodeUtf8;
using foundation::firstInvalidUtf8;
using foundation::repairedUtf8;

namespace {

std::string encoded(char32_t character) {
    std::string text;
    appendUtf8(text, character);
    return text;
}

TEST(Utf8, WritesCharactersOfEveryLength) {
    EXPECT_EQ(encoded(U'A'), "A");
    EXPECT_EQ(encoded(U'\u00E9'), "\xC3\xA9");
    EXPECT_EQ(encoded(U'\u20AC'), "\xE2\x82\xAC");
    EXPECT_EQ(encoded(U'\U0001F600'), "\xF0\x9F\x98\x80");
    EXPECT_EQ(encoded(0), std::string(1, '\0'));
}

TEST(Utf8, WritesAReplacementForWhatIsNoCharacter) {
    for (const char32_t character : {0xD800u, 0xDFFFu, 0x110000u, 0xFFFFFFFFu}) EXPECT_EQ(encoded(character), "\xEF\xBF\xBD");
}

TEST(Utf8, ReadsEveryCharacterThatItWrites) {
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character == 0xD800) character = 0xE000;
        const std::string text = encoded(character);
        const auto decoded = decodeUtf8(text, 0);
        ASSERT_EQ(decoded.value, character);
        ASSERT_EQ(decoded.length, text.size());
        ASSERT_TRUE(decoded.isValid);
    }
}

TEST(Utf8, FindsTheFirstIllFormedPart) {
    EXPECT_EQ(firstInvalidUtf8("plain \xC3\xA9"), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8(""), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8("ab\xFFz"), 2u);
    EXPECT_EQ(firstInvalidUtf8("ab\xC3"), 2u);
    EXPECT_EQ(firstInvalidUtf8("\x80"), 0u);
}

struct Repair {
    const char* name;
    std::string broken;
    std::string repaired; // with "?" for each replacement character
};

class Utf8Repair : public testing::TestWithParam<Repair> {};

TEST_P(Utf8Repair, PutsOneReplacementForEachMaximalPart) {
    std::string expected;
    for (const char c : GetParam().repaired) expected += c == '?' ? "\xEF\xBF\xBD" : std::string(1, c);

    EXPECT_EQ(repairedUtf8(GetParam().broken), expected);
}

INSTANTIATE_TEST_SUITE_P(Table, Utf8Repair,
                         testing::Values(Repair{"LoneContinuation", "a\x80z", "a?z"}, Repair{"TwoContinuations", "\x80\xBF", "??"},
                                         Repair{"CutShort", "\xE2\x82", "?"}, Repair{"CutShortByALetter", "\xE2\x82z", "?z"},
                                         Repair{"CutShortByAnother", "\xF0\x9F\x98\xC3\xA9", "?\xC3\xA9"},
                                         Repair{"OverlongSlash", "\xC0\xAF", "??"}, Repair{"OverlongThree", "\xE0\x80\xAF", "???"},
                                         Repair{"OverlongFour", "\xF0\x80\x80\xAF", "????"},
                                         Repair{"Surrogate", "\xED\xA0\x80", "???"},
                                         Repair{"BeyondUnicode", "\xF4\x90\x80\x80", "????"},
                                         Repair{"NeverALead", "\xF5\xFE\xFF", "???"}),
                         [](const auto& info) { return std::string(info.param.name); });

RC_GTEST_PROP(Utf8, MakesValidTextOfAnyBytes, ()) {
    const std::string bytes = *tests::anyBytes();
    const std::string repaired = repairedUtf8(bytes);

    RC_ASSERT(foundation::isValidUtf8(repaired));
    RC_ASSERT(repairedUtf8(repaired) == repaired);
    if (foundation::isValidUtf8(bytes)) RC_ASSERT(repaired == bytes);
}

} // namespace
