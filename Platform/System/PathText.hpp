// Paths as text. Text is UTF-8 everywhere here, whatever the system's own encoding of file names is.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace proupsells::system {

// For messages, comparison, and names taken from files. Where file names are mere bytes, these bytes.
inline std::string textOf(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

inline std::filesystem::path pathOf(std::string_view text) { return std::u8string(text.begin(), text.end()); }

} // namespace proupsells::system
