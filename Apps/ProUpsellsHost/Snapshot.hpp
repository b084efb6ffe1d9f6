// A picture of a window, painted as the window itself is.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Platform/Host/WindowContent.hpp"

namespace proupsells::hostprogram {

struct PixelSize {
    int width = 0;
    int height = 0;
};

// Writes `folder`/`name` as PNG and makes the folder when it is not there. Absent when that is impossible.
std::optional<PixelSize> writeSnapshot(host::WindowContent& window, geometry::Size size, double scale,
                                       const std::filesystem::path& folder, const std::string& name);

} // namespace proupsells::hostprogram
