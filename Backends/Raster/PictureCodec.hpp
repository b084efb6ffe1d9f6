// Pixels as picture files store them: in tiles, each of them compressed for itself.
//
//   offset  bytes
//        0    4+4  width and height of a tile; those at the right and at the bottom may be smaller
//        8      4  1 where every pixel is opaque, else 0
//       12      4  for each tile, row by row: where it ends, counted from the first one's beginning
//
// The tiles follow. All numbers are whole, 32 bits, little-endian.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Backends/Raster/Picture.hpp"
#include "Backends/Raster/TileGrid.hpp"

namespace proupsells::rasterbackend {

// The same bytes for the same pixels.
std::string compressed(const Picture& picture);

// Null where these are not the bytes of a picture of this size, or not all of them.
Picture decompressed(std::string_view bytes, int width, int height);

// Compressed pixels of which a part can be had.
class CompressedPicture {
public:
    // Absent where these cannot be the bytes of a picture of this size. They must stay as long as this lives.
    static std::optional<CompressedPicture> parse(std::string_view bytes, PixelSize size);

    bool isOpaque() const { return m_isOpaque; }
    const TileGrid& tiles() const { return m_tiles; }
    // Writes a tile's rows, without gaps. False where its bytes are broken; what was written then means nothing.
    bool decompress(int tile, Pixel* to) const;

private:
    TileGrid m_tiles;
    bool m_isOpaque = false;
    std::vector<std::string_view> m_bytes; // of each tile
};

} // namespace proupsells::rasterbackend
