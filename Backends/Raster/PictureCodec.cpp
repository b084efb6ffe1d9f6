#include "Backends/Raster/PictureCodec.hpp"

#include <lz4.h>
#include <lz4hc.h>

#include "Platform/Foundation/LittleEndian.hpp"

namespace proupsells::rasterbackend {

namespace {

using foundation::appendNumber;
using foundation::takeNumber;

// 64 KB, which stay in the processor's cache until they are painted.
constexpr PixelSize tileSize{256, 64};
// LZ4 makes no more of a byte; what claims more is broken, and costs no memory.
constexpr std::size_t maximumGain = 255;
constexpr std::size_t headerBytes = 12;

std::string compressedTile(const Picture& picture, const PixelRect& rect) {
    std::vector<Pixel> pixels;
    for (int y = rect.top; y < rect.bottom; ++y)
        pixels.insert(pixels.end(), picture.row(y) + rect.left, picture.row(y) + rect.right);
    const int size = int(pixels.size() * sizeof(Pixel));
    std::string bytes(std::size_t(LZ4_compressBound(size)), '\0');
    const int written =
        LZ4_compress_HC(reinterpret_cast<const char*>(pixels.data()), bytes.data(), size, int(bytes.size()), LZ4HC_CLEVEL_DEFAULT);
    bytes.resize(std::size_t(written));
    return bytes;
}

} // namespace

std::string compressed(const Picture& picture) {
    const TileGrid tiles{{picture.width(), picture.height()}, tileSize};
    std::string bytes, pixels;
    for (const int length : {tileSize.width, tileSize.height, int(picture.isOpaque())}) appendNumber(bytes, std::uint32_t(length));
    for (int tile = 0; tile < tiles.count(); ++tile) {
        pixels += compressedTile(picture, tiles.rect(tile));
        appendNumber(bytes, std::uint32_t(pixels.size()));
    }
    return bytes + pixels;
}

Picture decompressed(std::string_view bytes, int width, int height) {
    const auto compressed = CompressedPicture::parse(bytes, {width, height});
    if (!compressed) return {};
    Picture picture = Picture::unwritten(width, height);
    std::vector<Pixel> pixels;
    for (int tile = 0; tile < compressed->tiles().count(); ++tile) {
        const PixelRect rect = compressed->tiles().rect(tile);
        pixels.resize(compressed->tiles().pixelCount(tile));
        if (!compressed->decompress(tile, pixels.data())) return {};
        for (int y = rect.top; y < rect.bottom; ++y)
            std::copy_n(pixels.data() + std::ptrdiff_t(y - rect.top) * rect.width(), rect.width(), picture.row(y) + rect.left);
    }
    return picture;
}

std::optional<CompressedPicture> CompressedPicture::parse(std::string_view bytes, PixelSize size) {
    if (bytes.size() < headerBytes || size.isEmpty()) return std::nullopt;
    const std::uint32_t tileWidth = takeNumber(bytes), tileHeight = takeNumber(bytes), isOpaque = takeNumber(bytes);
    const auto isLength = [](std::uint32_t length) { return length > 0 && length <= 0x7FFF; };
    if (!isLength(tileWidth) || !isLength(tileHeight) || isOpaque > 1) return std::nullopt;

    CompressedPicture picture;
    picture.m_tiles = {size, {int(tileWidth), int(tileHeight)}};
    picture.m_isOpaque = isOpaque == 1;
    const std::size_t tileCount = std::size_t(picture.m_tiles.count());
    if (bytes.size() / sizeof(std::uint32_t) < tileCount) return std::nullopt;
    const std::string_view pixels = bytes.substr(tileCount * sizeof(std::uint32_t));
    std::size_t start = 0;
    for (std::size_t tile = 0; tile < tileCount; ++tile) {
        const std::size_t end = takeNumber(bytes);
        if (end < start || end > pixels.size()) return std::nullopt;
        picture.m_bytes.push_back(pixels.substr(start, end - start));
        const std::size_t wanted = picture.m_tiles.pixelCount(int(tile)) * sizeof(Pixel);
        if (wanted / maximumGain > end - start || wanted > LZ4_MAX_INPUT_SIZE) return std::nullopt;
        start = end;
    }
    if (start != pixels.size()) return std::nullopt;
    return picture;
}

bool CompressedPicture::decompress(int tile, Pixel* to) const {
    const std::string_view bytes = m_bytes[std::size_t(tile)];
    const int wanted = int(m_tiles.pixelCount(tile) * sizeof(Pixel));
    return LZ4_decompress_safe(bytes.data(), reinterpret_cast<char*>(to), int(bytes.size()), wanted) == wanted;
}

} // namespace proupsells::rasterbackend
