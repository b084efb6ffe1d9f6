#include "Backends/Raster/GlyphTable.hpp"

namespace proupsells::rasterbackend {

const GlyphShape& GlyphTable::shape(std::uint32_t glyph) {
    const auto found = m_shapes.find(glyph);
    if (found != m_shapes.end()) return found->second;
    return m_shapes.emplace(glyph, m_file->readShape(glyph)).first->second;
}

} // namespace proupsells::rasterbackend
