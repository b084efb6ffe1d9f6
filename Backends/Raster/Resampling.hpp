// Pictures at other sizes.
#pragma once

#include "Backends/Raster/Picture.hpp"

namespace proupsells::rasterbackend {

// The picture stretched over the size. A smaller pixel is the mean of the area that it covers, to the fraction of a pixel; a larger
// picture is interpolated between the centres of the pixels. Both happen in premultiplied colours, so that no edge gets a fringe.
// Shares the pixels where the size stays. Null for a null picture, and where a length is not positive.
Picture resampled(const Picture& picture, int width, int height);

} // namespace proupsells::rasterbackend
