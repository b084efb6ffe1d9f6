#include "Backends/Icu/PercentFormat.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace proupsells::icubackend {

namespace {

constexpr std::u16string_view numberCharacters = u"#0,.";

// The pattern without what it says in quotes, so that only the number's own characters are found; as long as before.
std::u16string withoutQuoted(std::u16string_view pattern) {
    std::u16string result(pattern);
    bool isQuoted = false;
    for (char16_t& unit : result) {
        if (unit == u'\'') isQuoted = !isQuoted;
        if (isQuoted) unit = u' ';
    }
    return result;
}

int digitCount(std::u16string_view pattern) {
    return int(std::count_if(pattern.begin(), pattern.end(), [](char16_t unit) { return unit == u'#' || unit == u'0'; }));
}

PercentElements elementsOf(const icu::Locale& locale) {
    const NumberElements known(locale);
    PercentElements elements;
    const auto take = [](icu::UnicodeString& element, const std::optional<icu::UnicodeString>& text) {
        if (text) element = *text;
    };
    take(elements.pattern, known.pattern("percentFormat"));
    take(elements.digits, known.digits());
    take(elements.decimal, known.symbol("decimal"));
    take(elements.group, known.symbol("group"));
    take(elements.percentSign, known.symbol("percentSign"));
    take(elements.minusSign, known.symbol("minusSign"));
    const auto fewest = known.element("minimumGroupingDigits");
    if (fewest && fewest->length() == 1) elements.fewestDigitsBeforeLastGroup = fewest->charAt(0) - u'0';
    return elements;
}

} // namespace

PercentFormat::PercentFormat(const icu::Locale& locale) : PercentFormat(elementsOf(locale)) {}

PercentFormat::PercentFormat(PercentElements elements) : m_elements(std::move(elements)) {
    const icu::UnicodeString& pattern = m_elements.pattern;
    const std::u16string_view both(pattern.getBuffer(), std::size_t(pattern.length()));
    const std::size_t semicolon = withoutQuoted(both).find(u';');
    const std::u16string_view positive = both.substr(0, semicolon);
    readGroups(positive);
    m_positive = affixesIn(positive);
    if (semicolon == std::u16string_view::npos)
        m_negative = {m_elements.minusSign + m_positive.prefix, m_positive.suffix};
    else
        m_negative = affixesIn(both.substr(semicolon + 1));
}

void PercentFormat::readGroups(std::u16string_view pattern) {
    const std::u16string plain = withoutQuoted(pattern);
    const std::u16string_view whole = std::u16string_view(plain).substr(0, plain.find(u'.'));
    const std::size_t last = whole.rfind(u',');
    if (last == std::u16string_view::npos) return;
    m_lastGroup = m_otherGroup = digitCount(whole.substr(last));
    const std::size_t other = last == 0 ? std::u16string_view::npos : whole.rfind(u',', last - 1);
    if (other != std::u16string_view::npos) m_otherGroup = digitCount(whole.substr(other, last - other));
}

PercentFormat::Affixes PercentFormat::affixesIn(std::u16string_view pattern) const {
    const std::u16string plain = withoutQuoted(pattern);
    const std::size_t first = plain.find_first_of(numberCharacters);
    if (first == std::u16string::npos) return {{}, withSymbols(pattern)};
    return {withSymbols(pattern.substr(0, first)), withSymbols(pattern.substr(plain.find_last_of(numberCharacters) + 1))};
}

icu::UnicodeString PercentFormat::withSymbols(std::u16string_view affix) const {
    icu::UnicodeString result;
    bool isQuoted = false;
    for (std::size_t index = 0; index < affix.size(); ++index) {
        const char16_t unit = affix[index];
        if (unit == u'\'' && affix.substr(index + 1, 1) != u"'")
            isQuoted = !isQuoted;
        else if (unit == u'\'')
            result += affix[index++]; // two quotes mean one
        else if (unit == u'%' && !isQuoted)
            result += m_elements.percentSign;
        else if (unit == u'-' && !isQuoted)
            result += m_elements.minusSign;
        else
            result += unit;
    }
    return result;
}

std::string PercentFormat::text(double fraction, int maximumFractionDigits) const {
    const Affixes& affixes = std::signbit(fraction) ? m_negative : m_positive;
    constexpr int hundredfold = 2;
    icu::UnicodeString text = affixes.prefix;
    appendNumber(text, roundedDecimal(std::abs(fraction), hundredfold, maximumFractionDigits));
    text += affixes.suffix;
    std::string result;
    return text.toUTF8String(result);
}

bool PercentFormat::endsGroup(int wholeDigitsAfterwards, int wholeDigits) const {
    const int beforeLastGroup = wholeDigitsAfterwards - m_lastGroup;
    return m_lastGroup > 0 && beforeLastGroup >= 0 && beforeLastGroup % m_otherGroup == 0 &&
           wholeDigits - m_lastGroup >= m_elements.fewestDigitsBeforeLastGroup;
}

void PercentFormat::appendDigit(icu::UnicodeString& text, char digit) const {
    text += m_elements.digits.char32At(m_elements.digits.moveIndex32(0, digit - '0'));
}

void PercentFormat::appendNumber(icu::UnicodeString& text, const RoundedDecimal& number) const {
    const auto wholeDigits = std::size_t(std::max(number.wholeCount, 1));
    // All that are written, with zeros where the number has none.
    std::string digits(std::size_t(int(wholeDigits) - number.wholeCount), '0');
    digits += number.digits;
    digits.resize(std::max(digits.size(), wholeDigits), '0');
    for (std::size_t index = 0; index < wholeDigits; ++index) {
        appendDigit(text, digits[index]);
        const int afterwards = int(wholeDigits - 1 - index);
        if (afterwards > 0 && endsGroup(afterwards, int(wholeDigits))) text += m_elements.group;
    }
    if (digits.size() > wholeDigits) text += m_elements.decimal;
    for (std::size_t index = wholeDigits; index < digits.size(); ++index) appendDigit(text, digits[index]);
}

} // namespace proupsells::icubackend
