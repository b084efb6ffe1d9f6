// Where lines may break in the most usual texts.
#pragma once

#include <string>
#include <unicode/uchar.h>
#include <vector>

namespace proupsells::rasterbackend {

// Follows Unicode's rules for line breaks, as ICU does, in texts of Latin letters, digits and their punctuation. ICU's own rules
// would take a megabyte of memory for them. Keeps its memory from text to text.
class PlainLineBreaks {
public:
    // False where the text has other characters, whose breaks only ICU knows.
    bool read(const std::u16string& units);
    // Whether a line may end after the unit, which is not the last one.
    bool mayEndAfter(std::size_t unit) const { return m_mayEnd[unit]; }

private:
    // How far a number goes that its punctuation belongs to.
    enum class Number { none, open, closed };
    // What stands before the unit at hand.
    struct Before {
        ULineBreak kind = U_LB_UNKNOWN; // of the last unit that is no space; unknown at a line's start
        bool isSpaced = false;
        bool startsALine = false; // that unit, as far as it may
        Number number = Number::none;
    };

    ULineBreak kindOf(std::size_t unit) const { return unit < m_kinds.size() ? m_kinds[unit] : U_LB_UNKNOWN; }
    bool breaksBefore(std::size_t unit, const Before& before) const;
    bool breaksInsideAWord(std::size_t unit, const Before& before) const;
    bool belongsToANumber(std::size_t unit, const Before& before) const;
    Before after(std::size_t unit, const Before& before, bool mayBreak) const;

    std::vector<ULineBreak> m_kinds;
    std::vector<bool> m_mayEnd;
};

} // namespace proupsells::rasterbackend
