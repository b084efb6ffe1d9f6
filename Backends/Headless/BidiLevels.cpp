#include "Backends/Headless/BidiLevels.hpp"

#include "Backends/Headless/CharacterClass.hpp"

namespace proupsells::headless {

namespace {

enum class BidiClass : std::uint8_t {
    left,
    right,
    arabicLetter,
    number,
    arabicNumber,
    sign,            // between two numbers, one of them belongs to the number
    commonSeparator, // likewise, but between Arabic numbers too
    terminator,      // beside a number, any count of them belongs to it
    neutral,
};

BidiClass classOf(char32_t c) {
    if (isDigit(c)) return BidiClass::number;
    if (isArabicDigit(c)) return BidiClass::arabicNumber;
    if (isNumberTerminator(c)) return BidiClass::terminator;
    if (c == '+' || c == '-') return BidiClass::sign;
    if (c == ',' || c == '.' || c == '/' || c == ':' || c == 0xA0 || c == 0x060C) return BidiClass::commonSeparator;
    if (isArabicLetter(c)) return BidiClass::arabicLetter;
    if (isHebrewLetter(c)) return BidiClass::right;
    if (isLeftToRightLetter(c)) return BidiClass::left;
    return BidiClass::neutral;
}

bool isNumber(BidiClass c) { return c == BidiClass::number || c == BidiClass::arabicNumber; }

// One paragraph's classes, resolved step by step until only strong ones and numbers are left.
class Paragraph {
public:
    Paragraph(std::span<const char32_t> characters, BidiClass base) : m_base(base) {
        m_classes.reserve(characters.size());
        for (const char32_t character : characters) m_classes.push_back(classOf(character));
    }

    void appendLevels(std::vector<std::uint8_t>& levels) {
        resolveNumbersAfterArabic();
        joinSeparators();
        joinTerminators();
        resolveNumbersAfterLeft();
        resolveNeutrals();
        for (const BidiClass resolved : m_classes) levels.push_back(levelOf(resolved));
    }

private:
    void resolveNumbersAfterArabic() {
        BidiClass strong = m_base;
        for (BidiClass& current : m_classes) {
            if (current == BidiClass::number && strong == BidiClass::arabicLetter) current = BidiClass::arabicNumber;
            if (current == BidiClass::left || current == BidiClass::right || current == BidiClass::arabicLetter) strong = current;
        }
        for (BidiClass& current : m_classes) {
            if (current == BidiClass::arabicLetter) current = BidiClass::right;
        }
    }

    void joinSeparators() {
        for (std::size_t index = 1; index + 1 < m_classes.size(); ++index) {
            const BidiClass before = m_classes[index - 1], after = m_classes[index + 1];
            if (before != after || !isNumber(before)) continue;
            const bool joins = m_classes[index] == BidiClass::commonSeparator ||
                               (m_classes[index] == BidiClass::sign && before == BidiClass::number);
            if (joins) m_classes[index] = before;
        }
    }

    void joinTerminators() {
        for (std::size_t first = 0; first < m_classes.size();) {
            std::size_t end = first;
            while (end < m_classes.size() && m_classes[end] == BidiClass::terminator) ++end;
            const bool followsNumber = first > 0 && m_classes[first - 1] == BidiClass::number;
            const bool precedesNumber = end < m_classes.size() && m_classes[end] == BidiClass::number;
            const BidiClass joined = followsNumber || precedesNumber ? BidiClass::number : BidiClass::neutral;
            for (std::size_t index = first; index < end; ++index) m_classes[index] = joined;
            first = end + (end == first ? 1 : 0);
        }
    }

    void resolveNumbersAfterLeft() {
        BidiClass strong = m_base;
        for (BidiClass& current : m_classes) {
            if (current == BidiClass::left || current == BidiClass::right) strong = current;
            if (current == BidiClass::number && strong == BidiClass::left) current = BidiClass::left;
            if (current == BidiClass::sign || current == BidiClass::commonSeparator) current = BidiClass::neutral;
        }
    }

    // Neutrals between two of one direction take it, all others the paragraph's. Numbers count as right to left here.
    void resolveNeutrals() {
        const auto directionAt = [this](std::size_t index) {
            if (index >= m_classes.size()) return m_base;
            return m_classes[index] == BidiClass::left ? BidiClass::left : BidiClass::right;
        };
        BidiClass before = m_base;
        for (std::size_t first = 0; first < m_classes.size();) {
            if (m_classes[first] != BidiClass::neutral) {
                before = directionAt(first++);
                continue;
            }
            std::size_t end = first;
            while (end < m_classes.size() && m_classes[end] == BidiClass::neutral) ++end;
            const BidiClass resolved = before == directionAt(end) ? before : m_base;
            for (; first < end; ++first) m_classes[first] = resolved;
        }
    }

    std::uint8_t levelOf(BidiClass resolved) const {
        if (resolved == BidiClass::right) return 1;
        if (resolved == BidiClass::left && m_base == BidiClass::left) return 0;
        return 2;
    }

    BidiClass m_base;
    std::vector<BidiClass> m_classes;
};

} // namespace

std::vector<std::uint8_t> bidiLevels(std::span<const char32_t> characters, geometry::LayoutDirection direction) {
    const bool isRightToLeft = direction == geometry::LayoutDirection::rightToLeft;
    std::vector<std::uint8_t> levels;
    levels.reserve(characters.size());
    for (std::size_t first = 0; first < characters.size();) {
        std::size_t end = first;
        while (end < characters.size() && !isParagraphEnd(characters[end])) ++end;
        Paragraph(characters.subspan(first, end - first), isRightToLeft ? BidiClass::right : BidiClass::left).appendLevels(levels);
        if (end < characters.size()) levels.push_back(isRightToLeft ? 1 : 0); // the paragraph's end itself
        first = end + 1;
    }
    return levels;
}

} // namespace proupsells::headless
