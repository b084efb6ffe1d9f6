#include "Backends/Raster/PictureWriter.hpp"

#include "Backends/Raster/PictureCodec.hpp"
#include "Platform/Graphics/PictureHeader.hpp"

namespace proupsells::rasterbackend {

std::string pictureFileBytes(geometry::Size naturalSize, std::span<const Picture> sizes) {
    graphics::PictureHeader header{naturalSize, {}};
    std::string pixels;
    for (const Picture& picture : sizes) {
        const std::string bytes = compressed(picture);
        header.variants.push_back({std::uint32_t(picture.width()), std::uint32_t(picture.height()),
                                   std::uint32_t(graphics::PictureHeader::byteCount(sizes.size()) + pixels.size()),
                                   std::uint32_t(bytes.size())});
        pixels += bytes;
    }
    return header.bytes() + pixels;
}

} // namespace proupsells::rasterbackend
