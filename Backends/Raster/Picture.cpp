#include "Backends/Raster/Picture.hpp"

#include "Backends/Raster/Blending.hpp"

namespace proupsells::rasterbackend {

bool Picture::isOpaque() const {
    for (int y = 0; y < m_height; ++y) {
        Pixel common = 0xFFFFFFFF;
        for (int x = 0; x < m_width; ++x) common &= row(y)[x];
        if (alphaOf(common) != 255) return false;
    }
    return true;
}

} // namespace proupsells::rasterbackend
