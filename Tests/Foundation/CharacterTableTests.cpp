// At which characters each range of a table begins and ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Foundation/BuiltInLocaleServices.hpp"
#include "Platform/Foundation/PseudoLanguage.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {
namespace {

using geometry::LayoutDirection;

std::string utf8(std::initializer_list<char32_t> characters) {
    std::string text;
    for (const char32_t character : characters) appendUtf8(text, character);
    return text;
}

// The level of the last character.
int lastLevel(std::initializer_list<char32_t> characters, LayoutDirection fallback) {
    const auto runs = BuiltInLocaleServices().bidiRuns(utf8(characters), fallback);
    return runs.empty() ? -1 : runs.back().level;
}

// The level of the first character.
int firstLevel(std::initializer_list<char32_t> characters, LayoutDirection fallback) {
    const auto runs = BuiltInLocaleServices().bidiRuns(utf8(characters), fallback);
    return runs.empty() ? -1 : runs.front().level;
}

// How a character stands by itself, beside a digit and between two, where the screen reads from the right.
std::string kindOf(char32_t c) {
    constexpr auto right = LayoutDirection::rightToLeft, left = LayoutDirection::leftToRight;
    const int alone = lastLevel({c}, right);
    if (alone == 0) return "left";
    if (alone == 2) return "number";
    if (lastLevel({c}, left) == 1) return "right";
    if (lastLevel({'1', c}, right) == 2 && firstLevel({c, '1'}, right) == 2) return "terminator";
    // Between two digits, where a neutral one would part them.
    const auto runs = BuiltInLocaleServices().bidiRuns(utf8({'1', c, '1'}), right);
    return runs.size() == 1 ? "separator" : "neutral";
}

TEST(BuiltInBidiTable, KnowsLettersOfBothDirections) {
    for (const char32_t c : {0x61,   0x7A,   0x41,   0x5A,   0xAA,   0xB5,   0xBA,   0xC0,   0xD6,    0xD8,    0xF6,    0xF8,
                             0x02B8, 0x0370, 0x058F, 0x0900, 0x1FFF, 0x2070, 0x209F, 0x20D0, 0x218F,  0x2C00,  0x2DFF,  0x2E80,
                             0x2FFF, 0x3005, 0x3007, 0x3021, 0xFB1C, 0xFF00, 0xFF21, 0xFFFC, 0x107FF, 0x11000, 0x1E7FF, 0x1FB00})
        EXPECT_EQ(kindOf(c), "left") << std::hex << std::uint32_t(c);
    for (const char32_t c :
         {0x0590, 0x065F, 0x066B, 0x06EF, 0x06FA, 0x08FF, 0xFB1D, 0xFDFF, 0xFE70, 0xFEFE, 0x10800, 0x10FFF, 0x1E800, 0x1EFFF})
        EXPECT_EQ(kindOf(c), "right") << std::hex << std::uint32_t(c);
}

TEST(BuiltInBidiTable, KnowsDigits) {
    for (const char32_t c : {0x30, 0x39, 0x0660, 0x0669, 0x06F0, 0x06F9, 0xFF10, 0xFF19})
        EXPECT_EQ(kindOf(c), "number") << std::hex << std::uint32_t(c);
}

TEST(BuiltInBidiTable, KnowsWhatBelongsToNumbers) {
    for (const char32_t c : {0x2B, 0x2D, 0x2C, 0x2E, 0x2F, 0x3A, 0xA0, 0x060C})
        EXPECT_EQ(kindOf(c), "separator") << std::hex << std::uint32_t(c);
    for (const char32_t c : {0x23, 0x24, 0x25, 0xA2, 0xA3, 0xA4, 0xA5, 0xB0, 0xB1, 0x066A, 0x2030, 0x2031, 0x20A0, 0x20CF})
        EXPECT_EQ(kindOf(c), "terminator") << std::hex << std::uint32_t(c);
}

TEST(BuiltInBidiTable, KnowsSigns) {
    for (const char32_t c :
         {0x20,   0x22,   0x26,   0x2A,   0x3B,   0x40,   0x5B,   0x60,   0x7B,   0xA1,   0xA6,   0xA9,   0xAB,   0xB2,    0xB4,
          0xB6,   0xB9,   0xBB,   0xBF,   0xD7,   0xF7,   0x02B9, 0x036F, 0x2000, 0x202F, 0x2032, 0x206F, 0x2190, 0x2BFF,  0x2E00,
          0x2E7F, 0x3000, 0x3004, 0x3008, 0x3020, 0xFE00, 0xFE6F, 0xFEFF, 0xFF01, 0xFF0F, 0xFF1A, 0xFF20, 0xFFFD, 0x1F000, 0x1FAFF})
        EXPECT_EQ(kindOf(c), "neutral") << std::hex << std::uint32_t(c);
}

TEST(BuiltInBidiTable, KnowsWhereParagraphsEnd) {
    const auto startsAnew = [](char32_t c) { return lastLevel({0x05D0, c, 'a'}, LayoutDirection::leftToRight) == 0; };
    for (const char32_t c : {0x0A, 0x0D, 0x85, 0x2029}) EXPECT_TRUE(startsAnew(c)) << std::hex << std::uint32_t(c);
    for (const char32_t c : {0x09, 0x0B, 0x0C, 0x0E, 0x84, 0x86, 0x2028, 0x202A})
        EXPECT_FALSE(startsAnew(c)) << std::hex << std::uint32_t(c);
}

TEST(BuiltInBidiTable, SeparatesNumbersWithOneSignOnly) {
    const auto runCount = [](std::initializer_list<char32_t> characters) {
        return BuiltInLocaleServices().bidiRuns(utf8(characters), LayoutDirection::rightToLeft).size();
    };
    EXPECT_EQ(runCount({'1', '.', '2'}), 1u);
    EXPECT_EQ(runCount({'1', '.', '.', '2'}), 3u);
    EXPECT_EQ(runCount({'1', '%', '%', '2'}), 1u);
    EXPECT_EQ(runCount({'1', ' ', '2'}), 3u);
    EXPECT_EQ(runCount({'.', '2'}), 2u);
    EXPECT_EQ(runCount({'2', '.'}), 2u);
}

// --- Made-up languages ---

TEST(AccentedAlphabet, HasALetterForEach) {
    const auto accented = [](std::string_view text) { return pseudoTranslation(text, PseudoLanguage::accented); };
    EXPECT_EQ(accented("BCDFGHJKLMNPQRSTVWXZ"), "[BÇĐFĞĤĴĶĻMÑPQŔŠŢVŴXŽ~~~~~~~~]");
    EXPECT_EQ(accented("bcdfghjklmnpqrstvwxz"), "[bçđfğĥĵķļmñpqŕšţvŵxž~~~~~~~~]");
    EXPECT_EQ(accented("AEIOUY"), "[ÅåÉéÎîÖÜÝ]");
    EXPECT_EQ(accented("aeiouy"), "[ååééîîöüý]");
    EXPECT_EQ(accented("@[`{09"), "[@[`{09~~~]");
}

TEST(AccentedAlphabet, GrowsByTwoFifthsRoundedUp) {
    const auto accented = [](std::string_view text) { return pseudoTranslation(text, PseudoLanguage::accented); };
    EXPECT_EQ(accented("b"), "[b~]");
    EXPECT_EQ(accented("bb"), "[bb~]");
    EXPECT_EQ(accented("bbb"), "[bbb~~]");
    EXPECT_EQ(accented("bbbbb"), "[bbbbb~~]");
    EXPECT_EQ(accented("bbbbbb"), "[bbbbbb~~~]");
    EXPECT_EQ(accented("a"), "[åå]");
    EXPECT_EQ(accented("abbbbbbbab"), "[åååbbbbbbbåååb]");
    EXPECT_EQ(accented("a%@"), "[åå%@]");
}

TEST(MirroredWords, KeepTheirApostrophesAndDigits) {
    const auto mirrored = [](std::string_view text) { return pseudoTranslation(text, PseudoLanguage::mirrored); };
    const std::string begin = "\u200F\u202E", end = "\u202C\u200F";
    EXPECT_EQ(mirrored("it's 5"), begin + "it's" + end + " 5");
    EXPECT_EQ(mirrored("a5"), begin + "a5" + end);
    EXPECT_EQ(mirrored("5a"), "5" + begin + "a" + end);
    EXPECT_EQ(mirrored("'a'"), "'" + begin + "a'" + end);
    EXPECT_EQ(mirrored("a-é"), begin + "a" + end + "-" + begin + "é" + end);
    EXPECT_EQ(mirrored("a%@b"), begin + "a" + end + "%@" + begin + "b" + end);
}

} // namespace
} // namespace proupsells::foundation
