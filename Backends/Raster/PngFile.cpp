#include "Backends/Raster/PngFile.hpp"

#include <png.h>

#include <cstdint>
#include <fstream>
#include <vector>

namespace proupsells::rasterbackend {

namespace {

std::vector<std::uint8_t> colours(const Picture& picture) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(std::size_t(picture.width()) * std::size_t(picture.height()) * 3);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            for (const int shift : {16, 8, 0}) bytes.push_back(std::uint8_t(picture.row(y)[x] >> shift));
    return bytes;
}

std::vector<char> encoded(const Picture& picture) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(picture.width());
    image.height = png_uint_32(picture.height());
    image.format = PNG_FORMAT_RGB;
    const std::vector<std::uint8_t> bytes = colours(picture);
    std::vector<char> result;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    result.resize(size);
    if (!png_image_write_to_memory(&image, result.data(), &size, 0, bytes.data(), 0, nullptr)) return {};
    result.resize(size);
    return result;
}

} // namespace

bool writePng(const Picture& picture, const std::filesystem::path& file) {
    if (picture.isNull()) return false;
    const std::vector<char> bytes = encoded(picture);
    if (bytes.empty()) return false;

    // Whoever looks at the file sees the old picture or the new one, never half of it.
    std::filesystem::path draft = file;
    draft += ".part";
    std::error_code error;
    // It may be a link of somebody else's.
    std::filesystem::remove(draft, error);
    {
        std::ofstream stream(draft, std::ios::binary);
        stream.write(bytes.data(), std::streamsize(bytes.size()));
        if (!stream.flush()) {
            std::filesystem::remove(draft, error);
            return false;
        }
    }
    std::filesystem::rename(draft, file, error);
    if (!error) return true;
    std::filesystem::remove(draft, error);
    return false;
}

} // namespace proupsells::rasterbackend
