#include "Backends/Raster/PictureFile.hpp"

#include <algorithm>
#include <utility>

#include "Backends/Raster/MappedFile.hpp"
#include "Backends/Raster/PictureCodec.hpp"
#include "Backends/Raster/PngReader.hpp"
#include "Backends/Raster/Resampling.hpp"
#include "Platform/Graphics/PictureHeader.hpp"

namespace proupsells::rasterbackend {

namespace {

using graphics::PictureHeader;

// The file's own where it has this size, else the largest: the more pixels make a new one, the nearer it comes to what the vector
// file would have drawn.
const PictureHeader::Variant& bestVariant(const PictureHeader& header, int width, int height) {
    const auto rank = [&](const PictureHeader::Variant& variant) {
        const bool isExact = int(variant.width_px) == width && int(variant.height_px) == height;
        return std::pair(isExact, std::uint64_t(variant.width_px) * variant.height_px);
    };
    return *std::max_element(header.variants.begin(), header.variants.end(),
                             [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
}

Picture readVariant(std::string_view bytes, const PictureHeader::Variant& variant) {
    return decompressed(bytes.substr(variant.offset, variant.byteCount), int(variant.width_px), int(variant.height_px));
}

} // namespace

std::optional<geometry::Size> naturalPictureSize(const std::filesystem::path& file) {
    const MappedFile mapped(file);
    if (const auto header = PictureHeader::parse(mapped.bytes(), mapped.bytes().size())) return header->naturalSize;
    return pngSize(mapped.bytes());
}

Picture readPicture(const std::filesystem::path& file, int width, int height) {
    if (width <= 0 || height <= 0) return {};
    const MappedFile mapped(file);
    const auto header = PictureHeader::parse(mapped.bytes(), mapped.bytes().size());
    const Picture picture = header ? readVariant(mapped.bytes(), bestVariant(*header, width, height)) : pngPicture(mapped.bytes());
    return resampled(picture, width, height);
}

} // namespace proupsells::rasterbackend
