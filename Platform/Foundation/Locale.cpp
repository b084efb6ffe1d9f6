#include "Platform/Foundation/Locale.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

#include "Platform/Foundation/LanguageChanges.hpp"
#include "Platform/RunLoop/MainActor.hpp"

namespace proupsells::foundation {

namespace {

std::vector<std::string> chainOf(std::string_view identifier) {
    std::string language;
    std::vector<std::string> chain;
    identifier = identifier.substr(0, identifier.find_first_of("@."));
    while (!identifier.empty()) {
        const std::string_view part = identifier.substr(0, identifier.find('_'));
        identifier.remove_prefix(std::min(identifier.size(), part.size() + 1));
        if (part.empty()) continue;
        if (!language.empty()) language += '-';
        chain.push_back(language += part);
    }
    std::reverse(chain.begin(), chain.end());
    return chain;
}

Locale& currentLocale() {
    static Locale locale;
    return locale;
}

} // namespace

Locale::Locale(std::string identifier) : m_identifier(std::move(identifier)) {
    std::replace(m_identifier.begin(), m_identifier.end(), '-', '_');
    m_languageChain = chainOf(m_identifier);
}

const Locale& Locale::current() { return currentLocale(); }

void Locale::setCurrent(Locale locale) {
    runloop::MainActor::assertIsolated();
    if (currentLocale() == locale) return;
    currentLocale() = std::move(locale);
    LanguageChanges::add();
}

} // namespace proupsells::foundation
