#include "Backends/Raster/PictureCodec.hpp"

#include <lz4.h>
#include <lz4hc.h>

namespace proupsells::rasterbackend {

namespace {

// LZ4 makes no more of a byte; what claims more is broken, and costs no memory.
constexpr std::size_t maximumGain = 255;

} // namespace

std::string compressed(const Picture& picture) {
    const int byteCount = int(picture.byteCount());
    std::string bytes(std::size_t(LZ4_compressBound(byteCount)), '\0');
    const int written = LZ4_compress_HC(reinterpret_cast<const char*>(picture.row(0)), bytes.data(), byteCount, int(bytes.size()),
                                        LZ4HC_CLEVEL_DEFAULT);
    bytes.resize(std::size_t(written));
    return bytes;
}

Picture decompressed(std::string_view bytes, int width, int height) {
    const std::size_t wanted = std::size_t(width) * std::size_t(height) * sizeof(Pixel);
    if (wanted / maximumGain > bytes.size() || wanted > LZ4_MAX_INPUT_SIZE) return {};
    Picture picture = Picture::unwritten(width, height);
    const int got =
        LZ4_decompress_safe(bytes.data(), reinterpret_cast<char*>(picture.row(0)), int(bytes.size()), int(picture.byteCount()));
    return got >= 0 && std::size_t(got) == wanted ? picture : Picture();
}

} // namespace proupsells::rasterbackend
