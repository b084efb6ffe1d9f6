// Pixels in memory.
#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "Backends/Raster/Pixel.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

// Premultiplied pixels, the top row first, without gaps between the rows. Copies share the pixels; who makes a picture writes them
// before handing it on.
class PROUPSELLS_EXPORT Picture {
public:
    // Null: there is no picture.
    Picture() = default;
    // All transparent. Null where a length is not positive.
    Picture(int width, int height)
        : m_width(width > 0 && height > 0 ? width : 0), m_height(m_width > 0 ? height : 0), m_pixelsPerRow(m_width),
          m_pixels(m_width > 0 ? std::make_unique<Pixel[]>(pixelCount()) : nullptr) {}
    // Pixels of whatever colours, for who writes all of them. Null where a length is not positive.
    static Picture unwritten(int width, int height) {
        Picture picture;
        if (width <= 0 || height <= 0) return picture;
        picture.m_width = width;
        picture.m_height = height;
        picture.m_pixelsPerRow = width;
        picture.m_pixels.reset(new Pixel[picture.pixelCount()]);
        return picture;
    }
    // Pixels that somebody else owns. They must hold width × height and stay as they are.
    Picture(std::shared_ptr<const Pixel[]> pixels, int width, int height) : Picture(std::move(pixels), width, height, width) {}
    // A part of a larger picture, whose rows lie `pixelsPerRow` apart.
    Picture(std::shared_ptr<const Pixel[]> pixels, int width, int height, int pixelsPerRow)
        : m_width(width), m_height(height), m_pixelsPerRow(pixelsPerRow),
          m_pixels(std::const_pointer_cast<Pixel[]>(std::move(pixels))) {}

    // Whether there is no picture; then both lengths are 0.
    bool isNull() const { return !m_pixels; }
    // In pixels.
    int width() const { return m_width; }
    int height() const { return m_height; }
    // The pixels of a row, from the left; 0 is the top one, and `y` must be less than the height.
    const Pixel* row(int y) const { return m_pixels.get() + std::ptrdiff_t(y) * m_pixelsPerRow; }
    // For whoever makes the picture.
    Pixel* row(int y) { return m_pixels.get() + std::ptrdiff_t(y) * m_pixelsPerRow; }

    // How much memory the pixels take.
    std::size_t byteCount() const { return pixelCount() * sizeof(Pixel); }
    // Whether every pixel's alpha is 255.
    bool isOpaque() const;

private:
    std::size_t pixelCount() const { return std::size_t(m_width) * std::size_t(m_height); }

    int m_width = 0;
    int m_height = 0;
    int m_pixelsPerRow = 0;
    std::shared_ptr<Pixel[]> m_pixels;
};

} // namespace proupsells::rasterbackend
