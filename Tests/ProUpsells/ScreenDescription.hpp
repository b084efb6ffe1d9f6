// A screen in words, so that two screens can be compared and a difference can be read.
#pragma once

#include <sstream>
#include <string>

#include "Platform/Accessibility/SemanticNode.hpp"
#include "Tests/ProUpsells/DrawnScreen.hpp"

namespace proupsells::tests {

inline void describe(const accessibility::SpokenInfo& spoken, std::ostream& stream) {
    if (spoken == accessibility::SpokenInfo{}) return;
    stream << " role " << int(spoken.role) << " \"" << spoken.name << "\"";
    if (spoken.isChecked) stream << " checked " << *spoken.isChecked;
    if (spoken.isExpanded) stream << " expanded " << *spoken.isExpanded;
    if (spoken.pageCount > 0) stream << " page " << spoken.page << " of " << spoken.pageCount;
    if (spoken.order != 0) stream << " order " << spoken.order;
    stream << (spoken.isSilent ? " silent" : "") << (spoken.takesFocus ? " focus" : "") << (spoken.isPlate ? " plate" : "");
}

inline void describe(const accessibility::SemanticNode& node, int depth, std::ostream& stream) {
    const geometry::Rect& frame = node.frame;
    stream << std::string(std::size_t(depth), ' ') << node.type << " [" << rounded(frame.minX()) << ' ' << rounded(frame.minY())
           << ' ' << rounded(frame.width()) << ' ' << rounded(frame.height()) << "] " << node.isOnScreen << ' ' << node.identifier
           << '|' << node.label << '|' << node.value << '|' << int(node.traits) << '|' << node.image << '|'
           << rounded(node.opacity);
    if (node.text) {
        stream << " \"" << node.text->text << "\" " << node.text->font << ' ' << rounded(node.text->size) << ' '
               << node.text->lineCount << node.text->isTruncated;
        for (const auto& run : node.text->runs) stream << " (" << run.text << ' ' << rounded(run.size) << ')';
    }
    if (node.scroll)
        stream << " at " << rounded(node.scroll->contentOffset.x) << ' ' << rounded(node.scroll->contentOffset.y) << " of "
               << rounded(node.scroll->contentSize.width) << ' ' << rounded(node.scroll->contentSize.height) << " within "
               << rounded(node.scroll->contentInset.top) << ' ' << rounded(node.scroll->contentInset.bottom);
    if (node.clipView) stream << " plays " << node.clipView->name;
    if (node.isControl) stream << " control " << rounded(node.leastTarget);
    describe(node.spoken, stream);
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
