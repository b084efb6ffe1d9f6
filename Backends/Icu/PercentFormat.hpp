// How a language writes percents.
#pragma once

#include <string>
#include <string_view>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include "Backends/Icu/NumberElements.hpp"
#include "Backends/Icu/RoundedDecimal.hpp"

namespace proupsells::icubackend {

// The pattern of percents, as Unicode's locale data writes it, and what stands for the characters in it. English unless told.
struct PercentElements {
    icu::UnicodeString pattern = u"#,##0%";
    icu::UnicodeString digits = u"0123456789"; // the ten
    icu::UnicodeString decimal = u".", group = u",", percentSign = u"%", minusSign = u"-";
    int fewestDigitsBeforeLastGroup = 1;
};

class PercentFormat {
public:
    explicit PercentFormat(PercentElements elements);
    explicit PercentFormat(const icu::Locale& locale);

    // 0.5 is fifty percent. Rounded half to even, without zeros at the end. The fraction must be finite.
    std::string text(double fraction, int maximumFractionDigits) const;

private:
    struct Affixes {
        icu::UnicodeString prefix, suffix;
    };

    void readGroups(std::u16string_view pattern);
    Affixes affixesIn(std::u16string_view pattern) const;
    icu::UnicodeString withSymbols(std::u16string_view affix) const;
    bool endsGroup(int wholeDigitsAfterwards, int wholeDigits) const;
    void appendDigit(icu::UnicodeString& text, char digit) const;
    void appendNumber(icu::UnicodeString& text, const RoundedDecimal& number) const;

    PercentElements m_elements;
    Affixes m_positive, m_negative;
    // Digits in the last group before the fraction, and in each one before it. 0 where nothing is grouped.
    int m_lastGroup = 0, m_otherGroup = 0;
};

} // namespace proupsells::icubackend
