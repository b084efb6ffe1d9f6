#include "Backends/Qt/PixelImage.hpp"

#include <cmath>

namespace proupsells::qtbackend {

bool PixelImage::shows(QSize size, double scale) const {
    return !m_image.isNull() && m_size == size && m_image.devicePixelRatio() == scale;
}

QRegion PixelImage::paint(rasterbackend::PixelView& view, QSize size, double scale) {
    if (!shows(size, scale)) {
        m_size = size;
        m_image = QImage(int(std::ceil(size.width() * scale)), int(std::ceil(size.height() * scale)), QImage::Format_RGB32);
        m_image.setDevicePixelRatio(scale);
    }
    if (m_image.isNull()) return {};
    const rasterbackend::PixelBuffer buffer{m_image.bits(), m_image.width(), m_image.height(), m_image.bytesPerLine(),
                                            rasterbackend::PixelFormat::rgb32};
    view.repaint(buffer, scale);
    return regionOf(view.lastDamage(), scale).intersected(QRect(QPoint(0, 0), size));
}

QRegion regionOf(const std::vector<rasterbackend::PixelRect>& damage, double scale) {
    QRegion region;
    for (const rasterbackend::PixelRect& rect : damage) {
        const int left = int(std::floor(rect.left / scale)), top = int(std::floor(rect.top / scale));
        region += QRect(left, top, int(std::ceil(rect.right / scale)) - left, int(std::ceil(rect.bottom / scale)) - top);
    }
    return region;
}

} // namespace proupsells::qtbackend
