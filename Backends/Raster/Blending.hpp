// Rows of pixels painted over one another. All pixels are premultiplied 32-bit ARGB; every product is rounded exactly.
#pragma once

#include <cstddef>
#include <cstdint>

#include "Backends/Raster/Pixel.hpp"
#include "Platform/Graphics/Color.hpp"

namespace proupsells::rasterbackend {

constexpr std::uint8_t alphaOf(Pixel pixel) { return std::uint8_t(pixel >> 24); }

// Two of a pixel's four channels at once: each times a factor from 0 to 255, divided by 255.
constexpr Pixel scaledPair(Pixel pair, std::uint32_t factor) {
    const Pixel product = pair * factor + 0x00800080;
    return ((product + ((product >> 8) & 0x00FF00FF)) >> 8) & 0x00FF00FF;
}

constexpr Pixel scaled(Pixel pixel, std::uint32_t factor) {
    return scaledPair(pixel & 0x00FF00FF, factor) | scaledPair((pixel >> 8) & 0x00FF00FF, factor) << 8;
}

constexpr std::uint8_t scaledByte(std::uint32_t value, std::uint32_t factor) {
    const std::uint32_t product = value * factor + 128;
    return std::uint8_t((product + (product >> 8)) >> 8);
}

// Opacity from 0 to 1 as a factor from 0 to 255.
std::uint8_t opacityFactor(float opacity);
Pixel premultiplied(graphics::RGBA color, std::uint8_t opacity);

// Pixels times a coverage that all of them share, over what is there.
void blendColor(Pixel* to, std::size_t count, Pixel color, std::uint8_t coverage);
// Likewise, each with a coverage of its own.
void blendColor(Pixel* to, std::size_t count, Pixel color, const std::uint8_t* coverages);
void blendPixels(Pixel* to, std::size_t count, const Pixel* from, std::uint8_t opacity);
// Likewise, over one colour instead of what is there.
void blendPixels(Pixel* to, std::size_t count, const Pixel* from, std::uint8_t opacity, Pixel ground);

} // namespace proupsells::rasterbackend
