// Pictures for tests.
#pragma once

#include <functional>

#include "Backends/Raster/Picture.hpp"

namespace proupsells::tests {

inline rasterbackend::Picture makePicture(int width, int height, const std::function<rasterbackend::Pixel(int x, int y)>& pixelAt) {
    rasterbackend::Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) picture.row(y)[x] = pixelAt(x, y);
    return picture;
}

inline rasterbackend::Picture filled(int width, int height, rasterbackend::Pixel pixel) {
    return makePicture(width, height, [&](int, int) { return pixel; });
}

inline int channel(rasterbackend::Pixel pixel, int index) { return int(pixel >> (8 * index)) & 0xFF; }

} // namespace proupsells::tests

namespace proupsells::rasterbackend {

inline bool operator==(const Picture& a, const Picture& b) {
    if (a.width() != b.width() || a.height() != b.height()) return false;
    for (int y = 0; y < a.height(); ++y)
        if (!std::equal(a.row(y), a.row(y) + a.width(), b.row(y))) return false;
    return true;
}

} // namespace proupsells::rasterbackend
