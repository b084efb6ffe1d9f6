// Files that are there whole, or not at all.
#pragma once

#include <filesystem>
#include <string_view>

namespace proupsells::hostprogram {

// Throws InputError where a file of that name cannot be written. A file that is there stays as it is.
void expectWritable(const std::filesystem::path& file);

// Takes the place of what was there, in one step. Throws InputError; what was there stays then.
void writeWhole(const std::filesystem::path& file, std::string_view bytes);

} // namespace proupsells::hostprogram
