// What ICU's data says about the numbers of a language.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <unicode/localpointer.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/ures.h>
#include <vector>

namespace proupsells::icubackend {

// Read from ICU's resource bundles. ICU's own library of formats would take 2 MB more, of which we want nothing but percents.
class NumberElements {
public:
    // A language that ICU does not know has the root's.
    explicit NumberElements(const icu::Locale& locale);

    // The name of the digits: "latn", "arab".
    const std::string& numberingSystem() const { return m_system; }
    // A symbol ("decimal", "percentSign") or a pattern ("percentFormat") of that numbering system, where it has none of its own
    // that of the Latin one. Absent where ICU's data has none.
    std::optional<icu::UnicodeString> symbol(const char* name) const { return ofSystem("symbols", name); }
    std::optional<icu::UnicodeString> pattern(const char* name) const { return ofSystem("patterns", name); }
    // An element that all numbering systems share.
    std::optional<icu::UnicodeString> element(const char* name) const;
    // The ten digits; absent where numbers are written with ASCII's.
    std::optional<icu::UnicodeString> digits() const;

private:
    using BundleRef = icu::LocalUResourceBundlePointer;
    using Keys = std::initializer_list<const char*>;

    static std::optional<icu::UnicodeString> textAt(const BundleRef& bundle, Keys keys);
    std::optional<icu::UnicodeString> ofSystem(const char* table, const char* name) const;
    std::string chosenSystem(const icu::Locale& locale) const;

    std::vector<BundleRef> m_bundles; // from the locale's own to its language's, without the root
    BundleRef m_root;
    std::string m_system;
};

} // namespace proupsells::icubackend
