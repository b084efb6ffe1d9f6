#include "Backends/Headless/CharacterClass.hpp"

#include <string_view>

namespace proupsells::headless {

namespace {

bool isBetween(char32_t character, char32_t first, char32_t last) { return character >= first && character <= last; }

bool isOneOf(char32_t character, std::u32string_view set) { return set.find(character) != std::u32string_view::npos; }

} // namespace

bool isParagraphEnd(char32_t c) { return isBetween(c, 0x0A, 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029; }

bool isBreakingSpace(char32_t c) {
    return c == ' ' || c == '\t' || c == 0x1680 || (isBetween(c, 0x2000, 0x200A) && c != 0x2007) || c == 0x205F || c == 0x3000;
}

bool isHyphen(char32_t c) { return isOneOf(c, U"-\u00AD\u058A\u2010\u2012\u2013\u2014"); }

bool isDigit(char32_t c) { return isBetween(c, '0', '9') || isBetween(c, 0xFF10, 0xFF19); }

bool isIdeograph(char32_t c) {
    return isBetween(c, 0x2E80, 0x2FDF) || c == 0x3006 || c == 0x3007 || isBetween(c, 0x3041, 0x4DBF) ||
           isBetween(c, 0x4E00, 0x9FFF) || isBetween(c, 0xAC00, 0xD7A3) || isBetween(c, 0xF900, 0xFAFF) ||
           isBetween(c, 0x20000, 0x3FFFF);
}

bool isClosing(char32_t c) {
    return isOneOf(c, U"!%),.:;?]}\u00BB\u2019\u201D\u2026\u3001\u3002\u3005\u3009\u300B\u300D\u300F\u3011\u3015"
                      U"\u30FB\u30FC\uFF01\uFF05\uFF09\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F\uFF3D\uFF5D\uFF61\uFF63");
}

bool isOpening(char32_t c) {
    return isOneOf(
        c, U"$([{\u00A1\u00AB\u00BF\u2018\u201C\u20AC\u00A5\u00A3\u3008\u300A\u300C\u300E\u3010\u3014\uFF08\uFF3B\uFF5B\uFF62");
}

bool isLetter(char32_t c) { return isBetween(c, 'A', 'Z') || isBetween(c, 'a', 'z') || isBetween(c, 0xC0, 0x1FFF); }

} // namespace proupsells::headless
