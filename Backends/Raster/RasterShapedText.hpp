// Shaped text with the glyphs to paint it with.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Backends/Raster/GlyphTable.hpp"
#include "Platform/Graphics/ShapedText.hpp"

namespace proupsells::rasterbackend {

struct PlacedGlyph {
    const GlyphShape* shape = nullptr;
    float x = 0; // points, from the left end of its group
    float y = 0; // points, from the baseline, downwards
};

// 0 where the font has no size, or none that makes sense.
inline double pointSize(const graphics::StyledRun& run) { return run.font.size > 0 ? run.font.size : 0; }

// A group is the clusters that share glyphs: more than one of them only in a ligature.
class RasterShapedText final : public graphics::ShapedText {
public:
    RasterShapedText();

    // Unlike the address, never used again.
    const std::uint64_t serial;
    std::vector<std::uint32_t> groupStarts; // for each cluster, the first one of its group, which the glyphs belong to
    std::vector<std::uint32_t> glyphStarts; // for each cluster, and the end
    std::vector<PlacedGlyph> glyphs;
    std::vector<std::shared_ptr<GlyphTable>> glyphTables; // keep the shapes alive
};

} // namespace proupsells::rasterbackend
