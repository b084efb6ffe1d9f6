// The beginning of a picture file (*.picture): one picture, ready to show at several sizes in pixels.
//
//   offset  bytes
//        0      8  signature: 93 "Pict" 0D 0A 02 (hexadecimal; the last byte is the version)
//        8    4+4  natural width and height in thousandths of a point
//       16      4  number of sizes, 1 to 64
//       20     16  for each size: width and height in pixels, where its pixels begin in the file, how many bytes they take
//
// All numbers are whole, 32 bits, little-endian. Whoever paints knows how the pixels are stored (Backends/Raster/PictureCodec).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

struct PROUPSELLS_EXPORT PictureHeader {
    // Without the dot.
    static constexpr std::string_view fileExtension = "picture";
    static constexpr std::uint32_t maximumSizeCount = 64;
    static constexpr std::uint32_t maximumLength_px = 32767;

    struct Variant {
        std::uint32_t width_px = 0;
        std::uint32_t height_px = 0;
        std::uint32_t offset = 0;
        std::uint32_t byteCount = 0;

        bool operator==(const Variant&) const = default;
    };

    geometry::Size naturalSize; // in points
    std::vector<Variant> variants;

    bool operator==(const PictureHeader&) const = default;

    static constexpr std::size_t byteCount(std::size_t variantCount) { return 20 + 16 * variantCount; }

    // From a file of `fileSize` bytes that begins with these. Absent where it is no picture file, or one of which something is
    // missing.
    static std::optional<PictureHeader> parse(std::string_view beginning, std::uint64_t fileSize);
    std::string bytes() const;
};

} // namespace proupsells::graphics
