#include "Backends/Raster/PieceShaper.hpp"

#include <algorithm>

#include "Backends/Raster/ScriptRuns.hpp"

namespace proupsells::rasterbackend {

namespace {

// Control characters have neither width nor shape, a tab is a blank, and nothing stands for an object.
char16_t shapedUnit(char16_t unit) {
    if (unit == u'\t') return u' ';
    if (unit == 0xFFFC) return 0xFFFD;
    const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0xAD || unit == 0x2028;
    const bool isDirectional = (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
    return isControl || isDirectional ? u'\u200B' : unit;
}

std::string scriptCode(hb_script_t script) {
    char code[4];
    hb_tag_to_string(hb_script_to_iso15924_tag(script), code);
    return std::string(code, sizeof code);
}

} // namespace

void PieceShaper::begin(RasterShapedText& result, const RunUnits& text, std::span<const std::uint32_t> unitStarts,
                        std::string_view language) {
    m_result = &result;
    m_text = &text;
    m_textStarts = unitStarts;
    if (m_shapingLanguage == HB_LANGUAGE_INVALID || m_language != language) {
        m_language = language;
        m_shapingLanguage = hb_language_from_string(language.empty() ? "und" : m_language.c_str(), -1);
    }
    m_faces.clear();
    for (const graphics::StyledRun& run : result.runs) m_faces.push_back(&m_catalog.face(run.font.face));
}

void PieceShaper::shape(std::uint32_t first, std::uint32_t end) {
    m_first = first;
    m_end = end;
    const std::uint32_t firstUnit = m_textStarts[first], endUnit = m_textStarts[end];
    m_units.assign(m_text->units(), firstUnit, endUnit - firstUnit);
    std::transform(m_units.begin(), m_units.end(), m_units.begin(), shapedUnit);
    m_starts.clear();
    for (std::uint32_t cluster = first; cluster <= end; ++cluster) m_starts.push_back(m_textStarts[cluster] - firstUnit);
    findScripts(m_units, m_starts, m_scripts);
    chooseFonts();
    for (std::uint32_t segment = first; segment < end;) {
        std::uint32_t next = segment + 1;
        const auto belongs = [&](std::uint32_t cluster) {
            return m_result->clusters[cluster].run == m_result->clusters[segment].run &&
                   m_scripts[cluster - first] == m_scripts[segment - first] &&
                   *m_fonts[cluster - first] == *m_fonts[segment - first];
        };
        while (next < end && belongs(next)) ++next;
        shapeSegment(segment, next);
        segment = next;
    }
}

std::u16string_view PieceShaper::unitsOf(std::uint32_t cluster) const {
    const std::uint32_t start = m_starts[cluster - m_first];
    return std::u16string_view(m_units).substr(start, m_starts[cluster - m_first + 1] - start);
}

void PieceShaper::chooseFonts() {
    m_fonts.clear();
    for (std::uint32_t cluster = m_first; cluster < m_end; ++cluster) m_fonts.push_back(&fontOf(cluster));
}

const GlyphTableRef& PieceShaper::fontOf(std::uint32_t cluster) {
    const CatalogFace& face = *m_faces[m_result->clusters[cluster].run];
    const std::u16string_view units = unitsOf(cluster);
    // Below the first emoji, a character alone needs nothing but a glyph.
    constexpr char16_t firstEmoji = 0x203C;
    if (face.font && units.size() == 1 && units[0] < firstEmoji && face.font->file().covers(units[0])) return face.font;

    findNeeds(units, m_needs);
    return m_catalog.fontFor(face, m_needs, m_language, scriptCode(m_scripts[cluster - m_first]));
}

void PieceShaper::shapeSegment(std::uint32_t first, std::uint32_t end) {
    const GlyphTableRef& font = *m_fonts[first - m_first];
    const auto starts = std::span<const std::uint32_t>(m_starts).subspan(first - m_first, end - first + 1);
    const Segment segment{first, end, m_units, starts, m_scripts[first - m_first], m_shapingLanguage};
    if (!font) return SegmentShaper::leaveRoom(segment, *m_result);
    std::vector<std::shared_ptr<GlyphTable>>& tables = m_result->glyphTables;
    if (std::find(tables.begin(), tables.end(), font) == tables.end()) tables.push_back(font);
    m_segmentShaper.shape(segment, *font, *m_result);
}

} // namespace proupsells::rasterbackend
