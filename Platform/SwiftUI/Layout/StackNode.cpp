#include "Platform/SwiftUI/Layout/StackNode.hpp"

namespace proupsells::swiftui {

using geometry::Point;
using geometry::ProposedSize;
using geometry::Size;

void StackNode::adoptLayout(double spacing, std::optional<double> alignment) {
    if (!isNew() && (spacing != m_spacing || alignment != m_alignment)) invalidateLayout();
    m_spacing = spacing;
    m_alignment = alignment;
}

Size StackNode::measure(const ProposedSize& proposal) {
    if (isFirstMeasure()) {
        m_nodes.clear();
        collectLayoutChildren(m_nodes);
        m_layout.setNodes(m_nodes);
    }
    m_arranged = proposal;
    return m_layout.arrange(proposal, m_spacing, m_alignment);
}

// The last arrangement may have been made for another proposal.
void StackNode::arrangeFor(const ProposedSize& proposal) {
    if (m_arranged == proposal) return;
    m_arranged = proposal;
    m_layout.arrange(proposal, m_spacing, m_alignment);
}

void StackNode::layOut(const ProposedSize& proposal, Size size) {
    arrangeFor(proposal);
    for (const StackLayout::Item& item : m_layout.items()) {
        const Point origin =
            m_axis == Axis::horizontal ? Point{item.position, item.crossPosition} : Point{item.crossPosition, item.position};
        placeAt(*item.node, origin, item.size, item.proposal);
    }
    settleTransparentChildren(size);
}

double StackNode::firstBaseline(const ProposedSize& proposal) {
    sizeThatFits(proposal);
    arrangeFor(proposal);
    if (m_layout.items().empty()) return 0;
    const StackLayout::Item& first = m_layout.items().front();
    const double top = m_axis == Axis::horizontal ? first.crossPosition : first.position;
    return top + first.node->firstBaseline(first.proposal);
}

bool TransparentNode::isAbsent() const {
    for (const auto& child : children())
        if (child && !child->isAbsent()) return false;
    return true;
}

} // namespace proupsells::swiftui
