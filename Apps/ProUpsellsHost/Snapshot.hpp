// A picture of a window, painted as the window itself is.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Host/WindowContent.hpp"

namespace proupsells::hostprogram {

// Writes `folder`/`name` as PNG and makes the folder when it is not there. Absent when that is impossible.
std::optional<rasterbackend::PixelSize> writeSnapshot(host::WindowContent& window, geometry::Size size, double scale,
                                                      const std::filesystem::path& folder, const std::string& name);

} // namespace proupsells::hostprogram
