// Reading a JSON file, strictly.
#pragma once

#include <cstdint>
#include <filesystem>

#include "Apps/ProUpsellsHost/Json.hpp"

namespace proupsells::hostprogram {

inline constexpr std::uintmax_t maximumFileSize = 64u << 20; // bytes

// The file's value. Throws InputError for a folder, a file that cannot be read, is empty or too large, is not UTF-8 or not JSON,
// holds a key twice in one object, or nests deeper than 100 levels.
Json readJsonFile(const std::filesystem::path& file);

} // namespace proupsells::hostprogram
