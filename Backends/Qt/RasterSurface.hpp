// Shows display lists in an image: what stands behind a window, and what a picture file is made of.
#pragma once

#include <QImage>
#include <memory>
#include <vector>

#include "Backends/Qt/RasterPainter.hpp"
#include "Platform/Host/Surface.hpp"

namespace proupsells::qtbackend {

using namespace rasterbackend;

// Needs a QGuiApplication. A size that is no whole number of pixels is rounded up.
class RasterSurface final : public host::Surface {
public:
    explicit RasterSurface(std::shared_ptr<RasterPainter> painter = RasterPainter::shared()) : m_painter(std::move(painter)) {}

    void present(const graphics::DisplayList& list, geometry::Size size, double scale) override;

    // Null before the first list, and where the size is empty.
    const QImage& image() const { return m_image; }
    // What the last list repainted, in pixels; rectangles that do not overlap. Empty when nothing differed.
    const std::vector<PixelRect>& lastDamage() const { return m_damage; }

private:
    void findDamagedPixels(const graphics::DisplayList& list);
    void addDamage(PixelRect rect);

    std::shared_ptr<RasterPainter> m_painter;
    QImage m_image;
    graphics::DisplayList m_shown;
    geometry::Size m_size;
    double m_scale = 0;
    std::vector<geometry::Rect> m_damagedPoints;
    std::vector<PixelRect> m_damage;
};

// The number of pixels that `size` points fill at `scale`.
QSize pixelSize(geometry::Size size, double scale);

} // namespace proupsells::qtbackend
