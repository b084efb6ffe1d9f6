// Line breaks beside ICU's.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <unicode/brkiter.h>

#include "Backends/Raster/PlainLineBreaks.hpp"
#include "Platform/Foundation/PlainCharacters.hpp"

using namespace proupsells;

using rasterbackend::PlainLineBreaks;

namespace {

class IcuLineBreaks {
public:
    explicit IcuLineBreaks(const char* language) {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale locale(language);
        locale.setKeywordValue("lb", "strict", status);
        m_rules.reset(icu::BreakIterator::createLineInstance(locale, status));
    }
    std::string of(const std::u16string& text) {
        m_rules->setText(icu::UnicodeString(text.data(), std::int32_t(text.size())));
        std::string result(text.size(), '.');
        for (int end = m_rules->next(); end != icu::BreakIterator::DONE; end = m_rules->next()) result[std::size_t(end - 1)] = '|';
        return result;
    }

private:
    std::unique_ptr<icu::BreakIterator> m_rules;
};

// The last character always ends a line.
std::string plainBreaks(PlainLineBreaks& breaks, const std::u16string& text) {
    if (!breaks.read(text)) return "unknown";
    std::string result;
    for (std::size_t unit = 0; unit < text.size(); ++unit)
        result += unit + 1 == text.size() || breaks.mayEndAfter(unit) ? '|' : '.';
    return result;
}

std::string shown(const std::u16string& text) {
    std::string result;
    return icu::UnicodeString(text.data(), std::int32_t(text.size())).toUTF8String(result);
}

// One of each kind.
constexpr std::u16string_view kinds = u"a1 !\"$%(}),-/|\n\u00A0\u2026\u2014\u00B4";

} // namespace

TEST(PlainLineBreaks, AreIcusForEveryOrderOfFourKinds) {
    PlainLineBreaks breaks;
    IcuLineBreaks icu("en");
    const std::size_t count = kinds.size() * kinds.size() * kinds.size() * kinds.size();
    for (std::size_t number = 0; number < count; ++number) {
        std::u16string text;
        for (std::size_t rest = number; text.size() < 4; rest /= kinds.size()) text += kinds[rest % kinds.size()];
        ASSERT_EQ(plainBreaks(breaks, text), icu.of(text)) << shown(text);
    }
}

TEST(PlainLineBreaks, AreIcusInEveryLanguage) {
    std::mt19937 random(1);
    PlainLineBreaks breaks;
    for (const char* language : {"", "en", "de", "fi", "el", "ar", "he", "ja", "zh_Hant", "ko", "th"}) {
        IcuLineBreaks icu(language);
        for (int round = 0; round < 4000; ++round) {
            std::u16string text;
            for (std::size_t length = 1 + random() % 16; text.size() < length;) text += kinds[random() % kinds.size()];
            ASSERT_EQ(plainBreaks(breaks, text), icu.of(text)) << language << ": " << shown(text);
        }
    }
}

TEST(PlainLineBreaks, AreIcusForEveryCharacterThatTheyKnow) {
    std::mt19937 random(1);
    PlainLineBreaks breaks;
    IcuLineBreaks icu("en");
    int knownCount = 0;
    for (char16_t character = 1; character < 0x3000; ++character) {
        if (!breaks.read({character})) continue;
        ++knownCount;
        EXPECT_TRUE(foundation::isPlainCharacter(character));
        for (int round = 0; round < 200; ++round) {
            std::u16string text;
            for (int unit = 0; unit < 6; ++unit) text += random() % 3 == 0 ? character : kinds[random() % kinds.size()];
            ASSERT_EQ(plainBreaks(breaks, text), icu.of(text)) << shown(text);
        }
    }
    EXPECT_GT(knownCount, 700);
}

TEST(PlainLineBreaks, KnowNothingOfOtherCharacters) {
    PlainLineBreaks breaks;

    for (const char16_t* text : {u"\u65E5", u"a\u0301", u"\u05D0", u"a\u200Bb", u"a\rb"})
        EXPECT_FALSE(breaks.read(text)) << shown(text);
}
