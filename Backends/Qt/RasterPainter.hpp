// Paints display lists into images.
#pragma once

#include <QImage>
#include <memory>
#include <span>
#include <vector>

#include "Backends/Qt/ImageRasters.hpp"
#include "Backends/Qt/ShapeMasks.hpp"
#include "Backends/Qt/TextRasters.hpp"
#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::qtbackend {

using namespace rasterbackend;

// Every command becomes a colour under a mask or a picture, made for whole pixels and kept for the next time; so a part of a list
// comes out the same whether it is painted alone or with the rest. Main thread only.
class RasterPainter {
public:
    // The one that windows and pictures share, so that what one has prepared the other finds. It goes with the application object.
    static const std::shared_ptr<RasterPainter>& shared();

    // Paints the regions, which must not overlap, over white at `scale` pixels a point. The target's format is RGB32.
    void paint(QImage& target, const graphics::DisplayList& list, double scale, std::span<const PixelRect> regions);

private:
    struct Job;
    struct Item;

    void paintCommand(Job& job, const graphics::Command& command);
    void paintShape(Job& job, const Item& item);
    void paintText(Job& job, const Item& item);
    void paintTextPiece(Job& job, const Item& item, const QtShapedText& text, FragmentRange range, geometry::Point baseline);
    void paintImage(Job& job, const Item& item);
    PlacedMask shapeMask(const Job& job, const Item& item);
    PlacedMask outlineMask(const Job& job, const Item& item);

    ShapeMasks m_shapes;
    TextRasters m_texts;
    ImageRasters m_images;
};

} // namespace proupsells::qtbackend
