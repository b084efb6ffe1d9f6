// Files that stand inside another file.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace proupsells::hostprogram {

// Names with a "/" after each folder, and bytes.
using InlineFiles = std::vector<std::pair<std::string, std::string>>;

// Keeps them in a folder of their own that bundles, pictures and faces are read from like any other. Returns the folder.
std::filesystem::path keepInlineFiles(InlineFiles files);

// Nobody reads from that folder any more. Nothing happens to any other folder.
void dropInlineFiles(const std::filesystem::path& folder);

} // namespace proupsells::hostprogram
