// The nodes of modifiers, and how a modifier gets to its node.
#pragma once

#include <type_traits>
#include <utility>

#include "Platform/SwiftUI/Tree/Node.hpp"

namespace proupsells::swiftui {

// Has one child, and takes its size and place unless it overrides them.
class ModifierNode : public Node {
public:
    bool isAbsent() const override { return !onlyChild() || onlyChild()->isAbsent(); }
    bool isSpacer() const override { return onlyChild() && onlyChild()->isSpacer(); }
    double layoutPriority() const override { return onlyChild() ? onlyChild()->layoutPriority() : 0; }
    double firstBaseline(const geometry::ProposedSize& proposal) override;
    // The child's. A modifier that changes sizes must override it; calling Node's is enough.
    LengthRange lengthRange(Axis axis, std::optional<double> crossProposal) override;
    bool passesTransitionsOn() const override { return true; }
    bool sharesStackAxis() const override { return true; }

    // Updates the child; a modifier that changes the environment overrides it.
    virtual void adoptContent(const View& content, UpdatePass& pass) { updateChild(0, content, pass); }

protected:
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;
};

template <class NodeType, class Value>
class ModifierElement final : public Element {
public:
    template <class Source>
    ModifierElement(Source&& value, const View& content)
        : Element(typeKey<NodeType>()), m_value(std::forward<Source>(value)), m_content(content) {}

    std::unique_ptr<Node> makeNode() override { return std::make_unique<NodeType>(); }
    void update(Node& node, UpdatePass& pass) override {
        auto& modifier = static_cast<NodeType&>(node);
        modifier.adopt(std::move(m_value), pass);
        modifier.adoptContent(m_content, pass);
    }

private:
    Value m_value;
    View m_content;
};

// What modified() of a modifier gives back: `value` goes to adopt(Value&&, UpdatePass&) of a NodeType, which then updates
// `content`.
template <class NodeType, class Value>
View newModifier(Value&& value, const View& content) {
    Element* element =
        ElementArena::current().make<ModifierElement<NodeType, std::remove_cvref_t<Value>>>(std::forward<Value>(value), content);
    // A modified view has the key of the view inside, so that a transition behind an id() sees it come and go.
    if (const Element* inside = content.element()) element->key = inside->key;
    return View(element);
}

} // namespace proupsells::swiftui
