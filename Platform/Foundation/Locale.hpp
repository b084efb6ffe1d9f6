// The user's language and region.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Platform/Foundation/LocaleServices.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// "de-AT" for "de_AT@currency=EUR": the language, script and region that an identifier names. Empty where it names none, as in an
// empty identifier.
PROUPSELLS_EXPORT std::string languageTagOf(std::string_view identifier);

// A locale such as "de_AT" or "en-US"; "-" and "_" mean the same.
class PROUPSELLS_EXPORT Locale {
public:
    // Of any text, also of one that names no language.
    explicit Locale(std::string identifier = "en_US");

    // As given, with "_" between its parts.
    const std::string& identifier() const { return m_identifier; }
    // See languageTagOf().
    std::string_view languageTag() const;
    // Where texts are looked for, most exact first: "de-AT", "de". A script part stays with its language: "zh-Hant-TW", "zh-Hant",
    // "zh"; without one, the region's usual script comes in between: "zh-TW", "zh-Hant", "zh". Pseudo-languages are made of
    // English: "ar-XB", "en". Empty where the identifier names no language.
    const std::vector<std::string>& languageChain() const { return m_languageChain; }

    // The locale that texts and formats follow; "en_US" until it is set.
    static const Locale& current();
    // Screens that are shown follow in the next update. The same locale again changes nothing.
    static void setCurrent(Locale locale);

    // By identifier.
    bool operator==(const Locale& other) const { return m_identifier == other.m_identifier; }

private:
    std::string m_identifier;
    std::vector<std::string> m_languageChain;
};

} // namespace proupsells::foundation
