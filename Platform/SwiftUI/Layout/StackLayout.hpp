// How a stack shares out its length.
#pragma once

#include <optional>
#include <vector>

#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"

namespace proupsells::swiftui {

// Finds the lengths of a stack's views along its axis. Views of higher priority come first, and among equals the least flexible
// ones. Each is offered an equal part of what is left; what it does not take is left to the others. Memory is used again.
class StackLayout {
public:
    struct Item {
        Node* node = nullptr;
        double priority = 0;
        LengthRange range;
        geometry::ProposedSize proposal; // what it has been offered
        geometry::Size size;             // what it takes
        double position = 0;             // of its start along the axis
        double crossPosition = 0;        // from the leading or top edge of the stack
    };

    explicit StackLayout(Axis axis) : m_axis(axis) {}

    // The views to lay out; in order.
    void setNodes(const std::vector<Node*>& nodes);
    // Decides on every item for the proposal and returns the stack's size. `alignment` is a share of the other dimension, from 0
    // (leading or top) to 1. Absent: the first baselines meet.
    geometry::Size arrange(const geometry::ProposedSize& proposal, double spacing, std::optional<double> alignment);

    std::vector<Item>& items() { return m_items; }

private:
    double along(geometry::Size size) const { return m_axis == Axis::horizontal ? size.width : size.height; }
    double across(geometry::Size size) const { return m_axis == Axis::horizontal ? size.height : size.width; }
    geometry::Size makeSize(double along, double across) const;
    void offer(Item& item, std::optional<double> length, std::optional<double> cross);
    void shareOut(double length, std::optional<double> cross);
    void sortByFlexibility(std::optional<double> cross);
    double alignAcross(std::optional<double> alignment);
    double alignBaselines();

    Axis m_axis;
    std::vector<Item> m_items;
    std::vector<std::size_t> m_order; // of sharing out
};

} // namespace proupsells::swiftui
