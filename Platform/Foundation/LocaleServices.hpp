// What a backend knows about languages.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Foundation/BidiRun.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

class Locale;

// Locale data that the standard library does not have. A backend supplies it; the built-in one formats and changes case as in
// English with ASCII letters, takes every code point for a user-perceived character (CR LF for one), knows which languages and
// scripts run from right to left, and orders mixed text by a short form of the bidirectional algorithm. Texts are UTF-8;
// ill-formed parts do no harm.
class PROUPSELLS_EXPORT LocaleServices {
public:
    virtual ~LocaleServices() = default;

    // 0.45 becomes "45%" in English, rounded half to even to at most `maximumFractionDigits`; absent when it cannot be formatted.
    virtual std::optional<std::string> percentText(double fraction, int maximumFractionDigits, const Locale& locale) const = 0;
    // By the rules of the locale's language, as far as the services know them.
    virtual std::string upperCased(std::string_view text, const Locale& locale) const = 0;
    // Each word's first letter upper, the rest lower.
    virtual std::string titleCased(std::string_view text, const Locale& locale) const = 0;
    // How many user-perceived characters the text has.
    virtual std::size_t graphemeCount(std::string_view text) const = 0;
    // Byte offsets at which a user-perceived character ends, ascending; the last one is the text's length.
    virtual std::vector<std::size_t> graphemeEnds(std::string_view text) const = 0;
    // Which way screens of the locale's language run.
    virtual geometry::LayoutDirection layoutDirection(const Locale& locale) const = 0;
    // The text's stretches of one level, in logical order, the last one ending with the text. Each paragraph reads in the direction
    // of its first letter, and in `fallback` where it has none.
    virtual std::vector<BidiRun> bidiRuns(std::string_view text, geometry::LayoutDirection fallback) const = 0;

    // The services in force; the built-in ones until a backend's are set.
    static const LocaleServices& current();
    // Null restores the built-in services. Screens that are shown follow in the next update. Returns the previous ones (null for
    // the built-in ones).
    static std::shared_ptr<const LocaleServices> setCurrent(std::shared_ptr<const LocaleServices> services);
};

} // namespace proupsells::foundation
