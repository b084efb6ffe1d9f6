// A small picture that a test paints and looks at.
#pragma once

#include <QImage>

#include "Backends/Qt/RasterPainter.hpp"
#include "Backends/Qt/RasterSurface.hpp"
#include "Platform/Graphics/PaintContext.hpp"

namespace proupsells::tests {

struct Canvas {
    explicit Canvas(geometry::Size size_, double scale_ = 1) : size(size_), scale(scale_) {}

    QImage image() const {
        qtbackend::RasterSurface surface;
        surface.present(list, size, scale);
        return surface.image();
    }
    // The colour of a pixel, as 0xRRGGBB.
    unsigned pixel(int x, int y) const { return image().pixel(x, y) & 0xFFFFFF; }
    // How dark a pixel of a black shape on white is, from 0 to 255.
    int ink(int x, int y) const { return 255 - qGreen(image().pixel(x, y)); }

    geometry::Size size;
    double scale;
    graphics::DisplayList list;
    graphics::PaintContext context{list};
};

// The sum of a picture's ink, in whole pixels.
inline double totalInk(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) sum += 255 - qGreen(image.pixel(x, y));
    return sum / 255;
}

inline constexpr graphics::RGBA black = graphics::rgb(0x000000), white = graphics::rgb(0xFFFFFF), red = graphics::rgb(0xFF0000),
                                blue = graphics::rgb(0x0000FF);

} // namespace proupsells::tests
