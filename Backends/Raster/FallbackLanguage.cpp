#include "Backends/Raster/FallbackLanguage.hpp"

#include <algorithm>
#include <iterator>
#include <unicode/locid.h>

#include "Platform/Foundation/Ascii.hpp"

namespace proupsells::rasterbackend {

namespace {

// Codes that stand for several scripts, without those whose most usual language is the code's only one.
struct WritingSystem {
    std::string_view code, script;
};
constexpr WritingSystem writingSystems[] = {{"Jpan", "Hani"}, {"Kore", "Hani"}, {"Hans", "Hani"},
                                            {"Hant", "Hani"}, {"Hans", "Bopo"}, {"Hant", "Bopo"}};

icu::Locale likelyLocale(const std::string& tag) {
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale locale = icu::Locale::forLanguageTag(tag, status);
    locale.addLikelySubtags(status);
    return U_SUCCESS(status) ? locale : icu::Locale::getRoot();
}

bool isWrittenIn(const icu::Locale& locale, std::string_view script) {
    const std::string_view own = locale.getScript();
    return own == script || std::any_of(std::begin(writingSystems), std::end(writingSystems),
                                        [&](const WritingSystem& system) { return system.code == own && system.script == script; });
}

// Only Chinese has fonts that differ by the region.
std::string fontconfigName(const icu::Locale& locale) {
    const std::string language = locale.getLanguage();
    return language == "zh" ? foundation::asciiLowerCased(language + "-" + locale.getCountry()) : language;
}

} // namespace

std::string fallbackLanguage(const std::string& language, const std::string& script) {
    const bool isScriptShared = script == "Zyyy" || script == "Zinh" || script == "Zzzz";
    if (!language.empty()) {
        const icu::Locale locale = likelyLocale(language);
        if (isScriptShared || isWrittenIn(locale, script)) return fontconfigName(locale);
    }
    return isScriptShared ? std::string() : fontconfigName(likelyLocale("und-" + script));
}

} // namespace proupsells::rasterbackend
