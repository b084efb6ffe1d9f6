#include "Backends/Raster/PictureFile.hpp"

#include <algorithm>

#include "Backends/Raster/PictureCodec.hpp"
#include "Backends/Raster/PngReader.hpp"
#include "Backends/Raster/Resampling.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Platform/System/MappedFile.hpp"

namespace proupsells::rasterbackend {

namespace {

using graphics::PictureHeader;

// The more pixels make another size, the nearer it comes to what the vector file would have drawn.
const PictureHeader::Variant& largestVariant(const PictureHeader& header) {
    const auto area = [](const PictureHeader::Variant& variant) { return std::uint64_t(variant.width_px) * variant.height_px; };
    return *std::max_element(header.variants.begin(), header.variants.end(),
                             [&](const auto& a, const auto& b) { return area(a) < area(b); });
}

const PictureHeader::Variant* variantOfSize(const PictureHeader& header, PixelSize size) {
    const auto found = std::find_if(header.variants.begin(), header.variants.end(), [&](const PictureHeader::Variant& variant) {
        return int(variant.width_px) == size.width && int(variant.height_px) == size.height;
    });
    return found != header.variants.end() ? &*found : nullptr;
}

std::string_view bytesOf(const PictureHeader::Variant& variant, std::string_view bytes) {
    return bytes.substr(variant.offset, variant.byteCount);
}

Picture readVariant(std::string_view bytes, const PictureHeader& header, PixelSize size) {
    const PictureHeader::Variant* exact = variantOfSize(header, size);
    const PictureHeader::Variant& variant = exact ? *exact : largestVariant(header);
    return decompressed(bytesOf(variant, bytes), int(variant.width_px), int(variant.height_px));
}

} // namespace

std::optional<geometry::Size> naturalPictureSize(const std::filesystem::path& file) {
    const system::MappedFile mapped(file);
    if (const auto header = PictureHeader::parse(mapped.bytes(), mapped.bytes().size())) return header->naturalSize;
    return pngSize(mapped.bytes());
}

Picture readPicture(const std::filesystem::path& file, int width, int height) {
    const system::MappedFile mapped(file);
    const auto header = PictureHeader::parse(mapped.bytes(), mapped.bytes().size());
    const Picture picture = header ? readVariant(mapped.bytes(), *header, {width, height}) : pngPicture(mapped.bytes());
    return resampled(picture, width, height);
}

std::optional<CompressedPicture> compressedPicture(std::string_view bytes, PixelSize size) {
    const auto header = PictureHeader::parse(bytes, bytes.size());
    const PictureHeader::Variant* variant = header ? variantOfSize(*header, size) : nullptr;
    return variant ? CompressedPicture::parse(bytesOf(*variant, bytes), size) : std::nullopt;
}

} // namespace proupsells::rasterbackend
