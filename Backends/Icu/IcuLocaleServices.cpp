#include "Backends/Icu/IcuLocaleServices.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/locid.h>
#include <unicode/ubidi.h>
#include <unicode/utext.h>
#include <utility>

#include "Backends/Icu/PercentFormat.hpp"
#include "Platform/Commons/FatalError.hpp"
#include "Platform/Foundation/BuiltInLocaleServices.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/PlainCharacters.hpp"
#include "Platform/Foundation/PseudoLanguage.hpp"
#include "Platform/Foundation/Utf16.hpp"
#include "Platform/Foundation/Utf8.hpp"

namespace proupsells::icubackend {

namespace {

icu::StringPiece piece(std::string_view text) { return {text.data(), static_cast<std::int32_t>(text.size())}; }

// The text after `change`, which ICU would let carry ill-formed parts through. As it was where ICU fails.
template <class Change>
std::string changed(std::string_view text, Change change) {
    if (!foundation::isValidUtf8(text)) return changed(foundation::repairedUtf8(text), change);
    std::string result;
    icu::StringByteSink<std::string> sink(&result, static_cast<std::int32_t>(text.size()));
    UErrorCode status = U_ZERO_ERROR;
    change(piece(text), sink, status);
    return U_SUCCESS(status) ? result : std::string(text);
}

// Pseudo-languages write numbers by the rules of their base; the digits of the mirrored one are Latin, so that whoever reads its
// English words can read them.
std::string numbersLocale(const foundation::Locale& locale) {
    const bool isMirrored = foundation::pseudoLanguageOf(locale.languageTag()) == foundation::PseudoLanguage::mirrored;
    return isMirrored ? "ar@numbers=latn" : locale.identifier();
}

// English percents are known. For those of any other language a megabyte of ICU and its data is read.
bool needsNoData(const foundation::Locale& locale) {
    return locale.identifier() == "en" || locale.identifier() == "en_US" ||
           foundation::pseudoLanguageOf(locale.languageTag()) == foundation::PseudoLanguage::accented;
}

// Absent where only ICU knows them.
std::optional<std::vector<std::size_t>> plainGraphemeEnds(std::string_view text) {
    std::vector<std::size_t> ends;
    ends.reserve(text.size());
    for (std::size_t end = 0; end < text.size();) {
        const foundation::DecodedCharacter character = foundation::decodeUtf8(text, end);
        if (!character.isValid || !foundation::isPlainCharacter(character.value)) return std::nullopt;
        ends.push_back(end += character.length);
    }
    return ends;
}

} // namespace

struct IcuLocaleServices::Cache {
    std::unique_ptr<icu::BreakIterator> graphemes;
    UText text = UTEXT_INITIALIZER;

    // Each beside the locale that it is for; absent until one was asked for.
    std::optional<std::pair<std::string, std::unique_ptr<icu::BreakIterator>>> words;
    std::optional<std::pair<std::string, PercentFormat>> percent;

    std::unique_ptr<UBiDi, decltype(&ubidi_close)> directions{ubidi_open(), ubidi_close};

    ~Cache() { utext_close(&text); }

