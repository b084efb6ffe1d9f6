// Strokes as outlines to be filled.
#pragma once

#include <memory>

#include "Platform/Geometry/Path.hpp"

namespace proupsells::rasterbackend {

enum class LineJoin { mitred, round };

// A line of no width stands for a filled shape.
struct Stroke {
    double width = 0;
    LineJoin join = LineJoin::mitred; // mitred lines end bluntly, round ones roundly

    bool operator==(const Stroke&) const = default;
};

// Makes outlines by FreeType's stroker, which is set up when the first one is wanted.
class StrokeOutliner {
public:
    StrokeOutliner();
    ~StrokeOutliner();
    StrokeOutliner(const StrokeOutliner&) = delete;
    StrokeOutliner& operator=(const StrokeOutliner&) = delete;

    // What the stroke covers when it is filled by the non-zero rule, in the path's lengths. `scale` is how many pixels a unit of
    // them will be shown with. Parts of the path that have no length are left out.
    geometry::Path outline(const geometry::Path& path, Stroke stroke, double scale);

private:
    struct Stroker;
    std::unique_ptr<Stroker> m_stroker;
};

} // namespace proupsells::rasterbackend
