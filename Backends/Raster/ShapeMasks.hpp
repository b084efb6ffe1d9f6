// Masks of shapes, made once for each kind, size and place between pixels.
#pragma once

#include <array>
#include <cstddef>

#include "Backends/Raster/CoverageRasterizer.hpp"
#include "Backends/Raster/LruCache.hpp"
#include "Backends/Raster/PlacedMask.hpp"
#include "Backends/Raster/StrokeOutline.hpp"

namespace proupsells::rasterbackend {

// All lengths are in pixels.
class ShapeMasks {
public:
    // The rasterizer is lent, and used in no two calls at once.
    explicit ShapeMasks(CoverageRasterizer& rasterizer);

    // Filled where the line width is 0, else stroked along its edge.
    PlacedMask roundedRectangle(const geometry::Rect& frame, double radius, geometry::CornerStyle style, double lineWidth);
    PlacedMask ellipse(const geometry::Rect& frame, double lineWidth);
    // The stroke's width is in the path's own lengths. Only what is inside of `window` is made.
    PlacedMask path(const geometry::Path& path, const geometry::Transform& toPixels, Stroke stroke, const PixelRect& window);
    // Of a filled rectangle; it reaches out by twice the blur radius.
    PlacedMask shadow(const geometry::Rect& frame, double blurRadius);

private:
    enum class Kind { circular, continuous, ellipse, shadow };
    struct Placement;

    struct ShapeKey {
        std::array<std::int64_t, 7> values;

        bool operator==(const ShapeKey&) const = default;
        struct Hash {
            std::size_t operator()(const ShapeKey& key) const;
        };
    };
    struct PathKey {
        geometry::Path path;
        geometry::Transform transform;
        Stroke stroke;
        PixelSize size;

        bool operator==(const PathKey&) const = default;
        struct Hash {
            std::size_t operator()(const PathKey& key) const;
        };
    };
    using MaskRef = std::shared_ptr<const CoverageMask>;

    PlacedMask shape(Kind kind, const Placement& placement, double radius, double lineWidth);
    CoverageMask makeShape(Kind kind, const Placement& placement, double radius, double lineWidth);
    CoverageMask makeOutline(const geometry::Path& path, const geometry::Transform& toPixels, Stroke stroke, PixelSize size);
    static CoverageMask makeShadow(const Placement& placement, double blurRadius);

    CoverageRasterizer& m_rasterizer;
    LruCache<ShapeKey, MaskRef> m_shapes;
    LruCache<PathKey, MaskRef> m_paths;
    StrokeOutliner m_strokes;
    PathKey m_lookup; // keeps its memory
};

} // namespace proupsells::rasterbackend
