#include "Backends/Raster/PictureColor.hpp"

#include <algorithm>

namespace proupsells::rasterbackend {

graphics::RGBA colorAt(const Picture& picture, geometry::Point place) {
    const int x = std::clamp(int(place.x), 0, picture.width() - 1), y = std::clamp(int(place.y), 0, picture.height() - 1);
    const Pixel pixel = picture.row(y)[x];
    return {std::uint8_t(pixel >> 16), std::uint8_t(pixel >> 8), std::uint8_t(pixel), 255};
}

} // namespace proupsells::rasterbackend
