// Pixels as picture files store them.
#pragma once

#include <string>
#include <string_view>

#include "Backends/Raster/Picture.hpp"

namespace proupsells::rasterbackend {

// The same bytes for the same pixels.
std::string compressed(const Picture& picture);

// Null where these are not the bytes of a picture of this size, or not all of them.
Picture decompressed(std::string_view bytes, int width, int height);

} // namespace proupsells::rasterbackend
