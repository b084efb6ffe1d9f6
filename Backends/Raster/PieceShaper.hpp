// Shapes pieces of a paragraph: neighbouring clusters of one direction.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Backends/Raster/FontCatalog.hpp"
#include "Backends/Raster/RunUnits.hpp"
#include "Backends/Raster/SegmentShaper.hpp"

namespace proupsells::rasterbackend {

// Keeps its memory from text to text.
class PieceShaper {
public:
    explicit PieceShaper(FontCatalog& catalog) : m_catalog(catalog) {}

    // The text that the pieces belong to: with its clusters and their levels, and room for a group and a glyph start each.
    void begin(RasterShapedText& result, const RunUnits& text, std::span<const std::uint32_t> unitStarts,
               std::string_view language);
    void shape(std::uint32_t first, std::uint32_t end);

private:
    void chooseFonts();
    const GlyphTableRef& fontOf(std::uint32_t cluster);
    void shapeSegment(std::uint32_t first, std::uint32_t end);
    std::u16string_view unitsOf(std::uint32_t cluster) const;

    FontCatalog& m_catalog;
    SegmentShaper m_segmentShaper;
    RasterShapedText* m_result = nullptr;
    const RunUnits* m_text = nullptr;
    std::span<const std::uint32_t> m_textStarts;
    std::string m_language;
    hb_language_t m_shapingLanguage = HB_LANGUAGE_INVALID;
    std::vector<const CatalogFace*> m_faces; // one for each run

    // Of the piece at hand.
    std::uint32_t m_first = 0, m_end = 0;
    std::u16string m_units;
    std::vector<std::uint32_t> m_starts; // in m_units, one for each cluster, and the end
    std::vector<hb_script_t> m_scripts;
    std::vector<const GlyphTableRef*> m_fonts;
    CharacterNeeds m_needs;
};

} // namespace proupsells::rasterbackend
