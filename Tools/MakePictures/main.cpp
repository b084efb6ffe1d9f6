// Makes a picture file of a vector file.
//
//   MakePictures IN.svg OUT.picture [WIDTHxHEIGHT...]
//
// The picture is drawn at 1, 2 and 3 pixels a point: over its natural size, and over each further size in points. Pictures with
// texts in them are refused: what they look like would depend on the fonts of this machine.
#include <charconv>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iostream>
#include <iterator>

#include "Backends/Raster/PictureWriter.hpp"
#include "Platform/System/PathText.hpp"
#include "Tools/MakePictures/VectorFile.hpp"

using namespace proupsells;

namespace {

using geometry::Size;
using rasterbackend::Picture;
using rasterbackend::Pixel;

constexpr int scales[] = {1, 2, 3};

std::optional<Size> parsedSize(std::string_view text) {
    Size size;
    const char* const end = text.data() + text.size();
    const auto [cross, widthError] = std::from_chars(text.data(), end, size.width);
    if (widthError != std::errc() || cross == end || *cross != 'x') return std::nullopt;
    const auto [rest, heightError] = std::from_chars(cross + 1, end, size.height);
    if (heightError != std::errc() || rest != end || !(size.width > 0 && size.height > 0)) return std::nullopt;
    return size;
}

bool hasText(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string contents{std::istreambuf_iterator<char>(stream), {}};
    return contents.find("<text") != std::string::npos;
}

Picture picture(const QImage& image) {
    Picture picture(image.width(), image.height());
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(picture.row(y), image.constScanLine(y), std::size_t(picture.width()) * sizeof(Pixel));
    return picture;
}

// Empty where it cannot be drawn.
std::vector<Picture> drawn(const std::filesystem::path& file, const std::vector<Size>& sizes) {
    std::vector<Picture> pictures;
    for (const Size& size : sizes)
        for (const int scale : scales) {
            const QImage image =
                makepictures::renderVector(file, {int(std::lround(size.width * scale)), int(std::lround(size.height * scale))});
            if (image.isNull()) return {};
            pictures.push_back(picture(image));
        }
    return pictures;
}

int fail(const std::string& complaint) {
    std::cerr << "MakePictures: " << complaint << '\n';
    return 1;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) return fail("usage: MakePictures IN.svg OUT.picture [WIDTHxHEIGHT...]");
    const std::filesystem::path in = arguments[1], out = arguments[2];

    const std::optional<Size> naturalSize = makepictures::vectorSize(in);
    if (!naturalSize) return fail(system::textOf(in) + " has no size");
    if (hasText(in)) return fail(system::textOf(in) + " has text in it; make outlines of it");
    std::vector<Size> sizes{*naturalSize};
    for (int index = 3; index < count; ++index) {
        const std::optional<Size> size = parsedSize(arguments[index]);
        if (!size) return fail(std::string(arguments[index]) + " is no size");
        sizes.push_back(*size);
    }

    const std::vector<Picture> pictures = drawn(in, sizes);
    if (pictures.empty()) return fail(system::textOf(in) + " cannot be drawn");
    const std::string bytes = rasterbackend::pictureFileBytes(*naturalSize, pictures);
    std::ofstream stream(out, std::ios::binary);
    if (stream.write(bytes.data(), std::streamsize(bytes.size())).flush()) return 0;
    // The build would take half of a picture for a new one.
    std::error_code ignored;
    if (std::filesystem::is_regular_file(out, ignored)) std::filesystem::remove(out, ignored);
    return fail(system::textOf(out) + " cannot be written");
}
