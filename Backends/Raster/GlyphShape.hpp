// What one glyph looks like.
#pragma once

#include "Backends/Raster/Picture.hpp"
#include "Platform/Geometry/Path.hpp"

namespace proupsells::rasterbackend {

// A glyph is a filled outline or, in an emoji font, a picture. Lengths are in ems, from the pen's place on the baseline, y
// downwards.
struct GlyphShape {
    geometry::Path outline;
    Picture picture; // null for an outline
    geometry::Rect pictureFrame;

    bool isEmpty() const { return outline.isEmpty() && picture.isNull(); }
};

} // namespace proupsells::rasterbackend
