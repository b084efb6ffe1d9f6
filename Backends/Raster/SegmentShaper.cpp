#include "Backends/Raster/SegmentShaper.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::rasterbackend {

namespace {

using graphics::Cluster;
using graphics::StyledRun;

// Spaced letters stand alone.
constexpr hb_feature_t withoutLigatures[] = {
    {HB_TAG('l', 'i', 'g', 'a'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    {HB_TAG('c', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    {HB_TAG('d', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
    {HB_TAG('h', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END},
};

// Letters that hang together, by a stroke or by a common head line, do so whatever is asked for.
bool isJoined(hb_script_t script) {
    switch (script) {
    case HB_SCRIPT_ARABIC:
    case HB_SCRIPT_SYRIAC:
    case HB_SCRIPT_MANDAIC:
    case HB_SCRIPT_MONGOLIAN:
    case HB_SCRIPT_NKO:
    case HB_SCRIPT_PHAGS_PA:
    case HB_SCRIPT_HANIFI_ROHINGYA:
    case HB_SCRIPT_ADLAM:
    case HB_SCRIPT_DEVANAGARI:
    case HB_SCRIPT_BENGALI:
    case HB_SCRIPT_GURMUKHI: return true;
    default: return false;
    }
}

// In whole shaping units like every other advance, and within eight ems: more would only send the text away.
double letterSpacing(const StyledRun& run, hb_script_t script) {
    if (run.kern == 0 || pointSize(run) == 0 || isJoined(script)) return 0;
    return std::trunc(std::clamp(run.kern / pointSize(run), -8.0, 8.0) * shapingUnitsPerEm) * pointSize(run) / shapingUnitsPerEm;
}

} // namespace

SegmentShaper::SegmentShaper() : m_buffer(hb_buffer_create()) {}

void SegmentShaper::fillBuffer(const Segment& segment, bool isRightToLeft) {
    hb_buffer_t* buffer = m_buffer.get();
    hb_buffer_clear_contents(buffer);
    const auto* units = reinterpret_cast<const std::uint16_t*>(segment.units.data());
    const std::uint32_t first = segment.unitStarts.front(), end = segment.unitStarts.back();
    hb_buffer_add_utf16(buffer, units, int(segment.units.size()), first, int(end - first));
    hb_buffer_set_direction(buffer, isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, segment.script);
    hb_buffer_set_language(buffer, segment.language);
}

void SegmentShaper::shape(const Segment& segment, GlyphTable& font, RasterShapedText& result) {
    const Cluster& first = result.clusters[segment.first];
    const bool isRightToLeft = first.bidiLevel % 2 == 1;
    const bool isSpaced = letterSpacing(result.runs[first.run], segment.script) != 0;
    fillBuffer(segment, isRightToLeft);
    hb_shape(font.file().shapingFont(), m_buffer.get(), isSpaced ? withoutLigatures : nullptr,
             isSpaced ? unsigned(std::size(withoutLigatures)) : 0);
    readGroups(segment, isRightToLeft);
    for (const Group& group : m_groups) takeGroup(group, segment, font, result, isRightToLeft);
}

// In logical order. A cluster in which no glyphs begin shares those of the cluster before.
void SegmentShaper::readGroups(const Segment& segment, bool isRightToLeft) {
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(m_buffer.get(), &count);
    m_groups.clear();
    m_groups.push_back({segment.first, segment.end, isRightToLeft ? count : 0, isRightToLeft ? count : 0});
    std::uint32_t cluster = segment.first;
    for (unsigned step = 0; step < count; ++step) {
        const unsigned glyph = isRightToLeft ? count - 1 - step : step;
        while (segment.unitStarts[cluster - segment.first + 1] <= infos[glyph].cluster) ++cluster;
        if (cluster != m_groups.back().first) {
            m_groups.back().end = cluster;
            m_groups.push_back({cluster, segment.end, isRightToLeft ? glyph + 1 : glyph, isRightToLeft ? glyph + 1 : glyph});
        }
        if (isRightToLeft)
            m_groups.back().firstGlyph = glyph;
        else
            m_groups.back().endGlyph = glyph + 1;
    }
}

void SegmentShaper::takeGroup(const Group& group, const Segment& segment, GlyphTable& font, RasterShapedText& result,
                              bool isRightToLeft) const {
    const StyledRun& run = result.runs[result.clusters[group.first].run];
    const double scale = pointSize(run) / shapingUnitsPerEm, spacing = letterSpacing(run, segment.script);
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(m_buffer.get(), nullptr);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(m_buffer.get(), nullptr);
    const std::uint32_t clusterCount = group.end - group.first;

    result.glyphStarts[group.first] = std::uint32_t(result.glyphs.size());
    // The space after a letter stands on its left where the text reads to the left.
    const double left = isRightToLeft ? spacing * clusterCount : 0;
    double pen = 0;
    for (unsigned glyph = group.firstGlyph; glyph < group.endGlyph; ++glyph) {
        const GlyphShape& shape = font.shape(infos[glyph].codepoint);
        const double x = (pen + positions[glyph].x_offset) * scale + left, y = -positions[glyph].y_offset * scale;
        if (!shape.isEmpty()) result.glyphs.push_back({&shape, float(x), float(y)});
        pen += positions[glyph].x_advance;
    }
    for (std::uint32_t cluster = group.first; cluster < group.end; ++cluster) {
        result.clusters[cluster].advance = pen * scale / clusterCount + spacing;
        result.groupStarts[cluster] = group.first;
        if (cluster > group.first) result.glyphStarts[cluster] = std::uint32_t(result.glyphs.size());
    }
}

void SegmentShaper::leaveRoom(const Segment& segment, RasterShapedText& result) {
    for (std::uint32_t cluster = segment.first; cluster < segment.end; ++cluster) {
        const StyledRun& run = result.runs[result.clusters[cluster].run];
        result.clusters[cluster].advance = pointSize(run) / 2 + letterSpacing(run, segment.script);
        result.groupStarts[cluster] = cluster;
        result.glyphStarts[cluster] = std::uint32_t(result.glyphs.size());
    }
}

} // namespace proupsells::rasterbackend
