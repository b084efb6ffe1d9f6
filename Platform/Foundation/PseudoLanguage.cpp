#include "Platform/Foundation/PseudoLanguage.hpp"

#include <utility>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/Format.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::foundation {

namespace {

bool isLetter(char c) { return asciiLower(c) != asciiUpper(c); }
bool isVowel(char c) { return std::string_view("aeiouy").find(asciiLower(c)) != std::string_view::npos; }
bool isNoAscii(char c) { return static_cast<unsigned char>(c) >= 0x80; }

// Letters that most typefaces have, as upper and as lower case. Those that have none with an accent stay plain, as does what is no
// letter.
std::string_view accented(const char& letter) {
    static constexpr std::string_view upper[] = {"Å", "B", "Ç", "Đ", "É", "F", "Ğ", "Ĥ", "Î", "Ĵ", "Ķ", "Ļ", "M",
                                                 "Ñ", "Ö", "P", "Q", "Ŕ", "Š", "Ţ", "Ü", "V", "Ŵ", "X", "Ý", "Ž"};
    static constexpr std::string_view lower[] = {"å", "b", "ç", "đ", "é", "f", "ğ", "ĥ", "î", "ĵ", "ķ", "ļ", "m",
                                                 "ñ", "ö", "p", "q", "ŕ", "š", "ţ", "ü", "v", "ŵ", "x", "ý", "ž"};
    if (letter >= 'A' && letter <= 'Z') return upper[letter - 'A'];
    if (letter >= 'a' && letter <= 'z') return lower[letter - 'a'];
    return {&letter, 1};
}

// Calls `placeholder` with each of the text's placeholders and `character` with each other character, in the text's order.
template <class Placeholder, class Character>
void forEachPart(std::string_view text, Placeholder placeholder, Character character) {
    while (!text.empty()) {
        const std::size_t reserved = placeholderLength(text);
        const std::size_t length = reserved ? reserved : decodeUtf8(text, 0).length;
        if (reserved)
            placeholder(text.substr(0, length));
        else
            character(text.substr(0, length));
        text.remove_prefix(length);
    }
}

// How many letters come in where a text becomes longer: behind each vowel, and one more behind the first few.
struct Growth {
    std::size_t behindEach = 0, oneMoreBehind = 0;
    std::size_t atTheEnd = 0; // of a text without vowels
};

Growth growthOf(std::string_view text) {
    std::size_t characters = 0, vowels = 0;
    forEachPart(
        text, [](std::string_view) {},
        [&](std::string_view character) {
            ++characters;
            vowels += isVowel(character.front());
        });
    const std::size_t more = (2 * characters + 4) / 5;
    return vowels ? Growth{more / vowels, more % vowels} : Growth{.atTheEnd = more};
}

// Vowels grow, so that the text gets longer words and not more of them: long words are what does not fit.
std::string accentedText(std::string_view text) {
    const Growth growth = growthOf(text);
    std::string result = "[";
    std::size_t vowel = 0;
    forEachPart(
        text, [&](std::string_view placeholder) { result.append(placeholder); },
        [&](std::string_view character) {
            const char c = character.front();
            result.append(isLetter(c) ? accented(c) : character);
            if (!isVowel(c)) return;
            const std::size_t count = growth.behindEach + (vowel++ < growth.oneMoreBehind);
            for (std::size_t i = 0; i < count; ++i) result.append(accented(asciiLower(c)));
        });
    return result.append(growth.atTheEnd, '~') + "]";
}

// A right-to-left mark, which makes a paragraph that begins with the word run from right to left, and an override around the
// letters. Digits stay outside of words, as they run from left to right in every language.
class MirroredText {
public:
    void add(std::string_view character) {
        const char c = character.front();
        const bool isInWord = isLetter(c) || isNoAscii(c) || (m_isInsideWord && (c == '\'' || isAsciiDigit(c)));
        if (isInWord && !m_isInsideWord) m_text.append("\u200F\u202E");
        if (!isInWord) endWord();
        m_isInsideWord = isInWord;
        m_text.append(character);
    }
    void addPlaceholder(std::string_view placeholder) {
        endWord();
        m_text.append(placeholder);
    }
    std::string take() {
        endWord();
        return std::move(m_text);
    }

private:
    void endWord() {
        if (m_isInsideWord) m_text.append("\u202C\u200F");
        m_isInsideWord = false;
    }

    std::string m_text;
    bool m_isInsideWord = false;
};

std::string mirroredText(std::string_view text) {
    MirroredText result;
    forEachPart(
        text, [&](std::string_view placeholder) { result.addPlaceholder(placeholder); },
        [&](std::string_view character) { result.add(character); });
    return result.take();
}

} // namespace

std::optional<PseudoLanguage> pseudoLanguageOf(std::string_view languageTag) {
    const std::string tag = asciiLowerCased(std::string(languageTag));
    if (tag == "en-xa") return PseudoLanguage::accented;
    if (tag == "ar-xb") return PseudoLanguage::mirrored;
    return std::nullopt;
}

std::string pseudoTranslation(std::string_view text, PseudoLanguage language) {
    if (text.empty()) return {};
    return language == PseudoLanguage::accented ? accentedText(text) : mirroredText(text);
}

} // namespace proupsells::foundation
