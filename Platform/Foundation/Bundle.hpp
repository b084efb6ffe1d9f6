// A folder of resources and of translations.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

class PROUPSELLS_EXPORT Bundle {
public:
    // An absent folder, like an empty path, is an empty bundle.
    explicit Bundle(std::filesystem::path folder);
    ~Bundle();
    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;

    // As given.
    const std::filesystem::path& folder() const { return m_folder; }

    // The file `name`.`extension` in the bundle's folder or one folder below it (by name), if there is one. An empty extension
    // means `name`.
    std::optional<std::filesystem::path> pathForResource(std::string_view name, std::string_view extension) const;

    // The translation of `key` from <language>.lproj/Localizable.strings, by the current locale's language chain; the key itself
    // when there is none. In a pseudo-language (en-XA, ar-XB) the English text is made longer or mirrored. Folder names match in
    // any case, with "-" or "_". Tables are read once; a broken one costs one log line and counts as empty. Main thread only.
    std::string localizedString(const std::string& key) const;

    // The host application's bundle: where texts come from. Empty until it is set.
    static const Bundle& main();
    // Screens that are shown follow in the next update. The same folder again changes nothing. Ends the main bundle that was there
    // before.
    static void setMain(std::filesystem::path folder);

private:
    struct Tables;
    const std::string& translation(const std::string& key) const;

    std::filesystem::path m_folder;
    std::unique_ptr<Tables> m_tables;
};

// The text for `key` in the host application's bundle. The comment is for translators only. In our own sources both are literals,
// of which the build makes the list of all texts.
PROUPSELLS_EXPORT std::string localizedString(const std::string& key, std::string_view comment = {});

// The key as it is, put on that list: for one that is looked up later, by Bundle::localizedString().
consteval const char* localizable(const char* key, std::string_view = {}) { return key; }

} // namespace proupsells::foundation
