#include "Platform/SwiftUI/Layout/StackLayout.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::swiftui {

using geometry::ProposedSize;
using geometry::Size;

Size StackLayout::makeSize(double along, double across) const {
    return m_axis == Axis::horizontal ? Size{along, across} : Size{across, along};
}

void StackLayout::setNodes(const std::vector<Node*>& nodes) {
    m_items.clear();
    for (Node* node : nodes) m_items.push_back({.node = node, .priority = node->layoutPriority()});
}

Size StackLayout::arrange(const ProposedSize& proposal, double spacing, std::optional<double> alignment) {
    if (m_items.empty()) return {};
    const auto& length = m_axis == Axis::horizontal ? proposal.width : proposal.height;
    const auto& cross = m_axis == Axis::horizontal ? proposal.height : proposal.width;
    const double gaps = spacing * double(m_items.size() - 1);
    if (length && std::isfinite(*length)) {
        shareOut(*length - gaps, cross);
    } else {
        for (Item& item : m_items) offer(item, length, cross);
    }
    double position = 0;
    for (Item& item : m_items) {
        item.position = position;
        position += along(item.size) + spacing;
    }
    return makeSize(position - spacing, alignAcross(alignment));
}

void StackLayout::offer(Item& item, std::optional<double> length, std::optional<double> cross) {
    item.proposal = m_axis == Axis::horizontal ? ProposedSize{length, cross} : ProposedSize{cross, length};
    item.size = item.node->sizeThatFits(item.proposal);
}

void StackLayout::shareOut(double length, std::optional<double> cross) {
    if (m_items.size() == 1) return offer(m_items.front(), std::max(0.0, length), cross);
    sortByFlexibility(cross);
    double reserved = 0; // for views of lower priority than those being served
    const double highest = m_items[m_order.front()].priority;
    for (const Item& item : m_items)
        if (item.priority < highest) reserved += item.range.minimum;

    std::size_t served = 0;
    while (served < m_order.size()) {
        const double priority = m_items[m_order[served]].priority;
        std::size_t end = served;
        while (end < m_order.size() && m_items[m_order[end]].priority == priority) ++end;
        if (served > 0)
            for (std::size_t i = served; i < end; ++i) reserved -= m_items[m_order[i]].range.minimum;
        for (; served < end; ++served) {
            Item& item = m_items[m_order[served]];
            offer(item, std::max(0.0, (length - reserved) / double(end - served)), cross);
            length -= along(item.size);
        }
    }
}

void StackLayout::sortByFlexibility(std::optional<double> cross) {
    m_order.resize(m_items.size());
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        m_items[i].range = m_items[i].node->lengthRange(m_axis, cross);
        m_order[i] = i;
    }
    const auto comesFirst = [this](std::size_t a, std::size_t b) {
        const Item &first = m_items[a], &second = m_items[b];
        if (first.priority != second.priority) return first.priority > second.priority;
        const double firstFlexibility = first.range.maximum - first.range.minimum;
        const double secondFlexibility = second.range.maximum - second.range.minimum;
        if (firstFlexibility != secondFlexibility) return firstFlexibility < secondFlexibility;
        return a < b;
    };
    // No two items are equal in this order, so the result is certain even with a sort that is not stable. A stable one needs
    // memory.
    std::sort(m_order.begin(), m_order.end(), comesFirst);
}

double StackLayout::alignAcross(std::optional<double> alignment) {
    if (!alignment) return alignBaselines();
    double extent = 0;
    for (const Item& item : m_items) extent = std::max(extent, across(item.size));
    // In a stack of unlimited extent, views stay at its start.
    for (Item& item : m_items) item.crossPosition = std::isfinite(extent) ? (extent - across(item.size)) * *alignment : 0;
    return extent;
}

double StackLayout::alignBaselines() {
    double ascent = 0, descent = 0;
    for (Item& item : m_items) {
        item.crossPosition = item.node->firstBaseline(item.proposal);
        ascent = std::max(ascent, item.crossPosition);
        descent = std::max(descent, across(item.size) - item.crossPosition);
    }
    for (Item& item : m_items) item.crossPosition = ascent - item.crossPosition;
    return ascent + descent;
}

} // namespace proupsells::swiftui
