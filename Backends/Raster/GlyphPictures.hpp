// Reads coloured glyphs out of an emoji font.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "Backends/Raster/GlyphShape.hpp"

namespace proupsells::rasterbackend {

// Opens the font when the first picture is asked for. Main thread only.
class GlyphPictures {
public:
    // The bytes of the font's file, which stay where they are.
    GlyphPictures(std::span<const char> file, int index);
    ~GlyphPictures();
    GlyphPictures(const GlyphPictures&) = delete;

    // A shape with the glyph's picture, whether the font holds it as pixels or as layers. Empty where the glyph has no colours.
    GlyphShape shape(std::uint32_t glyph);

private:
    struct Face;

    std::span<const char> m_file;
    int m_index;
    std::unique_ptr<Face> m_face;
};

} // namespace proupsells::rasterbackend
