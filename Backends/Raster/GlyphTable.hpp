// The shapes of one font's glyphs, each read once.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "Backends/Raster/FontFile.hpp"

namespace proupsells::rasterbackend {

class GlyphTable {
public:
    explicit GlyphTable(std::shared_ptr<const FontFile> file) : m_file(std::move(file)) {}

    const FontFile& file() const { return *m_file; }
    // The address is good for the table's life.
    const GlyphShape& shape(std::uint32_t glyph);

private:
    std::shared_ptr<const FontFile> m_file;
    std::unordered_map<std::uint32_t, GlyphShape> m_shapes;
};

} // namespace proupsells::rasterbackend
