// Translations as a device has them: a folder, or an object in the file itself.
#pragma once

#include <filesystem>
#include <vector>

#include "Apps/ProUpsellsHost/JsonCursor.hpp"

namespace proupsells::hostprogram {

// Of an object with languages, each with texts by their keys. Returns a folder as Bundle takes it.
std::filesystem::path readInlineTranslations(const JsonCursor& object);

// The files in a folder that have translations, one a language, by name.
std::vector<std::filesystem::path> translationFilesIn(const std::filesystem::path& folder);

// The same object, of all languages in a folder. Throws InputError for a file that cannot be used.
Json translationsIn(const std::filesystem::path& folder);

} // namespace proupsells::hostprogram
