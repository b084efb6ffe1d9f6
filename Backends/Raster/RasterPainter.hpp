// Paints display lists into memory.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "Backends/Raster/ImageRasters.hpp"
#include "Backends/Raster/PixelRect.hpp"
#include "Backends/Raster/ShapeMasks.hpp"
#include "Backends/Raster/TextRasters.hpp"
#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::rasterbackend {

// Rows of pixels, as 32-bit numbers 0xAARRGGBB.
struct PaintTarget {
    Pixel* pixels = nullptr;
    std::ptrdiff_t pixelsPerRow = 0;
    PixelSize size;
};

// Every command becomes a colour under a mask or a picture, made for whole pixels and kept for the next time; so a part of a list
// comes out the same whether it is painted alone or with the rest. Main thread only.
class RasterPainter {
public:
    // The one that windows and pictures share, so that what one has prepared the other finds.
    static const std::shared_ptr<RasterPainter>& shared();

    // Paints the regions, which must not overlap and lie in the target, over white at `scale` pixels a point.
    void paint(const PaintTarget& target, const graphics::DisplayList& list, double scale, std::span<const PixelRect> regions);

    // Reads the pictures of a list that has been painted, and those ahead of it, into memory, beside the main thread. What is
    // painted meanwhile comes out the same.
    void prepareAhead(const graphics::DisplayList& list, double scale);
    // Until that is done.
    void finishPreparing() { m_images.finishPreparing(); }
    // Memory that pictures take; at most maximumPictureBytes.
    std::size_t pictureBytes() const { return m_images.byteCount(); }
    static std::size_t maximumPictureBytes() { return ImageRasters::maximumByteCount; }

private:
    struct Job;
    struct Item;

    void paintBand(const PaintTarget& target, const graphics::DisplayList& list, double scale, const PixelRect& band, int end);
    void paintCommand(Job& job, const graphics::Command& command);
    void paintShape(Job& job, const Item& item);
    void paintText(Job& job, const Item& item);
    void paintTextPiece(Job& job, const Item& item, const RasterShapedText& text, FragmentRange range, geometry::Point baseline);
    void paintImage(Job& job, const Item& item);
    void prepareImage(const graphics::DisplayList& list, const graphics::Command& command, double scale);
    PlacedMask shapeMask(const Job& job, const Item& item);
    PlacedMask outlineMask(const Job& job, const Item& item);

    CoverageRasterizer m_rasterizer;
    ShapeMasks m_shapes{m_rasterizer};
    TextRasters m_texts{m_rasterizer};
    ImageRasters m_images{m_rasterizer};
};

} // namespace proupsells::rasterbackend
