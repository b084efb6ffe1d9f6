// A screen in words, so that two screens can be compared and a difference can be read.
#pragma once

#include <sstream>
#include <string>

#include "Platform/Accessibility/SemanticNode.hpp"

namespace proupsells::tests {

inline void describe(const accessibility::SemanticNode& node, int depth, std::ostream& stream) {
    const geometry::Rect& frame = node.frame;
    stream << std::string(std::size_t(depth), ' ') << node.type << " [" << frame.minX() << ' ' << frame.minY() << ' '
           << frame.width() << ' ' << frame.height() << "] " << node.isOnScreen << ' ' << node.identifier << '|' << node.label
           << '|' << node.value << '|' << int(node.traits) << '|' << node.image << '|' << node.opacity;
    if (node.text) {
        stream << " \"" << node.text->text << "\" " << node.text->size << ' ' << node.text->lineCount << node.text->isTruncated;
        for (const auto& run : node.text->runs) stream << " (" << run.text << ' ' << run.size << ')';
    }
    if (node.scroll) stream << " at " << node.scroll->contentOffset.x << ' ' << node.scroll->contentOffset.y;
    stream << '\n';
    for (const accessibility::SemanticNode& child : node.children) describe(child, depth + 1, stream);
}

// A line for each view, with what can be seen and heard of it.
inline std::string described(const accessibility::SemanticNode& root) {
    std::ostringstream stream;
    describe(root, 0, stream);
    return stream.str();
}

} // namespace proupsells::tests
