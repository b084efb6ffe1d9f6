// Memory to paint into.
#pragma once

#include <cstddef>
#include <cstdint>

namespace proupsells::rasterbackend {

// How the four bytes of a pixel lie in memory. All pictures of a window are opaque: every alpha is 255.
enum class PixelFormat : std::uint8_t {
    bgra, // blue first; on a little-endian machine the same as a 32-bit number 0xAARRGGBB
    rgba, // red first
    rgb32 // as bgra; the fourth byte means nothing to whoever reads it
};

// Belongs to whoever hands it over. `bytesPerRow` is at least four times the width.
struct PixelBuffer {
    void* pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t bytesPerRow = 0;
    PixelFormat format = PixelFormat::bgra;

    bool operator==(const PixelBuffer&) const = default;
};

} // namespace proupsells::rasterbackend
