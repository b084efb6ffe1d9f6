// The user's language and region.
#pragma once

#include <string>
#include <vector>

#include "Platform/Foundation/LocaleServices.hpp"

namespace proupsells::foundation {

// A locale such as "de_AT" or "en-US"; "-" and "_" mean the same.
class Locale {
public:
    explicit Locale(std::string identifier = "en_US");

    // As given, with "_" between its parts.
    const std::string& identifier() const { return m_identifier; }
    // Where texts are looked for, most exact first: "de-AT", "de". A script part stays with its language: "zh-Hant-TW", "zh-Hant",
    // "zh". What follows "@" or "." in the identifier does not count; empty for an empty identifier.
    const std::vector<std::string>& languageChain() const { return m_languageChain; }

    // The locale that texts and formats follow; "en_US" until it is set.
    static const Locale& current();
    // Screens that are shown follow in the next update. The same locale again changes nothing.
    static void setCurrent(Locale locale);

    bool operator==(const Locale& other) const { return m_identifier == other.m_identifier; }

private:
    std::string m_identifier;
    std::vector<std::string> m_languageChain;
};

} // namespace proupsells::foundation
