// What there is to read: in the file system, and inside the program.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// Everything here takes paths of both kinds (EmbeddedFiles), as MappedFile does. What cannot be looked at is not there.
PROUPSELLS_EXPORT bool isThere(const std::filesystem::path& path);
PROUPSELLS_EXPORT bool isFile(const std::filesystem::path& path);

// What is right inside the folder, sorted by name, because folders are listed in no particular order.
PROUPSELLS_EXPORT std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder);
PROUPSELLS_EXPORT std::vector<std::filesystem::path> foldersIn(const std::filesystem::path& folder);

// For small files that may change while they are read. Absent when it is no file or cannot be read to its end.
PROUPSELLS_EXPORT std::optional<std::string> contentsOf(const std::filesystem::path& file);

} // namespace proupsells::system
