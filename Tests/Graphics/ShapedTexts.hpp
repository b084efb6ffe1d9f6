// Short ways to shape texts with the fixed metrics and to read laid-out lines.
#pragma once

#include <string>
#include <vector>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Platform/Graphics/TextLayout.hpp"

namespace proupsells::graphics {

using ShapedTextPointer = std::shared_ptr<const ShapedText>;

// At size 10 a character is 5 wide and a line 12.5 high.
inline StyledRun styled(std::string text, double size = 10, double kern = 0) { return {std::move(text), Font{.size = size}, kern}; }

inline ShapedTextPointer shaped(const std::vector<StyledRun>& runs,
                                geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight) {
    return headless::FixedTextShaper().shape(runs, "en", direction);
}

inline ShapedTextPointer shaped(std::string text, geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight) {
    return shaped(std::vector{styled(std::move(text))}, direction);
}

inline TextLayout laidOut(const ShapedText& text, const TextLayoutRequest& request) {
    TextLayout layout;
    layOutText(text, request, layout);
    return layout;
}

inline std::string textOf(const ShapedText& text) {
    std::string joined;
    for (const StyledRun& run : text.runs) joined += run.text;
    return joined;
}

inline std::string textOf(const ShapedText& text, std::uint32_t firstCluster, std::uint32_t endCluster) {
    std::string result;
    const std::string all = textOf(text);
    for (std::uint32_t index = firstCluster; index < endCluster; ++index) {
        result += all.substr(text.clusters[index].textOffset, text.clusters[index].textLength);
    }
    return result;
}

// In logical order, with the ellipsis that a cut line ends in.
inline std::vector<std::string> linesOf(const ShapedText& text, const TextLayout& layout) {
    std::vector<std::string> lines;
    for (const TextLine& line : layout.lines) {
        lines.push_back(textOf(text, line.firstCluster, line.endCluster) + (line.isTruncated ? "…" : ""));
    }
    return lines;
}

inline std::vector<std::string> linesOf(const std::string& text, const TextLayoutRequest& request) {
    const ShapedTextPointer shapedText = shaped(text);
    return linesOf(*shapedText, laidOut(*shapedText, request));
}

} // namespace proupsells::graphics
