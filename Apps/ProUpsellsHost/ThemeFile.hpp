// A theme in a file.
#pragma once

#include <filesystem>

#include "Apps/ProUpsellsHost/JsonCursor.hpp"
#include "ProUpsells/Theme.hpp"

namespace proupsells::hostprogram {

// Files that it names count from its own folder; whether they are there is the module's business. Throws InputError, also for a
// theme that the module would refuse.
Theme readThemeFile(const std::filesystem::path& file);

// What stands inside another file may have its own files in it: names and Base64 under "files".
enum class ThemePlace { fileOfItsOwn, insideAnotherFile };

// The same of a value. Files count from `folder`, unless they are in the value. Throws InputError.
Theme readTheme(const JsonCursor& value, const std::filesystem::path& folder, ThemePlace place);

// The theme with its files in it. Throws InputError for one that cannot be read.
Json toJson(const Theme& theme);

} // namespace proupsells::hostprogram
