#include "Backends/Raster/PlainLineBreaks.hpp"

#include <algorithm>
#include <initializer_list>

#include "Platform/Foundation/PlainCharacters.hpp"

namespace proupsells::rasterbackend {

namespace {

bool isOneOf(ULineBreak kind, std::initializer_list<ULineBreak> kinds) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

bool isLetter(ULineBreak kind) { return kind == U_LB_ALPHABETIC; }
bool isUnit(ULineBreak kind) { return kind == U_LB_PREFIX_NUMERIC || kind == U_LB_POSTFIX_NUMERIC; }
bool isHyphen(ULineBreak kind) { return kind == U_LB_HYPHEN || kind == U_LB_BREAK_AFTER; }
bool isClosing(ULineBreak kind) { return kind == U_LB_CLOSE_PUNCTUATION || kind == U_LB_CLOSE_PARENTHESIS; }
bool isInsideNumbers(ULineBreak kind) { return kind == U_LB_INFIX_NUMERIC || kind == U_LB_BREAK_SYMBOLS; }

// Unknown where the rules below know nothing of it. A true hyphen has rules of its own in ICU.
ULineBreak kindOfCharacter(char16_t unit) {
    constexpr char16_t hyphen = 0x2010;
    if (!foundation::isPlainCharacter(unit) || unit == hyphen) return U_LB_UNKNOWN;
    const auto kind = ULineBreak(u_getIntPropertyValue(unit, UCHAR_LINE_BREAK));
    if (kind == U_LB_AMBIGUOUS) return U_LB_ALPHABETIC;
    const bool isKnown = isLetter(kind) || isUnit(kind) || isHyphen(kind) || isClosing(kind) || isInsideNumbers(kind) ||
                         isOneOf(kind, {U_LB_SPACE, U_LB_NUMERIC, U_LB_EXCLAMATION, U_LB_QUOTATION, U_LB_OPEN_PUNCTUATION,
                                        U_LB_GLUE, U_LB_INSEPARABLE, U_LB_BREAK_BOTH, U_LB_BREAK_BEFORE, U_LB_LINE_FEED});
    return isKnown ? kind : U_LB_UNKNOWN;
}

} // namespace

bool PlainLineBreaks::read(const std::u16string& units) {
    m_kinds.clear();
    for (const char16_t unit : units) {
        m_kinds.push_back(kindOfCharacter(unit));
        if (m_kinds.back() == U_LB_UNKNOWN) return false;
    }
    m_mayEnd.assign(units.size(), false);
    Before before;
    for (std::size_t unit = 0; unit < units.size(); ++unit) {
        if (kindOf(unit) == U_LB_SPACE) {
            before.isSpaced = true;
            continue;
        }
        const bool mayBreak = breaksBefore(unit, before);
        if (unit > 0 && mayBreak) m_mayEnd[unit - 1] = true;
        before = after(unit, before, mayBreak);
        if (kindOf(unit) == U_LB_LINE_FEED) m_mayEnd[unit] = true;
    }
    return true;
}

PlainLineBreaks::Before PlainLineBreaks::after(std::size_t unit, const Before& before, bool mayBreak) const {
    const ULineBreak kind = kindOf(unit);
    if (kind == U_LB_LINE_FEED) return {};
    Before next{kind, false, mayBreak || before.kind == U_LB_UNKNOWN, Number::none};
    const bool isInNumber = before.number == Number::open && !before.isSpaced;
    if (kind == U_LB_NUMERIC || (isInNumber && isInsideNumbers(kind))) next.number = Number::open;
    if (isInNumber && isClosing(kind)) next.number = Number::closed;
    return next;
}

// The rules in Unicode's order, of which the first that fits decides. Their numbers stand beside them.
bool PlainLineBreaks::breaksBefore(std::size_t unit, const Before& before) const {
    const ULineBreak kind = kindOf(unit);
    if (kind == U_LB_LINE_FEED) return false; // 6
    const bool isDecimalPoint = kind == U_LB_INFIX_NUMERIC && kindOf(unit + 1) == U_LB_NUMERIC;
    if (before.isSpaced && isDecimalPoint && before.kind != U_LB_OPEN_PUNCTUATION) return true; // as ICU has it
    if (isClosing(kind) || isInsideNumbers(kind) || kind == U_LB_EXCLAMATION) return false;     // 13
    if (before.kind == U_LB_OPEN_PUNCTUATION) return false;                                     // 14
    if (before.kind == U_LB_QUOTATION && kind == U_LB_OPEN_PUNCTUATION) return false;           // 15
    if (before.kind == U_LB_BREAK_BOTH && kind == U_LB_BREAK_BOTH) return false;                // 17
    if (before.isSpaced) return true;                                                           // 18
    return before.kind != U_LB_UNKNOWN && breaksInsideAWord(unit, before);
}

bool PlainLineBreaks::breaksInsideAWord(std::size_t unit, const Before& before) const {
    const ULineBreak kind = kindOf(unit);
    if (before.kind == U_LB_GLUE) return false;                                                       // 12
    if (kind == U_LB_GLUE) return isHyphen(before.kind);                                              // 12a
    if (before.kind == U_LB_QUOTATION || kind == U_LB_QUOTATION) return false;                        // 19
    if (before.startsALine && before.kind == U_LB_HYPHEN && isLetter(kind)) return false;             // as ICU has it
    if (isHyphen(kind) || before.kind == U_LB_BREAK_BEFORE || kind == U_LB_INSEPARABLE) return false; // 21, 22
    const bool isDigit = kind == U_LB_NUMERIC, followsDigit = before.kind == U_LB_NUMERIC;
    if ((isLetter(before.kind) && isDigit) || (followsDigit && isLetter(kind))) return false;             // 23
    if ((isUnit(before.kind) && isLetter(kind)) || (isLetter(before.kind) && isUnit(kind))) return false; // 24
    if (belongsToANumber(unit, before)) return false;                                                     // 25
    if (isLetter(kind) && (isLetter(before.kind) || before.kind == U_LB_INFIX_NUMERIC)) return false;     // 28, 29
    if (kind == U_LB_OPEN_PUNCTUATION) return !isLetter(before.kind) && !followsDigit;                    // 30
    return !(before.kind == U_LB_CLOSE_PARENTHESIS && (isLetter(kind) || isDigit));                       // 30
}

bool PlainLineBreaks::belongsToANumber(std::size_t unit, const Before& before) const {
    const ULineBreak kind = kindOf(unit);
    if (kind == U_LB_NUMERIC) {
        const bool leadsToDigits = isUnit(before.kind) || isOneOf(before.kind, {U_LB_HYPHEN, U_LB_NUMERIC, U_LB_INFIX_NUMERIC});
        return leadsToDigits || before.number == Number::open;
    }
    if (isUnit(kind)) return before.number != Number::none;
    if (!isUnit(before.kind) || kind != U_LB_OPEN_PUNCTUATION) return false;
    const bool hasDecimalPoint = kindOf(unit + 1) == U_LB_INFIX_NUMERIC;
    return kindOf(hasDecimalPoint ? unit + 2 : unit + 1) == U_LB_NUMERIC;
}

} // namespace proupsells::rasterbackend
