// Files that are there whole, or not at all.
#pragma once

#include <filesystem>
#include <string_view>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// Beside the file, where it is written before it takes the file's place.
PROUPSELLS_EXPORT std::filesystem::path draftOf(const std::filesystem::path& file);

// Takes the place of what was there, in one step: whoever looks sees the old file or the new one, never half of it. Follows no link
// that has the name of the file or of its draft. False where that cannot be done; what was there stays then, and no draft is left.
PROUPSELLS_EXPORT bool writeWhole(const std::filesystem::path& file, std::string_view bytes);

} // namespace proupsells::system
