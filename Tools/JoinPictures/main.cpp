// Puts pictures of one height side by side, in at most 256 colours, so that they are small enough for a page.
//
//   JoinPictures OUT.png RRGGBB GAP IN.png...
//
// The colour is what is seen around and between them, GAP pixels wide.
#include <png.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "Tools/JoinPictures/Palette.hpp"

using namespace proupsells::joinpictures;

namespace {

struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<Colour> colours; // row by row
};

// Empty where the file cannot be read.
Pixels readPng(const char* file) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&image, file)) return {};
    image.format = PNG_FORMAT_RGB;
    std::vector<png_byte> bytes(PNG_IMAGE_SIZE(image));
    if (!png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr)) return {};
    Pixels pixels{int(image.width), int(image.height), {}};
    for (std::size_t byte = 0; byte + 2 < bytes.size(); byte += 3)
        pixels.colours.push_back(Colour(bytes[byte]) << 16 | Colour(bytes[byte + 1]) << 8 | Colour(bytes[byte + 2]));
    return pixels;
}

bool writePng(const Pixels& pixels, const char* file) {
    const std::vector<Colour> palette = paletteOf(pixels.colours);
    const std::vector<std::uint8_t> places = placesIn(palette, pixels.colours);
    std::vector<png_byte> colours;
    for (const Colour colour : palette)
        for (const int shift : {16, 8, 0}) colours.push_back(png_byte(colour >> shift));
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(pixels.width);
    image.height = png_uint_32(pixels.height);
    image.format = PNG_FORMAT_RGB_COLORMAP;
    image.colormap_entries = png_uint_32(palette.size());
    return png_image_write_to_file(&image, file, 0, places.data(), 0, colours.data());
}

Pixels joined(const std::vector<Pixels>& pictures, Colour around, int gap) {
    Pixels joined{gap, pictures.front().height + 2 * gap, {}};
    for (const Pixels& picture : pictures) joined.width += picture.width + gap;
    joined.colours.assign(std::size_t(joined.width) * std::size_t(joined.height), around);
    int left = gap;
    for (const Pixels& picture : pictures) {
        for (int y = 0; y < picture.height; ++y)
            std::copy_n(picture.colours.begin() + std::ptrdiff_t(y) * picture.width, picture.width,
                        joined.colours.begin() + std::ptrdiff_t(y + gap) * joined.width + left);
        left += picture.width + gap;
    }
    return joined;
}

int fail(const std::string& complaint) {
    std::cerr << "JoinPictures: " << complaint << '\n';
    return 1;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 5) return fail("usage: JoinPictures OUT.png RRGGBB GAP IN.png...");
    std::vector<Pixels> pictures;
    for (int index = 4; index < count; ++index) {
        pictures.push_back(readPng(arguments[index]));
        if (pictures.back().colours.empty()) return fail(std::string(arguments[index]) + " cannot be read");
        if (pictures.back().height != pictures.front().height) return fail(std::string(arguments[index]) + " has another height");
    }
    const Colour around = Colour(std::strtoul(arguments[2], nullptr, 16));
    if (!writePng(joined(pictures, around, std::atoi(arguments[3])), arguments[1]))
        return fail(std::string(arguments[1]) + " cannot be written");
    return 0;
}
