// What the nodes of rows, columns and groups have in common.
#pragma once

#include <optional>
#include <vector>

#include "Platform/SwiftUI/Layout/StackLayout.hpp"

namespace proupsells::swiftui {

class StackNode : public Node {
public:
    explicit StackNode(Axis axis) : m_axis(axis), m_layout(axis) {}

    std::optional<Axis> stackAxis() const override { return m_axis; }
    double firstBaseline(const geometry::ProposedSize& proposal) override;

protected:
    // `alignment` as StackLayout takes it.
    void adoptLayout(double spacing, std::optional<double> alignment);
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;

private:
    void arrangeFor(const geometry::ProposedSize& proposal);

    Axis m_axis;
    StackLayout m_layout;
    double m_spacing = defaultSpacing;
    std::optional<double> m_alignment = 0.5;
    std::optional<geometry::ProposedSize> m_arranged;
    std::vector<Node*> m_nodes;
};

// The container around lays the children out. Without one they make a column.
class TransparentNode : public StackNode {
public:
    TransparentNode() : StackNode(Axis::vertical) {}

    bool isTransparent() const override { return true; }
    bool isAbsent() const override;
    std::optional<Axis> stackAxis() const override { return std::nullopt; }
};

} // namespace proupsells::swiftui
