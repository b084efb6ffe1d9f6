// Pictures in PNG files.
#pragma once

#include <optional>
#include <string_view>

#include "Backends/Raster/Picture.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

// A pixel is a point. Absent where the bytes do not begin a PNG file.
std::optional<geometry::Size> pngSize(std::string_view bytes);

// Null where the bytes are no PNG file, not all of one, or one of more than 64 million pixels.
PROUPSELLS_EXPORT Picture pngPicture(std::string_view bytes);

} // namespace proupsells::rasterbackend
