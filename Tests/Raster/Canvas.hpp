// A small picture that a test paints and looks at.
#pragma once

#include <algorithm>

#include "Backends/Raster/RasterPainter.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::tests {

// The colour of a pixel, as 0xRRGGBB, and its parts.
inline unsigned colorAt(const rasterbackend::Picture& picture, int x, int y) { return picture.row(y)[x] & 0xFFFFFF; }
inline int redAt(const rasterbackend::Picture& picture, int x, int y) { return int(colorAt(picture, x, y) >> 16); }
inline int greenAt(const rasterbackend::Picture& picture, int x, int y) { return int(colorAt(picture, x, y) >> 8 & 0xFF); }
inline int blueAt(const rasterbackend::Picture& picture, int x, int y) { return int(colorAt(picture, x, y) & 0xFF); }

struct Canvas {
    explicit Canvas(geometry::Size size_, double scale_ = 1) : size(size_), scale(scale_) {}

    rasterbackend::Picture image() const {
        rasterbackend::RasterSurface surface;
        surface.present(list, size, scale);
        return surface.picture();
    }
    unsigned pixel(int x, int y) const { return colorAt(image(), x, y); }
    // How dark a pixel of a black shape on white is, from 0 to 255.
    int ink(int x, int y) const { return 255 - greenAt(image(), x, y); }

    geometry::Size size;
    double scale;
    graphics::DisplayList list;
    graphics::PaintContext context{list};
};

// The sum of a picture's ink, in whole pixels.
inline double totalInk(const rasterbackend::Picture& picture) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) sum += 255 - greenAt(picture, x, y);
    return sum / 255;
}

// Whether two pictures have the same size and the same pixels.
inline bool isSame(const rasterbackend::Picture& a, const rasterbackend::Picture& b) {
    if (a.width() != b.width() || a.height() != b.height()) return false;
    for (int y = 0; y < a.height(); ++y)
        if (!std::equal(a.row(y), a.row(y) + a.width(), b.row(y))) return false;
    return true;
}

inline rasterbackend::Picture part(const rasterbackend::Picture& picture, int x, int y, int width, int height) {
    rasterbackend::Picture result(width, height);
    for (int row = 0; row < height; ++row) std::copy_n(picture.row(y + row) + x, width, result.row(row));
    return result;
}

inline constexpr graphics::RGBA black = graphics::rgb(0x000000), white = graphics::rgb(0xFFFFFF), red = graphics::rgb(0xFF0000),
                                blue = graphics::rgb(0x0000FF);

} // namespace proupsells::tests
