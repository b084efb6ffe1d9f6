// Files that stand inside another file.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace proupsells::hostprogram {

// Names with a "/" after each folder, and bytes.
using InlineFiles = std::vector<std::pair<std::string, std::string>>;

// Keeps them until the program ends, in a folder of their own that bundles, pictures and faces are read from like any other.
// Returns the folder.
std::filesystem::path keepInlineFiles(InlineFiles files);

} // namespace proupsells::hostprogram
