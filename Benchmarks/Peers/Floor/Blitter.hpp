// Plain loops over pixels of 32 bits, premultiplied.
#pragma once

#include <QImage>
#include <cstdint>
#include <vector>

namespace peers::floor {

// 375 × 800 points at two pixels a point.
constexpr int width = 750;
constexpr int height = 1600;

using Pixel = std::uint32_t;

// A colour through 8 bits of coverage a pixel.
struct Mask {
    int x;
    int y;
    int width;
    int height;
    Pixel colour;
    std::vector<std::uint8_t> coverage;
};

class Canvas {
public:
    // The rows of a frame, without a picture around them.
    Canvas() : m_pixels(std::size_t(width) * height) {}

    Pixel* row(int y) { return m_pixels.data() + std::size_t(y) * width; }
    std::vector<Pixel>& pixels() { return m_pixels; }

    void fill(Pixel colour);
    void fillRect(int x, int y, int rectWidth, int rectHeight, Pixel colour);
    // The picture without its first rows, as it is.
    void copy(const QImage& picture, int firstRow, int rows);
    // Source over; what lies outside is left out.
    void blend(const QImage& picture, int x, int y);
    void blend(const Mask& mask);

private:
    std::vector<Pixel> m_pixels;
};

} // namespace peers::floor
