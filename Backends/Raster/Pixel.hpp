// One pixel.
#pragma once

#include <cstdint>

namespace proupsells::rasterbackend {

// Premultiplied, 0xAARRGGBB.
using Pixel = std::uint32_t;

} // namespace proupsells::rasterbackend
