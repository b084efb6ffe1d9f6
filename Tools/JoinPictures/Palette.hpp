// Few colours that stand for many.
#pragma once

#include <cstdint>
#include <vector>

namespace proupsells::joinpictures {

using Colour = std::uint32_t; // 0xRRGGBB

// At most 256 colours for the pixels. The most frequent ones, which plain areas have, are among them as they are; the others share
// what is left, so that none is far from its own.
std::vector<Colour> paletteOf(const std::vector<Colour>& pixels);

// For each pixel the place of the nearest colour in the palette.
std::vector<std::uint8_t> placesIn(const std::vector<Colour>& palette, const std::vector<Colour>& pixels);

} // namespace proupsells::joinpictures
