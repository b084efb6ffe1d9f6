// Reads the outlines of glyphs out of a font.
#pragma once

#include <cstdint>

#include "Platform/Geometry/Path.hpp"

struct hb_font_t;

namespace proupsells::rasterbackend {

// In ems, y downwards, as exact as the font has it: `unscaled` counts in the font's own units. Empty for a blank, and for a glyph
// that has none.
geometry::Path readOutline(hb_font_t* unscaled, std::uint32_t glyph);

} // namespace proupsells::rasterbackend
