#include "Backends/Raster/PngReader.hpp"

#include <png.h>

#include <bit>

#include "Backends/Raster/Blending.hpp"

namespace proupsells::rasterbackend {

namespace {

// A small file may claim to be a huge picture.
constexpr std::uint64_t maximumPixelCount = 64'000'000;

// The order of channels that makes a Pixel.
constexpr png_uint_32 channelOrder = std::endian::native == std::endian::little ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

// A file that is being read.
class Reading {
public:
    explicit Reading(std::string_view bytes) : m_isBegun(begins(m_image, bytes)) {}
    ~Reading() { png_image_free(&m_image); }
    Reading(const Reading&) = delete;

    bool isBegun() const { return m_isBegun; }
    std::uint64_t width() const { return m_image.width; }
    std::uint64_t height() const { return m_image.height; }

    // Not premultiplied. Returns whether all pixels were there.
    bool finish(Pixel* pixels) {
        m_image.format = channelOrder;
        m_image.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;
        return png_image_finish_read(&m_image, nullptr, pixels, 0, nullptr) && !PNG_IMAGE_FAILED(m_image);
    }

private:
    static bool begins(png_image& image, std::string_view bytes) {
        image.version = PNG_IMAGE_VERSION;
        return !bytes.empty() && png_image_begin_read_from_memory(&image, bytes.data(), bytes.size());
    }

    png_image m_image{};
    const bool m_isBegun;
};

void premultiply(Pixel* pixels, std::size_t count) {
    for (std::size_t index = 0; index < count; ++index) pixels[index] = scaled(pixels[index] | 0xFF000000, alphaOf(pixels[index]));
}

} // namespace

std::optional<geometry::Size> pngSize(std::string_view bytes) {
    const Reading reading(bytes);
    if (!reading.isBegun()) return std::nullopt;
    return geometry::Size{double(reading.width()), double(reading.height())};
}

Picture pngPicture(std::string_view bytes) {
    Reading reading(bytes);
    if (!reading.isBegun() || reading.width() * reading.height() > maximumPixelCount) return {};
    Picture picture = Picture::unwritten(int(reading.width()), int(reading.height()));
    if (picture.isNull() || !reading.finish(picture.row(0))) return {};
    premultiply(picture.row(0), std::size_t(picture.width()) * std::size_t(picture.height()));
    return picture;
}

} // namespace proupsells::rasterbackend
