// Shapes what has one font, one script and one direction.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <hb.h>

#include "Backends/Raster/RasterShapedText.hpp"

namespace proupsells::rasterbackend {

// Neighbouring clusters of one run, and the text around them, which letters may join with.
struct Segment {
    std::uint32_t first = 0; // cluster
    std::uint32_t end = 0;
    std::u16string_view units;                 // of the whole piece of text
    std::span<const std::uint32_t> unitStarts; // in `units`, of the segment's clusters, and their end
    hb_script_t script = HB_SCRIPT_COMMON;
    hb_language_t language = HB_LANGUAGE_INVALID;
};

class SegmentShaper {
public:
    SegmentShaper();

    // Gives the segment's clusters their advances and groups, and appends their glyphs.
    void shape(const Segment& segment, GlyphTable& font, RasterShapedText& result);
    // The same without any font: room for the clusters, and nothing in it.
    static void leaveRoom(const Segment& segment, RasterShapedText& result);

private:
    struct BufferDestroyer {
        void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
    };
    // Glyphs from left to right, and the clusters that they belong to.
    struct Group {
        std::uint32_t first = 0, end = 0;
        unsigned firstGlyph = 0, endGlyph = 0;
    };

    void fillBuffer(const Segment& segment, bool isRightToLeft);
    void readGroups(const Segment& segment, bool isRightToLeft);
    void takeGroup(const Group& group, const Segment& segment, GlyphTable& font, RasterShapedText& result,
                   bool isRightToLeft) const;

    std::unique_ptr<hb_buffer_t, BufferDestroyer> m_buffer;
    std::vector<Group> m_groups;
};

} // namespace proupsells::rasterbackend
