// Colours out of pictures.
#pragma once

#include "Backends/Raster/Picture.hpp"
#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

// Of the pixel at `place`, in pixels; of the nearest one where that lies outside. The picture must be opaque and not null.
PROUPSELLS_EXPORT graphics::RGBA colorAt(const Picture& picture, geometry::Point place);

} // namespace proupsells::rasterbackend
