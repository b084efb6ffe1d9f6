#include "Platform/Foundation/Locale.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/Foundation/PseudoLanguage.hpp"
#include "Platform/RunLoop/MainActor.hpp"

namespace proupsells::foundation {

namespace {

// What "zh-TW" leaves unsaid: the script of Chinese in the region, by Unicode CLDR's likely subtags. Empty for other languages, and
// where the tag names a script.
std::string likelyChinese(std::string_view tag) {
    const std::string lowerCased = asciiLowerCased(std::string(tag));
    if (lowerCased == "zh") return "zh-Hans";
    constexpr std::size_t regionAt = 3, regionLength = 2;
    if (!lowerCased.starts_with("zh-") || lowerCased.find('-', regionAt) != std::string::npos) return {};
    const std::string_view region = std::string_view(lowerCased).substr(regionAt);
    if (region.size() != regionLength) return {};
    return region == "tw" || region == "hk" || region == "mo" ? "zh-Hant" : "zh-Hans";
}

std::vector<std::string> chainOf(std::string tag) {
    if (pseudoLanguageOf(tag)) return {std::move(tag), "en"};
    std::vector<std::string> chain;
    const std::string likely = likelyChinese(tag);
    while (!tag.empty()) {
        chain.push_back(tag);
        const std::size_t lastPart = tag.rfind('-');
        tag.resize(lastPart == std::string::npos ? 0 : lastPart);
    }
    if (!likely.empty()) chain.insert(chain.size() == 1 ? chain.end() : chain.end() - 1, likely);
    return chain;
}

Locale& currentLocale() {
    static Locale locale;
    return locale;
}

} // namespace

std::string languageTagOf(std::string_view identifier) {
    std::string tag;
    for (const char c : identifier.substr(0, identifier.find_first_of("@."))) {
        const bool isSeparator = c == '_' || c == '-';
        if (!isSeparator)
            tag += c;
        else if (!tag.empty() && tag.back() != '-')
            tag += '-';
    }
    if (!tag.empty() && tag.back() == '-') tag.pop_back();
    return tag;
}

Locale::Locale(std::string identifier) : m_identifier(std::move(identifier)) {
    std::replace(m_identifier.begin(), m_identifier.end(), '-', '_');
    m_languageChain = chainOf(languageTagOf(m_identifier));
}

std::string_view Locale::languageTag() const {
    return m_languageChain.empty() ? std::string_view() : std::string_view(m_languageChain.front());
}

const Locale& Locale::current() { return currentLocale(); }

void Locale::setCurrent(Locale locale) {
    runloop::MainActor::assertIsolated();
    if (currentLocale() == locale) return;
    currentLocale() = std::move(locale);
    LanguageChanges::add();
}

} // namespace proupsells::foundation
