// Where a clip's bytes come from.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace proupsells::ffmpegbackend {

struct ClipFile {
    std::filesystem::path path;
    std::optional<std::string_view> embeddedBytes; // of one that is part of the program, for the rest of it
};

} // namespace proupsells::ffmpegbackend
