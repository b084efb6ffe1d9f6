// Pictures that are turned, or scaled by a passing animation.
#pragma once

#include "Backends/Raster/CoverageRasterizer.hpp"
#include "Backends/Raster/Picture.hpp"

namespace proupsells::rasterbackend {

// Paints `source` over what is in `target`. The source covers `frame`, which `toPixels` maps to the target's pixels. Edges are
// smooth, and the pixels between are interpolated.
void paintTransformed(Picture& target, const Picture& source, const geometry::Rect& frame, const geometry::Transform& toPixels,
                      CoverageRasterizer& rasterizer);

} // namespace proupsells::rasterbackend
