// The user's language and region, and what a backend knows about them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"

namespace foundation {

// A locale such as "de_AT" or "en-US"; "-" and "_" mean the same.
class Locale {
public:
    explicit Locale(std::string identifier = "en_US");

    // As given, with "_" between its parts.
    const std::string& identifier() const { return m_identifier; }
    // Where texts are looked for, most exact first: "de-AT", "de". A script part stays with its language: "zh-Hant-TW", "zh-Hant", "zh".
    const std::vector<std::string>& languageChain() const { return m_languageChain; }

    // The locale that texts and formats follow from now on; "en_US" until it is set.
    static const Locale& current();
    static void setCurrent(Locale locale);

    bool operator==(const Locale& other) const { return m_identifier == other.m_identifier; }

private:
    std::string m_identifier;
    std::vector<std::string> m_languageChain;
};

// Locale data that the standard library does not have. A backend supplies it; the built-in one knows English and ASCII.
class LocaleServices {
public:
    virtual ~LocaleServices() = default;

    // 0.45 becomes "45%" in English, rounded half to even to at most `maximumFractionDigits`; absent when it cannot be formatted.
    virtual std::optional<std::string> percentText(double fraction, int maximumFractionDigits, const Locale& locale) const = 0;
    virtual std::string upperCased(std::string_view text, const Locale& locale) const = 0;
    // Each word's first letter upper, the rest lower.
    virtual std::string titleCased(std::string_view text, const Locale& locale) const = 0;
    // User-perceived characters.
    virtual std::size_t graphemeCount(std::string_view text) const = 0;
    // Byte offsets at which a user-perceived character ends, ascending; the last one is the text's length.
    virtual std::vector<std::size_t> graphemeEnds(std::string_view text) const = 0;
    virtual geometry::LayoutDirection layoutDirection(const Locale& locale) const = 0;

    static const LocaleServices& current();
    // Null restores the built-in services. Returns the previous ones.
    static std::shared_ptr<const LocaleServices> setCurrent(std::shared_ptr<const LocaleServices> services);
};

} // namespace foundation
