#include <gtest/gtest.h>
#include <unicode/ubidi.h>

#include <random>

#include "Backends/Qt/BidiLevels.hpp"

using namespace proupsells;

namespace {

// Characters without a place of their own on the line; where they go is left open.
bool hasLevel(QChar unit) { return unit.unicode() != 0x200B && !(unit.unicode() >= 0x202A && unit.unicode() <= 0x202E); }

std::vector<int> visibleLevels(const QString& text, const std::vector<std::uint8_t>& levels) {
    std::vector<int> visible;
    for (std::size_t index = 0; index < levels.size(); ++index)
        if (hasLevel(text[int(index)])) visible.push_back(levels[index]);
    return visible;
}

// The levels by an independent implementation. Empty where it fails.
std::vector<std::uint8_t> referenceLevels(const QString& text, std::uint8_t baseLevel) {
    UErrorCode status = U_ZERO_ERROR;
    UBiDi* bidi = ubidi_open();
    ubidi_setPara(bidi, reinterpret_cast<const UChar*>(text.utf16()), int(text.size()), baseLevel, nullptr, &status);
    const UBiDiLevel* levels = ubidi_getLevels(bidi, &status);
    std::vector<std::uint8_t> result;
    if (U_SUCCESS(status)) result.assign(levels, levels + text.size());
    ubidi_close(bidi);
    return result;
}

QString randomText(std::mt19937& random, const QString& alphabet) {
    QString text;
    for (unsigned count = 1 + random() % 24; count > 0; --count) text += alphabet[int(random() % unsigned(alphabet.size()))];
    return text;
}

void expectReferenceLevels(const QString& alphabet) {
    for (unsigned seed = 0; seed < 4000; ++seed) {
        std::mt19937 random{seed};
        // The reference simplifies the levels of texts that have one direction only; a paragraph of its own prevents that.
        const QString text = u"aא\u2029"_qs + randomText(random, alphabet);
        const std::uint8_t baseLevel = seed % 2;
        SCOPED_TRACE("seed " + std::to_string(seed) + ": " + text.toStdString());

        ASSERT_EQ(visibleLevels(text, qtbackend::bidiLevels(text, baseLevel)),
                  visibleLevels(text, referenceLevels(text, baseLevel)));
    }
}

} // namespace

TEST(BidiLevels, OfNoTextAreNone) { EXPECT_TRUE(qtbackend::bidiLevels({}, 1).empty()); }

TEST(BidiLevels, OfWordsNumbersAndPunctuationAreTheStandards) { expectReferenceLevels(u"ab אב بت 12 ١٢ .,:-+%$ ()[] "_qs); }

TEST(BidiLevels, OfMarksAreTheStandards) { expectReferenceLevels(u"a \u05D0\u05D11\u0661 .+$\u0301\u05B0"_qs); }

TEST(BidiLevels, OfEmbeddingsAndIsolatesAreTheStandards) {
    expectReferenceLevels(u"a אب1١ (.\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069\u200B"_qs);
}

TEST(BidiLevels, OfSeveralParagraphsAreTheStandards) { expectReferenceLevels(u"aא1 \n\t\u2029\u2028\u2067"_qs); }

TEST(BidiLevels, GiveBothHalvesOfACharacterOne) {
    const QString text = u"\U00010900a"_qs; // a Phoenician letter

    EXPECT_EQ(qtbackend::bidiLevels(text, 0), (std::vector<std::uint8_t>{1, 1, 0}));
}

TEST(BidiLevels, SurviveDeepNesting) {
    QString text;
    for (int depth = 0; depth < 200; ++depth) text += depth % 2 ? u"\u202Bא"_qs : u"\u202Aa"_qs;

    EXPECT_EQ(visibleLevels(text, qtbackend::bidiLevels(text, 0)), visibleLevels(text, referenceLevels(text, 0)));
}
