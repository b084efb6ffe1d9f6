#include "Platform/Foundation/StringsFile.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Foundation/TextDecoding.hpp"
#include "Platform/Foundation/Utf16.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

namespace {

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool isOctalDigit(char c) { return c >= '0' && c <= '7'; }

int hexadecimalValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

bool isWordCharacter(char c) {
    const bool isLetterOrDigit = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return isLetterOrDigit || std::string_view("_$.:/-").find(c) != std::string_view::npos;
}

// A line ends with LF, CR or both.
std::size_t lineAt(std::string_view text, std::size_t offset) {
    std::size_t line = 1;
    for (std::size_t i = 0; i < offset; ++i)
        if (text[i] == '\n' || (text[i] == '\r' && text.substr(i + 1, 1) != "\n")) ++line;
    return line;
}

// Every function returns false after the first error and leaves that in `m_error`.
class Parser {
public:
    explicit Parser(std::string_view text) : m_text(text) {}

    bool parseAll(StringsFile::Texts& texts) {
        while (skipBlanks() && !isAtEnd())
            if (!parseEntry(texts)) return false;
        return !m_error;
    }

    std::optional<StringsFile::Error> takeError() { return std::move(m_error); }

private:
    bool isAtEnd() const { return m_position == m_text.size(); }
    bool startsWith(std::string_view start) const { return m_text.substr(m_position, start.size()) == start; }

    bool fail(std::size_t position, std::string message) {
        m_error = {lineAt(m_text, position), std::move(message)};
        return false;
    }

    // Comments count as blanks.
    bool skipBlanks() {
        while (!isAtEnd()) {
            if (isBlank(m_text[m_position])) {
                ++m_position;
            } else if (startsWith("//")) {
                m_position = std::min(m_text.find_first_of("\r\n", m_position), m_text.size());
            } else if (startsWith("/*")) {
                const std::size_t end = m_text.find("*/", m_position + 2);
                if (end == std::string_view::npos) return fail(m_position, "the comment that begins here has no end");
                m_position = end + 2;
            } else {
                return true;
            }
        }
        return true;
    }

    bool parseEntry(StringsFile::Texts& texts) {
        std::string key, text;
        if (!parseText(key, "expected a key") || !parseSign("=", "expected \"=\" after the key")) return false;
        if (!parseText(text, "expected a text after \"=\"") || !parseSign(";", "expected \";\" after the text")) return false;
        texts.insert_or_assign(std::move(key), std::move(text));
        return true;
    }

    bool parseSign(std::string_view sign, const char* expectation) {
        const std::size_t endOfWhatStands = m_position;
        if (!skipBlanks()) return false;
        // Reported where it should stand, not where the next line's text happens to begin.
        if (!startsWith(sign)) return fail(endOfWhatStands, expectation);
        m_position += sign.size();
        return true;
    }

    bool parseText(std::string& text, const char* expectation) {
        if (!skipBlanks()) return false;
        if (startsWith("\"")) return parseQuoted(text);
        while (!isAtEnd() && isWordCharacter(m_text[m_position]) && !startsWith("//") && !startsWith("/*"))
            text.push_back(m_text[m_position++]);
        return !text.empty() || fail(m_position, expectation);
    }

    bool parseQuoted(std::string& text) {
        const std::size_t start = m_position++;
        while (!isAtEnd() && !startsWith("\"")) {
            const std::size_t plainEnd = std::min(m_text.find_first_of("\"\\", m_position), m_text.size());
            text.append(m_text.substr(m_position, plainEnd - m_position));
            m_position = plainEnd;
            if (startsWith("\\") && !parseEscape(text)) return false;
        }
        if (isAtEnd()) return fail(start, "the text that begins here has no closing quote");
        ++m_position;
        return true;
    }

    bool parseEscape(std::string& text) {
        ++m_position;
        if (isAtEnd()) return true; // the quote is missing as well, which parseQuoted() reports
        const char c = m_text[m_position];
        if (c == 'U' || c == 'u') return parseUnicodeEscape(text);
        if (isOctalDigit(c)) return parseOctalEscape(text);
        constexpr std::string_view letters = "ntrabfv";
        constexpr std::string_view controls = "\n\t\r\a\b\f\v";
        const std::size_t control = letters.find(c);
        text.push_back(control == std::string_view::npos ? c : controls[control]);
        ++m_position;
        return true;
    }

    bool parseOctalEscape(std::string& text) {
        char32_t character = 0;
        for (int digits = 0; digits < 3 && !isAtEnd() && isOctalDigit(m_text[m_position]); ++digits)
            character = character * 8 + (m_text[m_position++] - '0');
        appendUtf8(text, character);
        return true;
    }

    bool parseUnicodeEscape(std::string& text) {
        const std::size_t start = m_position - 1;
        char32_t character = 0;
        if (!parseUtf16Unit(character)) return false;
        const bool isHigh = isHighSurrogate(character);
        if (isHigh && (startsWith("\\U") || startsWith("\\u"))) {
            char32_t low = 0;
            ++m_position;
            if (!parseUtf16Unit(low)) return false;
            if (!isLowSurrogate(low)) return fail(start, "expected the second half of a surrogate pair");
            character = joinedSurrogates(character, low);
        } else if (isHigh || isLowSurrogate(character)) {
            return fail(start, "expected both halves of a surrogate pair");
        }
        appendUtf8(text, character);
        return true;
    }

    // At the letter of \Uxxxx.
    bool parseUtf16Unit(char32_t& unit) {
        for (std::size_t i = 1; i <= 4; ++i) {
            const int value = m_position + i < m_text.size() ? hexadecimalValue(m_text[m_position + i]) : -1;
            if (value < 0) return fail(m_position, "expected four hexadecimal digits after \"\\U\"");
            unit = unit * 16 + static_cast<char32_t>(value);
        }
        m_position += 5;
        return true;
    }

    std::string_view m_text;
    std::size_t m_position = 0;
    std::optional<StringsFile::Error> m_error;
};

} // namespace

StringsFile StringsFile::parse(std::string_view bytes) {
    const DecodedText decoded = decodeText(bytes);
    if (!decoded.isComplete) return {{}, Error{lineAt(decoded.text, decoded.text.size()), "expected valid UTF-8 or UTF-16"}};
    StringsFile file;
    Parser parser(decoded.text);
    if (!parser.parseAll(file.texts)) file = {{}, parser.takeError()};
    return file;
}

} // namespace proupsells::foundation
