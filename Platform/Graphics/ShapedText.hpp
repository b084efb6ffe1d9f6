// Text after shaping: clusters with advances, to be wrapped by arithmetic.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Font.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// What may happen to a line after a cluster.
enum class LineBreak : std::uint8_t { none, allowed, mandatory };

// A user-perceived character.
struct Cluster {
    std::uint32_t textOffset = 0;    // bytes, counted through all runs' texts
    std::uint32_t textLength = 0;    // bytes
    double advance = 0;              // points, letter spacing included
    std::uint16_t run = 0;           // index of its styled run
    std::uint8_t bidiLevel = 0;      // odd: right to left
    std::uint8_t paragraphLevel = 0; // its paragraph's; odd: right to left
    LineBreak breakAfter = LineBreak::none;
    bool isWhitespace = false; // takes no room at a line's end; a line feed has no advance at all
};

// A stretch of text in one font, to be shaped.
struct StyledRun {
    std::string text;
    Font font;
    double kern = 0; // points added after each cluster

    bool operator==(const StyledRun&) const = default;
};

// How high the lines of a run are.
struct RunMetrics {
    double ascent = 0;  // points above the baseline
    double descent = 0; // points below it; ascent + descent is the line's height
};

// One text in logical order. A backend's own kind carries its glyphs.
class PROUPSELLS_EXPORT ShapedText {
public:
    virtual ~ShapedText() = default;

    // What was shaped, and what came out.
    std::vector<StyledRun> runs;
    std::vector<RunMetrics> metrics; // one for each run
    std::vector<Cluster> clusters;   // in logical order
    // Lines are filled one after the other, whatever else is asked for, so that they can be worked out by hand.
    bool keepsGreedyLines = false;
};

// All runs' texts, one after the other.
PROUPSELLS_EXPORT std::string joinedText(std::span<const StyledRun> runs);

// Gives the clusters the levels that the current locale services find in the text. A paragraph without a letter reads in
// `fallback`.
PROUPSELLS_EXPORT void assignBidiLevels(ShapedText& text, geometry::LayoutDirection fallback);

} // namespace proupsells::graphics
