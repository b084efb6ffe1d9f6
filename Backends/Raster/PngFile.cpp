#include "Backends/Raster/PngFile.hpp"

#include <png.h>

#include <cstdint>
#include <vector>

#include "Platform/System/WholeFile.hpp"

namespace proupsells::rasterbackend {

namespace {

std::vector<std::uint8_t> colours(const Picture& picture) {
    std::vector<std::uint8_t> bytes(std::size_t(picture.width()) * std::size_t(picture.height()) * 3);
    std::uint8_t* next = bytes.data();
    for (int y = 0; y < picture.height(); ++y) {
        const Pixel* const row = picture.row(y);
        for (int x = 0; x < picture.width(); ++x, next += 3) {
            next[0] = std::uint8_t(row[x] >> 16);
            next[1] = std::uint8_t(row[x] >> 8);
            next[2] = std::uint8_t(row[x]);
        }
    }
    return bytes;
}

} // namespace

std::string pngBytes(const Picture& picture, PngEffort effort) {
    if (picture.isNull()) return {};
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(picture.width());
    image.height = png_uint_32(picture.height());
    image.format = PNG_FORMAT_RGB;
    if (effort == PngEffort::quick) image.flags |= PNG_IMAGE_FLAG_FAST;
    const std::vector<std::uint8_t> bytes = colours(picture);
    std::string result;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    result.resize(size);
    if (!png_image_write_to_memory(&image, result.data(), &size, 0, bytes.data(), 0, nullptr)) return {};
    result.resize(size);
    return result;
}

bool writePng(const Picture& picture, const std::filesystem::path& file) {
    const std::string bytes = pngBytes(picture, PngEffort::small);
    return !bytes.empty() && system::writeWhole(file, bytes);
}

} // namespace proupsells::rasterbackend
