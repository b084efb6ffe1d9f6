#include "Backends/Qt/RasterSurface.hpp"

#include <algorithm>

namespace proupsells::qtbackend {

QSize pixelSize(geometry::Size size, double scale) {
    return {std::max(0, ceilPixel(size.width * scale)), std::max(0, ceilPixel(size.height * scale))};
}

void RasterSurface::present(const graphics::DisplayList& list, geometry::Size size, double scale) {
    m_damage.clear();
    if (m_image.isNull() || size != m_size || scale != m_scale) {
        m_size = size;
        m_scale = scale;
        m_image = QImage(pixelSize(size, scale), QImage::Format_RGB32);
        if (m_image.isNull()) return;
        m_damage.push_back({0, 0, m_image.width(), m_image.height()});
    } else {
        findDamagedPixels(list);
    }
    m_painter->paint(m_image, list, scale, m_damage);
    m_shown = list;
}

void RasterSurface::findDamagedPixels(const graphics::DisplayList& list) {
    graphics::findDamage(m_shown, list, m_damagedPoints);
    const PixelRect window{0, 0, m_image.width(), m_image.height()};
    for (const geometry::Rect& rect : m_damagedPoints) {
        const PixelRect touched = touchedPixels(scaledBy(rect, m_scale)).intersection(window);
        if (!touched.isEmpty()) addDamage(touched);
    }
}

// Rectangles that do not overlap in points may do so in pixels.
void RasterSurface::addDamage(PixelRect rect) {
    for (std::size_t index = 0; index < m_damage.size();) {
        if (m_damage[index].intersection(rect).isEmpty()) {
            ++index;
            continue;
        }
        rect = rect.united(m_damage[index]);
        m_damage.erase(m_damage.begin() + std::ptrdiff_t(index));
        index = 0;
    }
    m_damage.push_back(rect);
}

} // namespace proupsells::qtbackend
