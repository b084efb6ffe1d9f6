#include "Platform/Foundation/BuiltInLocaleServices.hpp"

#include <algorithm>
#include <span>

#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

namespace {

enum class Kind : std::uint8_t {
    left,
    right,
    number,
    separator,  // between two digits, part of the number
    terminator, // beside a digit, part of the number, however many there are
    neutral,
};

bool isBetween(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }
bool isOneOf(char32_t c, std::u32string_view set) { return set.find(c) != std::u32string_view::npos; }

bool isParagraphEnd(char32_t c) { return c == '\n' || c == '\r' || c == 0x85 || c == 0x2029; }

bool isDigit(char32_t c) {
    return isBetween(c, '0', '9') || isBetween(c, 0x0660, 0x0669) || isBetween(c, 0x06F0, 0x06F9) || isBetween(c, 0xFF10, 0xFF19);
}

bool isRightToLeftBlock(char32_t c) {
    return isBetween(c, 0x0590, 0x08FF) || isBetween(c, 0xFB1D, 0xFDFF) || isBetween(c, 0xFE70, 0xFEFE) ||
           isBetween(c, 0x10800, 0x10FFF) || isBetween(c, 0x1E800, 0x1EFFF);
}

// Signs, punctuation and pictures among the scripts written from left to right.
bool isSymbolBlock(char32_t c) {
    return c < 0xC0 || c == 0xD7 || c == 0xF7 || isBetween(c, 0x02B9, 0x036F) || isBetween(c, 0x2000, 0x206F) ||
           isBetween(c, 0x2190, 0x2BFF) || isBetween(c, 0x2E00, 0x2E7F) || isBetween(c, 0x3000, 0x3004) ||
           isBetween(c, 0x3008, 0x3020) || isBetween(c, 0xFE00, 0xFE6F) || isBetween(c, 0xFF01, 0xFF20) || c == 0xFEFF ||
           c == replacementCharacter || isBetween(c, 0x1F000, 0x1FAFF);
}

Kind kindOf(char32_t c) {
    if (isBetween(c, 'a', 'z') || isBetween(c, 'A', 'Z') || isOneOf(c, U"\u00AA\u00B5\u00BA")) return Kind::left;
    if (isDigit(c)) return Kind::number;
    if (isOneOf(c, U"+-,./:\u00A0\u060C")) return Kind::separator;
    if (isOneOf(c, U"#$%\u00A2\u00A3\u00A4\u00A5\u00B0\u00B1\u066A\u2030\u2031") || isBetween(c, 0x20A0, 0x20CF))
        return Kind::terminator;
    if (isSymbolBlock(c)) return Kind::neutral;
    return isRightToLeftBlock(c) ? Kind::right : Kind::left;
}

struct Character {
    std::size_t end; // bytes
    Kind kind;
};

// Gives every character of a paragraph the kind of its surroundings until only letters and numbers are left.
class Paragraph {
public:
    Paragraph(std::span<Character> characters, geometry::LayoutDirection fallback) : m_characters(characters) {
        const auto letter = std::find_if(characters.begin(), characters.end(),
                                         [](const Character& c) { return c.kind == Kind::left || c.kind == Kind::right; });
        const bool isRightToLeft = fallback == geometry::LayoutDirection::rightToLeft;
        m_base = letter != characters.end() ? letter->kind : isRightToLeft ? Kind::right : Kind::left;
    }

    void appendRuns(std::vector<BidiRun>& runs) {
        joinSeparators();
        replaceStretches(Kind::terminator, [](Kind before, Kind after) {
            return before == Kind::number || after == Kind::number ? Kind::number : Kind::neutral;
        });
        turnNumbersAfterLeftLetters();
        replaceStretches(Kind::neutral, [this](Kind before, Kind after) {
            const bool isLeft = before == Kind::left, isNextLeft = after == Kind::left;
            return isLeft != isNextLeft ? m_base : isLeft ? Kind::left : Kind::right;
        });
        for (const Character& character : m_characters)
            appendBidiRun(runs, {character.end, levelOf(character.kind), levelOf(m_base)});
    }

private:
    void joinSeparators() {
        for (std::size_t index = 0; index < m_characters.size(); ++index) {
            if (m_characters[index].kind != Kind::separator) continue;
            const bool isInNumber = kindAt(index - 1) == Kind::number && kindAt(index + 1) == Kind::number;
            m_characters[index].kind = isInNumber ? Kind::number : Kind::neutral;
        }
    }

    // Numbers keep to the left-to-right letters that they follow.
    void turnNumbersAfterLeftLetters() {
        Kind strong = m_base;
        for (Character& character : m_characters) {
            if (character.kind == Kind::left || character.kind == Kind::right) strong = character.kind;
            if (character.kind == Kind::number && strong == Kind::left) character.kind = Kind::left;
        }
    }

    // Gives each stretch of one kind another, chosen by what stands before and after it.
    template <class Choose>
    void replaceStretches(Kind kind, Choose choose) {
        for (std::size_t first = 0; first < m_characters.size(); ++first) {
            if (m_characters[first].kind != kind) continue;
            std::size_t end = first;
            while (end < m_characters.size() && m_characters[end].kind == kind) ++end;
            const Kind chosen = choose(kindAt(first - 1), kindAt(end));
            for (std::size_t index = first; index < end; ++index) m_characters[index].kind = chosen;
            first = end - 1;
        }
    }

    // The paragraph's own direction around it.
    Kind kindAt(std::size_t index) const { return index < m_characters.size() ? m_characters[index].kind : m_base; }

    std::uint8_t levelOf(Kind kind) const {
        if (kind == Kind::right) return 1;
        return kind == Kind::left && m_base == Kind::left ? 0 : 2;
    }

    std::span<Character> m_characters;
    Kind m_base;
};

} // namespace

std::vector<BidiRun> BuiltInLocaleServices::bidiRuns(std::string_view text, geometry::LayoutDirection fallback) const {
    std::vector<BidiRun> runs;
    std::vector<Character> paragraph;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCharacter character = decodeUtf8(text, offset);
        offset += character.length;
        paragraph.push_back({offset, kindOf(character.value)});
        if (!isParagraphEnd(character.value) && offset < text.size()) continue;
        Paragraph(paragraph, fallback).appendRuns(runs);
        paragraph.clear();
    }
    return runs;
}

} // namespace proupsells::foundation
