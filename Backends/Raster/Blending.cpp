#include "Backends/Raster/Blending.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

namespace {

// What pixels are blended with becomes part of each vectorized version: a call for each pixel would keep the loops from becoming
// vector code.

PROUPSELLS_ALWAYS_INLINE Pixel over(Pixel top, Pixel below) { return top + scaled(below, 255u - alphaOf(top)); }

// Two channels of an opaque colour over what is there, by a share from 0 to 255.
constexpr Pixel mixedPair(Pixel top, Pixel below, std::uint32_t share) {
    const Pixel sum = top * share + below * (255 - share) + 0x00800080;
    return ((sum + ((sum >> 8) & 0x00FF00FF)) >> 8) & 0x00FF00FF;
}

// Bytes that are all the same are written without reading what was there.
PROUPSELLS_ALWAYS_INLINE void fill(Pixel* to, std::size_t count, Pixel color) {
    if (color == (color & 0xFF) * 0x01010101u)
        std::memset(to, int(color & 0xFF), count * sizeof(Pixel));
    else
        std::fill_n(to, count, color);
}

// What lies below a row of pixels: what is there already, or one colour that has not been painted yet.
struct Shown {
    const Pixel* pixels;
    PROUPSELLS_ALWAYS_INLINE Pixel operator[](std::size_t index) const { return pixels[index]; }
    PROUPSELLS_ALWAYS_INLINE Shown from(std::size_t index) const { return {pixels + index}; }
    PROUPSELLS_ALWAYS_INLINE void copyTo(Pixel*, std::size_t) const {}
};
struct Ground {
    Pixel color;
    PROUPSELLS_ALWAYS_INLINE Pixel operator[](std::size_t) const { return color; }
    PROUPSELLS_ALWAYS_INLINE Ground from(std::size_t) const { return *this; }
    PROUPSELLS_ALWAYS_INLINE void copyTo(Pixel* to, std::size_t count) const { std::fill_n(to, count, color); }
};

// Most pictures are opaque or empty nearly everywhere, and by the group that costs less than blending.
constexpr std::size_t group = 16;

template <class Below>
PROUPSELLS_ALWAYS_INLINE void blendGroup(Pixel* to, const Pixel* from, Below below) {
    // Two pixels in each.
    std::uint64_t pairs[group / 2];
    std::memcpy(pairs, from, sizeof pairs);
    std::uint64_t common = pairs[0], any = pairs[0];
    for (const std::uint64_t pair : pairs) {
        common &= pair;
        any |= pair;
    }
    constexpr std::uint64_t alphas = 0xFF000000'FF000000;
    if ((common & alphas) == alphas)
        std::memcpy(to, from, group * sizeof(Pixel));
    else if (any == 0)
        below.copyTo(to, group);
    else
        for (std::size_t index = 0; index < group; ++index) to[index] = over(from[index], below[index]);
}

template <class Below>
PROUPSELLS_ALWAYS_INLINE void blendRow(Pixel* to, std::size_t count, const Pixel* from, std::uint8_t opacity, Below below) {
    std::size_t index = 0;
    if (opacity == 255)
        for (; index + group <= count; index += group) blendGroup(to + index, from + index, below.from(index));
    for (; index < count; ++index) to[index] = over(scaled(from[index], opacity), below[index]);
}

} // namespace

// Of what is not a number, max returns its first argument.
std::uint8_t opacityFactor(float opacity) { return std::uint8_t(std::lround(std::min(std::max(0.0f, opacity), 1.0f) * 255)); }

Pixel premultiplied(graphics::RGBA color, std::uint8_t opacity) {
    const std::uint8_t alpha = scaledByte(color.alpha, opacity);
    const Pixel opaque = 0xFF000000u | Pixel(color.red) << 16 | Pixel(color.green) << 8 | color.blue;
    return scaled(opaque, alpha);
}

PROUPSELLS_VECTORIZED void blendColor(Pixel* to, std::size_t count, Pixel color, std::uint8_t coverage) {
    const Pixel top = coverage == 255 ? color : scaled(color, coverage);
    const std::uint32_t rest = 255u - alphaOf(top);
    if (rest == 0) {
        fill(to, count, top);
    } else if (rest < 255) {
        for (std::size_t index = 0; index < count; ++index) to[index] = top + scaled(to[index], rest);
    }
}

// The loops have no branches, so that compilers turn them into vector code.
PROUPSELLS_VECTORIZED void blendColor(Pixel* to, std::size_t count, Pixel color, const std::uint8_t* coverages) {
    if (alphaOf(color) != 255) {
        for (std::size_t index = 0; index < count; ++index) to[index] = over(scaled(color, coverages[index]), to[index]);
        return;
    }
    const Pixel low = color & 0x00FF00FF, high = (color >> 8) & 0x00FF00FF;
    for (std::size_t index = 0; index < count; ++index) {
        const std::uint32_t coverage = coverages[index];
        to[index] = mixedPair(low, to[index] & 0x00FF00FF, coverage) | mixedPair(high, (to[index] >> 8) & 0x00FF00FF, coverage)
                                                                           << 8;
    }
}

PROUPSELLS_VECTORIZED void blendPixels(Pixel* to, std::size_t count, const Pixel* from, std::uint8_t opacity) {
    blendRow(to, count, from, opacity, Shown{to});
}

PROUPSELLS_VECTORIZED void blendPixels(Pixel* to, std::size_t count, const Pixel* from, std::uint8_t opacity, Pixel ground) {
    blendRow(to, count, from, opacity, Ground{ground});
}

} // namespace proupsells::rasterbackend
