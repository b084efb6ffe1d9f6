// Lines made from shaped text.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/ShapedText.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::graphics {

// Neighbouring clusters of one run and one direction, as they stand on a line.
struct TextFragment {
    std::uint32_t firstCluster = 0;
    std::uint32_t endCluster = 0;
    std::uint16_t run = 0;
    bool isRightToLeft = false;
    double x = 0; // of its left edge, from the line's left edge (where a line of a right-to-left paragraph has its ellipsis)
    double width = 0;

    bool operator==(const TextFragment&) const = default;
};

// A line as it stands: clusters and fragments are ranges of the text's and the layout's. Lengths are in points.
struct TextLine {
    std::uint32_t firstCluster = 0;
    std::uint32_t endCluster = 0;    // without the blanks at its end
    std::uint32_t firstFragment = 0; // in visual order, left to right
    std::uint32_t endFragment = 0;
    double width = 0;
    double ascent = 0;
    double height = 0;
    bool isRightToLeft = false; // reads like its paragraph
    // The line ends in an ellipsis of `ellipsisWidth`, which `width` includes; it stands where the paragraph's lines end.
    bool isTruncated = false;
    double ellipsisWidth = 0;
    std::uint16_t ellipsisRun = 0;

    bool operator==(const TextLine&) const = default;
};

// How a text is to be wrapped. Lengths are in points.
struct TextLayoutRequest {
    std::optional<double> width;      // absent: never wrapped
    std::optional<double> height;     // absent: no limit; otherwise lines that do not fit are cut, the first one never
    std::optional<int> lineLimit;     // absent: no limit
    bool avoidsShortLastLine = false; // see layOutText
    double lineSpacing = 0;
    geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight; // the screen's, for the alignment
    double ellipsisWidth = 0; // of "…" in the text's font; used when something is cut
};

struct TextLayout {
    std::vector<TextLine> lines;
    std::vector<TextFragment> fragments;
    geometry::Size size; // the widest line's width, the lines' heights and the spacing between them
    bool isTruncated = false;
    double lineSpacing = 0;                                                       // as requested, between two lines
    geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight; // as requested
};

// Greedy wrapping at the allowed breaks; a word wider than the line is broken between clusters. An empty text has one line of
// no width and its first run's height; one that ends in a line feed has an empty last line. The last line of a cut text is filled
// with as much of the text as leaves room for the ellipsis. Where a short last line is to be avoided, the text does not end in a
// line of one word that is less than a third of the widest line, if as many lines can be filled otherwise. Keeps the vectors'
// memory of `result`.
PROUPSELLS_EXPORT void layOutText(const ShapedText& text, const TextLayoutRequest& request, TextLayout& result);

// The width below which a word, a number or whatever else may not be broken would be.
PROUPSELLS_EXPORT double unbreakableWidth(const ShapedText& text);

} // namespace proupsells::graphics
