#include "Backends/Raster/ClusterMaker.hpp"

#include <algorithm>
#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/PlainCharacters.hpp"

namespace proupsells::rasterbackend {

namespace {

using graphics::Cluster;
using graphics::LineBreak;

bool isLineFeed(char16_t unit) { return (unit >= 0x0A && unit <= 0x0D) || unit == 0x85 || unit == 0x2028 || unit == 0x2029; }

bool isBlank(char16_t unit) {
    switch (unit) {
    case 0x09:
    case 0x20:
    case 0x1680:
    case 0x205F:
    case 0x3000: return true;
    case 0x2007: return false; // figure space, which does not break
    default: return unit >= 0x2000 && unit <= 0x200A;
    }
}

constexpr char16_t wideSolidus = u'\uFF0F';

// A soft hyphen would not be shown, and a solidus keeps a price and its period together ("$8.33/month").
bool mayEndALine(char16_t last) { return last != u'\u00AD' && last != u'/' && last != wideSolidus; }

// Korean has blanks between its words, and is not broken inside them.
bool isInsideKoreanWord(char16_t last, char16_t next) {
    const auto isHangul = [](char16_t unit) { return unit >= 0xAC00 && unit <= 0xD7A3; };
    return isHangul(last) && isHangul(next);
}

// Whether every unit is a character, and every character a cluster.
bool isPlain(const std::u16string& units) { return std::all_of(units.begin(), units.end(), foundation::isPlainCharacter); }

} // namespace

// Boundaries of one kind, in the text that was set last.
struct ClusterMaker::Rules {
    std::unique_ptr<icu::BreakIterator> iterator;
    UText text = UTEXT_INITIALIZER;

    Rules(icu::BreakIterator* made, UErrorCode status) : iterator(made) {
        if (U_FAILURE(status)) commons::fatalError(std::string("ICU's data is missing: ") + u_errorName(status));
    }
    ~Rules() { utext_close(&text); }

    icu::BreakIterator& in(const std::u16string& units) {
        UErrorCode status = U_ZERO_ERROR;
        utext_openUChars(&text, units.data(), std::int64_t(units.size()), &status);
        iterator->setText(&text, status);
        if (U_FAILURE(status)) commons::fatalError("ICU cannot look for boundaries in a text");
        return *iterator;
    }
};

ClusterMaker::ClusterMaker() = default;
ClusterMaker::~ClusterMaker() = default;

ClusterMaker::Rules& ClusterMaker::characterRules() {
    if (m_characters) return *m_characters;
    UErrorCode status = U_ZERO_ERROR;
    icu::BreakIterator* characters = icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status);
    m_characters = std::make_unique<Rules>(characters, status);
    return *m_characters;
}

ClusterMaker::Rules& ClusterMaker::lineRules(std::string_view language) {
    const auto found = m_lines.find(language);
    if (found != m_lines.end()) return *found->second;
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale = icu::Locale::forLanguageTag(icu::StringPiece(language.data(), std::int32_t(language.size())), status);
    if (U_FAILURE(status)) locale = icu::Locale::getRoot();
    status = U_ZERO_ERROR;
    // A line of Japanese does not begin with a small letter, and ends with a phrase, unless the language asks for other rules.
    const std::string asked = locale.getName();
    const bool hasStrictness = asked.find("lb=") != std::string::npos, hasWordRules = asked.find("lw=") != std::string::npos;
    const bool isJapanese = std::string_view(locale.getLanguage()) == "ja";
    if (!hasStrictness) locale.setKeywordValue("lb", "strict", status);
    if (!hasStrictness && !hasWordRules && isJapanese) locale.setKeywordValue("lw", "phrase", status);
    icu::BreakIterator* lines = icu::BreakIterator::createLineInstance(locale, status);
    return *m_lines.emplace(language, std::make_unique<Rules>(lines, status)).first->second;
}

void ClusterMaker::findStarts(const RunUnits& text, std::vector<std::uint32_t>& starts) {
    const std::u16string& units = text.units();
    starts.clear();
    starts.reserve(units.size() + 1);
    if (isPlain(units)) {
        for (std::uint32_t unit = 0; unit <= units.size(); ++unit) starts.push_back(unit);
        return;
    }
    icu::BreakIterator& characters = characterRules().in(units);
    std::size_t run = 0;
    std::uint32_t at = 0;
    while (at < units.size()) {
        starts.push_back(at);
        while (text.runStart(run) <= at && run < text.runCount()) ++run;
        const std::uint32_t runEnd = text.runStart(run);
        // A character that reaches into the next run is cut.
        while (std::uint32_t(characters.current()) <= at) characters.next();
        at = std::min(std::uint32_t(characters.current()), runEnd);
    }
    starts.push_back(std::uint32_t(units.size()));
}

void ClusterMaker::makeClusters(const RunUnits& text, std::string_view language, std::vector<Cluster>& clusters,
                                std::vector<std::uint32_t>& unitStarts) {
    findStarts(text, unitStarts);
    clusters.resize(unitStarts.size() - 1);
    if (clusters.empty()) return;
    const std::u16string& units = text.units();
    // A language may ask for its own rules.
    const bool isPlain = language.find("-lb-") == std::string_view::npos && m_plainBreaks.read(units);
    icu::BreakIterator* const lines = isPlain ? nullptr : &lineRules(language).in(units);
    const auto mayEndAt = [&](std::uint32_t end) {
        if (isPlain) return m_plainBreaks.mayEndAfter(end - 1);
        while (lines->current() < std::int32_t(end) && lines->next() != icu::BreakIterator::DONE) {
        }
        return lines->current() == std::int32_t(end);
    };
    std::size_t run = 0;
    for (std::size_t index = 0; index < clusters.size(); ++index) {
        const std::uint32_t start = unitStarts[index], end = unitStarts[index + 1];
        while (text.runStart(run + 1) <= start) ++run;
        Cluster& cluster = clusters[index];
        cluster.textOffset = text.byteOffset(start);
        cluster.textLength = text.byteOffset(end) - cluster.textOffset;
        cluster.run = std::uint16_t(run);

        const char16_t last = units[end - 1];
        cluster.isWhitespace = isLineFeed(last) || isBlank(units[start]);
        if (isLineFeed(last)) {
            // A carriage return and its line feed stay together even across runs.
            const bool continues = last == u'\r' && end < units.size() && units[end] == u'\n';
            cluster.breakAfter = continues ? LineBreak::none : LineBreak::mandatory;
        } else if (end < units.size() && mayEndALine(last) && units[end] != wideSolidus && !isInsideKoreanWord(last, units[end]) &&
                   mayEndAt(end)) {
            cluster.breakAfter = LineBreak::allowed;
        }
    }
}

} // namespace proupsells::rasterbackend
