// Reads the shapes of glyphs out of a font.
#pragma once

#include <cstdint>

#include "Backends/Raster/GlyphShape.hpp"

struct FT_FaceRec_;

namespace proupsells::rasterbackend {

// The glyph's outline, as exact as the font has it. Empty for a blank, and for a glyph that has none.
geometry::Path readOutline(FT_FaceRec_* face, std::uint32_t glyph);

// A shape with the glyph's coloured picture, whether the font holds it as pixels or as layers. Empty where the glyph has no
// colours. Changes the size that the face is set to.
GlyphShape readPicture(FT_FaceRec_* face, std::uint32_t glyph);

} // namespace proupsells::rasterbackend
