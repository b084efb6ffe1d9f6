#include "Floor/Blitter.hpp"

#include <algorithm>
#include <cstring>

namespace peers::floor {
namespace {

// The four parts of a pixel times share / 255, two at a time.
Pixel scaled(Pixel pixel, std::uint32_t share) {
    const std::uint32_t redAndBlue = ((pixel & 0xff00ff) * share + 0x800080) >> 8;
    const std::uint32_t alphaAndGreen = ((pixel >> 8) & 0xff00ff) * share + 0x800080;
    return (redAndBlue & 0xff00ff) | (alphaAndGreen & 0xff00ff00);
}

Pixel covered(Pixel below, Pixel colour, std::uint32_t coverage) {
    const Pixel mixed = scaled(colour, coverage) + scaled(below, 255 - coverage);
    return coverage == 0 ? below : coverage == 255 ? colour : mixed;
}

} // namespace

void Canvas::fill(Pixel colour) { std::fill(m_pixels.begin(), m_pixels.end(), colour); }

void Canvas::fillRect(int x, int y, int rectWidth, int rectHeight, Pixel colour) {
    for (int line = y; line < y + rectHeight; ++line) std::fill_n(row(line) + x, rectWidth, colour);
}

void Canvas::copy(const QImage& picture, int firstRow, int rows) {
    for (int y = 0; y < rows; ++y) std::memcpy(row(y), picture.constScanLine(firstRow + y), width * sizeof(Pixel));
}

void Canvas::blend(const QImage& picture, int x, int y) {
    const int firstRow = std::max(0, -y);
    const int lastRow = std::min(picture.height(), height - y);
    const int first = std::max(0, -x);
    const int last = std::min(picture.width(), width - x);
    for (int line = firstRow; line < lastRow; ++line) {
        const auto* source = reinterpret_cast<const Pixel*>(picture.constScanLine(line));
        Pixel* target = row(y + line) + x;
        for (int column = first; column < last; ++column)
            target[column] = source[column] + scaled(target[column], 255 - (source[column] >> 24));
    }
}

void Canvas::blend(const Mask& mask) {
    // Copies: the compiler cannot know that the mask is not among the pixels that change.
    const Pixel colour = mask.colour;
    const int columns = mask.width;
    for (int line = 0; line < mask.height; ++line) {
        const std::uint8_t* coverage = mask.coverage.data() + std::size_t(line) * columns;
        Pixel* target = row(mask.y + line) + mask.x;
        for (int column = 0; column < columns; ++column) target[column] = covered(target[column], colour, coverage[column]);
    }
}

} // namespace peers::floor
