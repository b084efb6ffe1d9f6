#include "Backends/Raster/PlainLineBreaks.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace proupsells::rasterbackend {

namespace {

bool isOneOf(ULineBreak kind, std::initializer_list<ULineBreak> kinds) {
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

bool isLetter(ULineBreak kind) { return kind == U_LB_ALPHABETIC; }
// Before a number or behind it.
bool isUnit(ULineBreak kind) { return kind == U_LB_PREFIX_NUMERIC; }
bool isHyphen(ULineBreak kind) { return kind == U_LB_HYPHEN || kind == U_LB_BREAK_AFTER; }
bool isClosing(ULineBreak kind) { return kind == U_LB_CLOSE_PUNCTUATION || kind == U_LB_CLOSE_PARENTHESIS; }
bool isInsideNumbers(ULineBreak kind) { return kind == U_LB_INFIX_NUMERIC || kind == U_LB_BREAK_SYMBOLS; }

// From each character on, up to the next one of the list: Unicode's kinds by their short names. XX where the rules below know
// nothing of it; a true hyphen has rules of its own in ICU. PR for PO, too, which no rule below tells apart.
struct KindFrom {
    char16_t first;
    ULineBreak kind;
};
constexpr auto kinds = [] {
    // NOLINTBEGIN(readability-identifier-naming)
    constexpr ULineBreak AL = U_LB_ALPHABETIC, B2 = U_LB_BREAK_BOTH, BA = U_LB_BREAK_AFTER, BB = U_LB_BREAK_BEFORE,
                         CL = U_LB_CLOSE_PUNCTUATION, CP = U_LB_CLOSE_PARENTHESIS, EX = U_LB_EXCLAMATION, GL = U_LB_GLUE,
                         HY = U_LB_HYPHEN, IN = U_LB_INSEPARABLE, IS = U_LB_INFIX_NUMERIC, LF = U_LB_LINE_FEED, NU = U_LB_NUMERIC,
                         OP = U_LB_OPEN_PUNCTUATION, PR = U_LB_PREFIX_NUMERIC, QU = U_LB_QUOTATION, SP = U_LB_SPACE,
                         SY = U_LB_BREAK_SYMBOLS, XX = U_LB_UNKNOWN;
    // NOLINTEND(readability-identifier-naming)
    return std::to_array<KindFrom>(
        {{0x00, XX},   {0x09, BA},   {0x0A, LF},   {0x0B, XX},   {0x20, SP},   {0x21, EX},   {0x22, QU},   {0x23, AL},
         {0x24, PR},   {0x26, AL},   {0x27, QU},   {0x28, OP},   {0x29, CP},   {0x2A, AL},   {0x2B, PR},   {0x2C, IS},
         {0x2D, HY},   {0x2E, IS},   {0x2F, SY},   {0x30, NU},   {0x3A, IS},   {0x3C, AL},   {0x3F, EX},   {0x40, AL},
         {0x5B, OP},   {0x5C, PR},   {0x5D, CP},   {0x5E, AL},   {0x7B, OP},   {0x7C, BA},   {0x7D, CL},   {0x7E, AL},
         {0x7F, XX},   {0xA0, GL},   {0xA1, OP},   {0xA2, PR},   {0xA6, AL},   {0xAB, QU},   {0xAC, AL},   {0xAD, BA},
         {0xAE, AL},   {0xB0, PR},   {0xB2, AL},   {0xB4, BB},   {0xB5, AL},   {0xBB, QU},   {0xBC, AL},   {0xBF, OP},
         {0xC0, AL},   {0x2C8, BB},  {0x2C9, AL},  {0x2CC, BB},  {0x2CD, AL},  {0x2DF, BB},  {0x2E0, AL},  {0x300, XX},
         {0x2011, GL}, {0x2012, BA}, {0x2014, B2}, {0x2015, AL}, {0x2018, QU}, {0x201A, OP}, {0x201B, QU}, {0x201E, OP},
         {0x201F, QU}, {0x2020, AL}, {0x2024, IN}, {0x2027, BA}, {0x2028, XX}, {0x20A0, PR}, {0x20C0, XX}});
}();

ULineBreak kindOfCharacter(char16_t unit) {
    const auto next =
        std::upper_bound(kinds.begin(), kinds.end(), unit, [](char16_t c, const KindFrom& from) { return c < from.first; });
    return (next - 1)->kind;
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
