// A theme in a file.
#pragma once

#include <filesystem>
#include <vector>

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

// The pictures and faces that it names, each once.
std::vector<std::filesystem::path> filesNamedBy(const Theme& theme);

// The same theme with its files as they are now, kept so that they can be used whatever becomes of them. One that cannot be read
// stays where it is, for the module to tell of.
Theme withKeptFiles(const Theme& theme);

// The theme with its files in it. Throws InputError for one that cannot be read.
Json toJson(const Theme& theme);

} // namespace proupsells::hostprogram
