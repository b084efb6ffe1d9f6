// The clips that the store page shows of the stock libraries.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace proupsells {

// The ten clips' names in the module's bundle, in their order.
const std::vector<std::string>& libraryClipNames();

// The files of those that are there, in the same order.
std::vector<std::filesystem::path> foundLibraryClips();

// All clips twice, then the first five once more.
std::vector<std::filesystem::path> playList(const std::vector<std::filesystem::path>& found);

} // namespace proupsells
