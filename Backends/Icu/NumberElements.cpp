#include "Backends/Icu/NumberElements.hpp"

#include <algorithm>
#include <string_view>
#include <unicode/bytestream.h>
#include <utility>

namespace proupsells::icubackend {

namespace {

using BundleRef = icu::LocalUResourceBundlePointer;

constexpr const char *rootName = "root", *latin = "latn";

std::string ascii(const icu::UnicodeString& text) {
    std::string result;
    return text.toUTF8String(result);
}

// Null where ICU has no such bundle.
BundleRef opened(const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    BundleRef bundle(ures_openDirect(nullptr, name, &status));
    return U_SUCCESS(status) ? std::move(bundle) : BundleRef();
}

// The name of the bundle that ICU takes for the locale. Empty for the root's and where it knows none.
std::string bundleName(const std::string& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const BundleRef bundle(ures_open(nullptr, locale.c_str(), &status));
    if (U_FAILURE(status) || status == U_USING_DEFAULT_WARNING) return {};
    const std::string name = ures_getLocaleByType(bundle.getAlias(), ULOC_VALID_LOCALE, &status);
    return name == rootName ? std::string() : name;
}

BundleRef child(const UResourceBundle* bundle, const char* key) {
    UErrorCode status = U_ZERO_ERROR;
    BundleRef found(ures_getByKey(bundle, key, nullptr, &status));
    return U_SUCCESS(status) ? std::move(found) : BundleRef();
}

std::optional<icu::UnicodeString> textOf(const BundleRef& resource) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t length = 0;
    const char16_t* text = ures_getString(resource.getAlias(), &length, &status);
    if (U_FAILURE(status)) return std::nullopt;
    return icu::UnicodeString(text, length);
}

// Where a bundle says nothing, the one of this name is asked; then the root, whose name is empty here.
std::string parentName(const std::string& name, const BundleRef& bundle) {
    const BundleRef parent = child(bundle.getAlias(), "%%Parent");
    if (const auto named = parent.isValid() ? textOf(parent) : std::nullopt) return bundleName(ascii(*named));
    const std::size_t end = name.rfind('_');
    return end == std::string::npos ? std::string() : bundleName(name.substr(0, end));
}

} // namespace

NumberElements::NumberElements(const icu::Locale& locale) : m_root(opened(rootName)) {
    for (std::string name = locale.isBogus() ? "" : bundleName(locale.getBaseName()); !name.empty();) {
        m_bundles.push_back(opened(name.c_str()));
        name = parentName(name, m_bundles.back());
    }
    m_system = chosenSystem(locale);
}

std::optional<icu::UnicodeString> NumberElements::textAt(const BundleRef& bundle, Keys keys) {
    BundleRef found = child(bundle.getAlias(), "NumberElements");
    for (const char* key : keys)
        if (found.isValid()) found = child(found.getAlias(), key);
    return found.isValid() ? textOf(found) : std::nullopt;
}

std::optional<icu::UnicodeString> NumberElements::element(const char* name) const {
    for (const BundleRef& bundle : m_bundles)
        if (auto text = textAt(bundle, {name})) return text;
    return textAt(m_root, {name});
}

std::optional<icu::UnicodeString> NumberElements::ofSystem(const char* table, const char* name) const {
    for (const BundleRef& bundle : m_bundles)
        if (auto text = textAt(bundle, {m_system.c_str(), table, name})) return text;
    // The root leads most numbering systems back to the language's Latin one, but ends up at its own Latin one when asked directly.
    const auto latinRoot = textAt(m_root, {latin, table, name});
    if (auto text = textAt(m_root, {m_system.c_str(), table, name}); text && text != latinRoot) return text;
    for (const BundleRef& bundle : m_bundles)
        if (auto text = textAt(bundle, {latin, table, name})) return text;
    return latinRoot;
}

std::optional<icu::UnicodeString> NumberElements::digits() const {
    if (m_system == latin) return std::nullopt;
    const BundleRef systems = opened("numberingSystems");
    BundleRef system = systems.isValid() ? child(systems.getAlias(), "numberingSystems") : BundleRef();
    if (system.isValid()) system = child(system.getAlias(), m_system.c_str());
    const BundleRef description = system.isValid() ? child(system.getAlias(), "desc") : BundleRef();
    auto digits = description.isValid() ? textOf(description) : std::nullopt;
    // Systems without digits have the name of their rules there.
    return digits && digits->countChar32() == 10 && digits->charAt(0) != u'%' ? digits : std::nullopt;
}

// The one that the locale's name asks for, else the language's usual one.
std::string NumberElements::chosenSystem(const icu::Locale& locale) const {
    UErrorCode status = U_ZERO_ERROR;
    std::string wanted;
    icu::StringByteSink<std::string> sink(&wanted);
    locale.getKeywordValue("numbers", sink, status);
    if (U_FAILURE(status) || wanted.empty()) wanted = "default";
    constexpr std::string_view kinds[] = {"default", "native", "traditional", "finance"};
    while (std::find(std::begin(kinds), std::end(kinds), wanted) != std::end(kinds)) {
        if (const auto name = element(wanted.c_str())) return ascii(*name);
        if (wanted == "default") return latin;
        wanted = wanted == "traditional" ? "native" : "default";
    }
    return wanted;
}

} // namespace proupsells::icubackend