    void appendGraphemeEnds(std::string_view bytes, std::vector<std::size_t>& ends) {
        UErrorCode status = U_ZERO_ERROR;
        if (!graphemes) graphemes.reset(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
        if (U_FAILURE(status)) commons::fatalError(std::string("ICU's data is missing: ") + u_errorName(status));
        utext_openUTF8(&text, bytes.data(), static_cast<std::int64_t>(bytes.size()), &status);
        graphemes->setText(&text, status);
        for (auto end = graphemes->next(); end != icu::BreakIterator::DONE; end = graphemes->next())
            ends.push_back(static_cast<std::size_t>(end));
    }
};

IcuLocaleServices::IcuLocaleServices() : m_cache(std::make_unique<Cache>()) {}
IcuLocaleServices::~IcuLocaleServices() = default;

std::optional<std::string> IcuLocaleServices::percentText(double fraction, int maximumFractionDigits,
                                                          const foundation::Locale& locale) const {
    if (!std::isfinite(fraction)) return std::nullopt;
    if (needsNoData(locale)) return foundation::BuiltInLocaleServices{}.percentText(fraction, maximumFractionDigits, locale);
    auto& percent = m_cache->percent;
    if (!percent || percent->first != locale.identifier())
        percent.emplace(locale.identifier(), PercentFormat(icu::Locale(numbersLocale(locale).c_str())));
    return percent->second.text(fraction, std::clamp(maximumFractionDigits, 0, 340));
}

std::string IcuLocaleServices::upperCased(std::string_view text, const foundation::Locale& locale) const {
    return changed(text, [&](icu::StringPiece source, icu::ByteSink& sink, UErrorCode& status) {
        icu::CaseMap::utf8ToUpper(locale.identifier().c_str(), 0, source, sink, nullptr, status);
    });
}

std::string IcuLocaleServices::titleCased(std::string_view text, const foundation::Locale& locale) const {
    return changed(text, [&](icu::StringPiece source, icu::ByteSink& sink, UErrorCode& status) {
        const std::string& name = locale.identifier();
        auto& words = m_cache->words;
        if (!words || words->first != name)
            words.emplace(name, icu::BreakIterator::createWordInstance(icu::Locale(name.c_str()), status));
        icu::CaseMap::utf8ToTitle(name.c_str(), 0, words->second.get(), source, sink, nullptr, status);
    });
}

std::size_t IcuLocaleServices::graphemeCount(std::string_view text) const { return graphemeEnds(text).size(); }

std::vector<std::size_t> IcuLocaleServices::graphemeEnds(std::string_view text) const {
    if (auto ends = plainGraphemeEnds(text)) return std::move(*ends);
    std::vector<std::size_t> ends;
    m_cache->appendGraphemeEnds(text, ends);
    return ends;
}

geometry::LayoutDirection IcuLocaleServices::layoutDirection(const foundation::Locale& locale) const {
    return icu::Locale(locale.identifier().c_str()).isRightToLeft() ? geometry::LayoutDirection::rightToLeft
                                                                    : geometry::LayoutDirection::leftToRight;
}

// One paragraph at a time: in a text of several, ICU lets numbers look across a paragraph's end.
std::vector<foundation::BidiRun> IcuLocaleServices::bidiRuns(std::string_view text, geometry::LayoutDirection fallback) const {
    const bool isRightToLeft = fallback == geometry::LayoutDirection::rightToLeft;
    const UBiDiLevel direction = isRightToLeft ? UBIDI_DEFAULT_RTL : UBIDI_DEFAULT_LTR;
    const foundation::Utf16Text utf16(text);
    const std::u16string& units = utf16.units();
    UBiDi* directions = m_cache->directions.get();
    std::vector<foundation::BidiRun> runs;
    for (std::size_t first = 0; first < units.size();) {
        std::size_t end = first;
        while (end < units.size() && u_charDirection(units[end]) != U_BLOCK_SEPARATOR) ++end;
        end = std::min(end + 1, units.size());

        UErrorCode status = U_ZERO_ERROR;
        ubidi_setPara(directions, &units[first], static_cast<std::int32_t>(end - first), direction, nullptr, &status);
        const UBiDiLevel* levels = ubidi_getLevels(directions, &status);
        if (U_FAILURE(status)) commons::fatalError("ICU cannot find the directions of a text");
        const UBiDiLevel paragraphLevel = ubidi_getParaLevel(directions);
        for (std::size_t unit = first; unit < end; ++unit)
            foundation::appendBidiRun(runs, {utf16.byteOffset(unit + 1), levels[unit - first], paragraphLevel});
        first = end;
    }
    return runs;
}

} // namespace proupsells::icubackend
