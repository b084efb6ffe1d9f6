// Making picture files.
#pragma once

#include <span>
#include <string>

#include "Backends/Raster/Picture.hpp"
#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::rasterbackend {

// A whole picture file of one picture at several sizes in pixels, at least one. The natural size is in points. The same bytes for
// the same pixels.
std::string pictureFileBytes(geometry::Size naturalSize, std::span<const Picture> sizes);

} // namespace proupsells::rasterbackend
