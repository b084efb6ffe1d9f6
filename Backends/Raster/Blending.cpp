#include "Backends/Raster/Blending.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>

// One function for every processor, and one for those with longer vectors; the loader takes its pick. Whole numbers come out the
// same either way.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define PROUPSELLS_VECTORIZED __attribute__((target_clones("avx2", "default")))
#else
#define PROUPSELLS_VECTORIZED
#endif

namespace proupsells::rasterbackend {

namespace {

// Into each of the versions: a call for each pixel would keep the loops from becoming vector code.
#define PROUPSELLS_INSIDE [[gnu::always_inline]] inline

PROUPSELLS_INSIDE Pixel over(Pixel top, Pixel below) { return top + scaled(below, 255u - alphaOf(top)); }

// Two channels of an opaque colour over what is there, by a share from 0 to 255.
constexpr Pixel mixedPair(Pixel top, Pixel below, std::uint32_t share) {
    const Pixel sum = top * share + below * (255 - share) + 0x00800080;
    return ((sum + ((sum >> 8) & 0x00FF00FF)) >> 8) & 0x00FF00FF;
}

// Most pictures are opaque or empty nearly everywhere, and by the group that costs less than blending.
constexpr std::size_t group = 16;

PROUPSELLS_INSIDE void blendGroup(Pixel* to, const Pixel* from) {
    Pixel common = 0xFFFFFFFF, any = 0;
    for (std::size_t index = 0; index < group; ++index) {
        common &= from[index];
        any |= from[index];
    }
    if (alphaOf(common) == 255) {
        std::memcpy(to, from, group * sizeof(Pixel));
    } else if (any != 0) {
        for (std::size_t index = 0; index < group; ++index) to[index] = over(from[index], to[index]);
    }
}

} // namespace

std::uint8_t opacityFactor(float opacity) {
    return opacity >= 1 ? 255 : opacity > 0 ? std::uint8_t(std::lround(opacity * 255)) : 0;
}

Pixel premultiplied(graphics::RGBA color, std::uint8_t opacity) {
    const std::uint8_t alpha = scaledByte(color.alpha, opacity);
    const Pixel opaque = 0xFF000000u | Pixel(color.red) << 16 | Pixel(color.green) << 8 | color.blue;
    return scaled(opaque, alpha);
}

PROUPSELLS_VECTORIZED void blendColor(Pixel* to, std::size_t count, Pixel color, std::uint8_t coverage) {
    const Pixel top = coverage == 255 ? color : scaled(color, coverage);
    const std::uint32_t rest = 255u - alphaOf(top);
    if (rest == 0) {
        std::fill_n(to, count, top);
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
    if (opacity == 255) {
        for (; count >= group; to += group, from += group, count -= group) blendGroup(to, from);
        for (std::size_t index = 0; index < count; ++index) to[index] = over(from[index], to[index]);
    } else {
        for (std::size_t index = 0; index < count; ++index) to[index] = over(scaled(from[index], opacity), to[index]);
    }
}

} // namespace proupsells::rasterbackend
