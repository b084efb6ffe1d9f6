#include <cstdint>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "Backends/Headless/CharacterClass.hpp"

namespace proupsells::headless {
namespace {

// Every stretch of characters of the class, in hexadecimal: "A-D 85".
std::string stretchesOf(bool (*isOfClass)(char32_t)) {
    constexpr char32_t end = 0x110000;
    std::ostringstream text;
    text << std::hex << std::uppercase;
    for (char32_t first = 0; first < end; ++first) {
        if (!isOfClass(first)) continue;
        char32_t behind = first + 1;
        while (behind < end && isOfClass(behind)) ++behind;
        text << (text.tellp() > 0 ? " " : "") << std::uint32_t(first);
        if (behind - first > 1) text << "-" << std::uint32_t(behind - 1);
        first = behind;
    }
    return text.str();
}

TEST(CharacterClasses, EndAParagraphAtControlsForLinesAndPagesAndAtUnicodesSeparators) {
    EXPECT_EQ(stretchesOf(isParagraphEnd), "A-D 85 2028-2029");
}

TEST(CharacterClasses, BreakAtEveryBlankButThoseThatHoldWordsTogether) {
    EXPECT_EQ(stretchesOf(isBreakingSpace), "9 20 1680 2000-2006 2008-200A 205F 3000");
}

TEST(CharacterClasses, KnowHyphensAndDashesButNotTheHyphenThatHoldsWordsTogether) {
    EXPECT_EQ(stretchesOf(isHyphen), "2D AD 58A 2010 2012-2014");
}

TEST(CharacterClasses, KnowNarrowAndWideDigits) { EXPECT_EQ(stretchesOf(isDigit), "30-39 FF10-FF19"); }

TEST(CharacterClasses, TakeHanKanaBopomofoAndHangulForIdeographs) {
    EXPECT_EQ(stretchesOf(isIdeograph), "2E80-2FDF 3006-3007 3041-4DBF 4E00-9FFF AC00-D7A3 F900-FAFF 20000-3FFFF");
}

TEST(CharacterClasses, TakeAlphabetsForLetters) { EXPECT_EQ(stretchesOf(isLetter), "41-5A 61-7A C0-1FFF"); }

TEST(CharacterClasses, KeepWhatClosesAtTheEndOfALine) {
    EXPECT_EQ(stretchesOf(isClosing),
              "21 25 29 2C 2E 3A-3B 3F 5D 7D BB 2019 201D 2026 3001-3002 3005 3009 300B 300D 300F 3011 3015 30FB-30FC FF01 FF05 "
              "FF09 FF0C FF0E FF1A-FF1B FF1F FF3D FF5D FF61 FF63");
}

TEST(CharacterClasses, KeepWhatOpensAtTheBeginningOfALine) {
    EXPECT_EQ(stretchesOf(isOpening),
              "24 28 5B 7B A1 A3 A5 AB BF 2018 201C 20AC 3008 300A 300C 300E 3010 3014 FF08 FF3B FF5B FF62");
}

} // namespace
} // namespace proupsells::headless
