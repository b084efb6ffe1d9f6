// Picture files for tests.
#pragma once

#include <png.h>

#include <filesystem>
#include <vector>

#include "Backends/Raster/Picture.hpp"

namespace proupsells::tests {

// Writes a picture with transparency; `pixelAt(x, y)` is 0xAARRGGBB, not premultiplied.
template <class PixelAt>
std::filesystem::path writePicture(const std::filesystem::path& file, int width, int height, PixelAt&& pixelAt) {
    std::vector<rasterbackend::Pixel> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) pixels.push_back(pixelAt(x, y));
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(width);
    image.height = png_uint_32(height);
    image.format = PNG_FORMAT_BGRA;
    png_image_write_to_file(&image, file.c_str(), 0, pixels.data(), 0, nullptr);
    return file;
}

} // namespace proupsells::tests
