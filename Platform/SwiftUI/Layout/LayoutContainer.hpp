// Containers that place their views by a rule of their own.
#pragma once

#include <concepts>
#include <optional>
#include <string_view>
#include <vector>

#include "Platform/SwiftUI/Tree/ValueElement.hpp"

namespace proupsells::swiftui {

// The views of such a container, seen through groups and loops; absent ones are not among them.
class LayoutSubviews {
public:
    explicit LayoutSubviews(const std::vector<Node*>& nodes) : m_nodes(nodes) {}

    std::size_t size() const { return m_nodes.size(); }
    geometry::Size sizeThatFits(std::size_t index, const geometry::ProposedSize& proposal) const {
        return m_nodes[index]->sizeThatFits(proposal);
    }
    bool isSpacer(std::size_t index) const { return m_nodes[index]->isSpacer(); }
    double leastWidth(std::size_t index) const { return m_nodes[index]->lengthRange(Axis::horizontal, std::nullopt).minimum; }

private:
    const std::vector<Node*>& m_nodes;
};

// Where one of them goes: x grows from the leading edge.
struct SubviewPlace {
    geometry::Point origin;
    geometry::ProposedSize proposal;
};

// A rule: how large the container is for a proposal, and where its views stand in a size. `places` has an entry for each view.
template <class Rule>
concept LayoutRule = std::equality_comparable<Rule> &&
    requires(const Rule& rule, const geometry::ProposedSize& proposal, geometry::Size size, const LayoutSubviews& subviews,
             std::vector<SubviewPlace>& places) {
    { rule.sizeThatFits(proposal, subviews) } -> std::same_as<geometry::Size>;
    rule.placeSubviews(size, proposal, subviews, places);
};

namespace detail {

class LayoutContainerNode : public Node {
public:
    std::optional<Axis> stackAxis() const override { return Axis::horizontal; }
    bool squeezesSpacers() const override { return true; }

protected:
    virtual geometry::Size sizeByRule(const geometry::ProposedSize&, const LayoutSubviews&) const = 0;
    virtual void placeByRule(geometry::Size, const geometry::ProposedSize&, const LayoutSubviews&,
                             std::vector<SubviewPlace>&) const = 0;

    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;

private:
    const std::vector<Node*>& collectSubviews();

    std::vector<Node*> m_subviews;
    std::vector<SubviewPlace> m_places;
};

} // namespace detail

// `LayoutContainer<Diagonal>{.rule = {.step = 10}, .content = {…}}`. Appears in the semantic tree under the rule's name.
template <LayoutRule Rule>
struct LayoutContainer {
    Rule rule;
    ViewList content;

    Element* makeElement() &&;
};

namespace detail {

template <LayoutRule Rule>
class RuledNode final : public LayoutContainerNode {
public:
    void adopt(LayoutContainer<Rule>&& container, UpdatePass& pass) {
        if (!(container.rule == m_rule)) invalidateLayout();
        m_rule = container.rule;
        updateChildren(container.content, pass);
    }

protected:
    std::string_view semanticType() const override { return typeNameOf<Rule>(); }
    geometry::Size sizeByRule(const geometry::ProposedSize& proposal, const LayoutSubviews& subviews) const override {
        return m_rule.sizeThatFits(proposal, subviews);
    }
    void placeByRule(geometry::Size size, const geometry::ProposedSize& proposal, const LayoutSubviews& subviews,
                     std::vector<SubviewPlace>& places) const override {
        m_rule.placeSubviews(size, proposal, subviews, places);
    }

private:
    Rule m_rule;
};

} // namespace detail

template <LayoutRule Rule>
Element* LayoutContainer<Rule>::makeElement() && {
    return newElement<detail::RuledNode<Rule>>(std::move(*this));
}

} // namespace proupsells::swiftui
