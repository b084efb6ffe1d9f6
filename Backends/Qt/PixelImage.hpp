// A view in pixels, in an image of Qt's.
#pragma once

#include <QImage>
#include <QRegion>

#include "Backends/Raster/PixelView.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

// Keeps the last frame, so that it can be shown at any time without asking the content.
class PROUPSELLS_EXPORT PixelImage {
public:
    // Paints what differs on `size`, in Qt's units, at `scale` pixels each. Returns where that was, in Qt's units.
    QRegion paint(rasterbackend::PixelView& view, QSize size, double scale);
    // The last frame; null before the first one.
    const QImage& image() const { return m_image; }
    // Whether the last frame is one of that size and scale.
    bool shows(QSize size, double scale) const;

private:
    QImage m_image;
    QSize m_size;
};

// `damage`, in pixels, as the units that it touches.
QRegion regionOf(const std::vector<rasterbackend::PixelRect>& damage, double scale);

} // namespace proupsells::qtbackend
