#include "Backends/Headless/CharacterClass.hpp"

#include <string_view>

namespace proupsells::headless {

namespace {

bool isBetween(char32_t character, char32_t first, char32_t last) { return character >= first && character <= last; }

bool isOneOf(char32_t character, std::u32string_view set) { return set.find(character) != std::u32string_view::npos; }

bool isRightToLeftBlock(char32_t c) {
    return isBetween(c, 0x0590, 0x08FF) || isBetween(c, 0xFB1D, 0xFDFF) || isBetween(c, 0xFE70, 0xFEFE) ||
           isBetween(c, 0x10800, 0x10FFF) || isBetween(c, 0x1E800, 0x1EFFF);
}

// Signs, punctuation and pictures among the scripts written from left to right.
bool isSymbolBlock(char32_t c) {
    return c == 0xD7 || c == 0xF7 || isBetween(c, 0x02B9, 0x02DF) || isBetween(c, 0x2000, 0x206F) || isBetween(c, 0x20A0, 0x20CF) ||
           isBetween(c, 0x2190, 0x2BFF) || isBetween(c, 0x2E00, 0x2E7F) || isBetween(c, 0x3000, 0x3004) ||
           isBetween(c, 0x3008, 0x3020) || isBetween(c, 0xFE00, 0xFE6F) || isBetween(c, 0xFF01, 0xFF20) || c == 0xFEFF ||
           isBetween(c, 0x1F000, 0x1FAFF);
}

} // namespace

bool isParagraphEnd(char32_t c) { return isBetween(c, 0x0A, 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029; }

bool isBreakingSpace(char32_t c) {
    return c == ' ' || c == '\t' || c == 0x1680 || (isBetween(c, 0x2000, 0x200A) && c != 0x2007) || c == 0x205F || c == 0x3000;
}

bool isHyphen(char32_t c) { return isOneOf(c, U"-\u00AD\u058A\u2010\u2012\u2013\u2014"); }

bool isDigit(char32_t c) { return isBetween(c, '0', '9') || isBetween(c, 0xFF10, 0xFF19); }

bool isIdeograph(char32_t c) {
    return isBetween(c, 0x2E80, 0x2FDF) || c == 0x3006 || c == 0x3007 || isBetween(c, 0x3041, 0x30FF) ||
           isBetween(c, 0x3100, 0x4DBF) || isBetween(c, 0x4E00, 0x9FFF) || isBetween(c, 0xAC00, 0xD7A3) ||
           isBetween(c, 0xF900, 0xFAFF) || isBetween(c, 0x20000, 0x3FFFF);
}

bool isClosing(char32_t c) {
    return isOneOf(c, U"!%),.:;?]}\u00BB\u2019\u201D\u2026\u3001\u3002\u3005\u3009\u300B\u300D\u300F\u3011\u3015"
                      U"\u30FB\u30FC\uFF01\uFF05\uFF09\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F\uFF3D\uFF5D\uFF61\uFF63");
}

bool isOpening(char32_t c) {
    return isOneOf(
        c, U"$([{\u00A1\u00AB\u00BF\u2018\u201C\u20AC\u00A5\u00A3\u3008\u300A\u300C\u300E\u3010\u3014\uFF08\uFF3B\uFF5B\uFF62");
}

bool isHebrewLetter(char32_t c) { return isRightToLeftBlock(c) && !isArabicLetter(c) && !isArabicDigit(c); }

bool isArabicLetter(char32_t c) {
    const bool isArabicBlock = isBetween(c, 0x0600, 0x07BF) || isBetween(c, 0x0860, 0x08FF) || isBetween(c, 0xFB50, 0xFDFF) ||
                               isBetween(c, 0xFE70, 0xFEFE) || isBetween(c, 0x1EC70, 0x1EEFF);
    return isArabicBlock && !isArabicDigit(c) && !isOneOf(c, U"\u060C\u066A");
}

bool isArabicDigit(char32_t c) { return isBetween(c, 0x0660, 0x0669) || isBetween(c, 0x06F0, 0x06F9); }

bool isLeftToRightLetter(char32_t c) {
    if (isBetween(c, 'A', 'Z') || isBetween(c, 'a', 'z') || c == 0xAA || c == 0xB5 || c == 0xBA) return true;
    return c >= 0xC0 && !isRightToLeftBlock(c) && !isSymbolBlock(c) && !isDigit(c);
}

bool isNumberTerminator(char32_t c) {
    return isOneOf(c, U"#$%\u00A2\u00A3\u00A4\u00A5\u00B0\u00B1\u066A\u2030\u2031") || isBetween(c, 0x20A0, 0x20CF);
}

} // namespace proupsells::headless
