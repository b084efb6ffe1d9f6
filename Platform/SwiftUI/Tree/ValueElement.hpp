// Brings the value of a view with a node of its own kind to that node.
#pragma once

#include <type_traits>
#include <utility>

#include "Platform/SwiftUI/Tree/Node.hpp"

namespace proupsells::swiftui {

template <class NodeType, class Value>
class ValueElement final : public Element {
public:
    template <class Source>
    explicit ValueElement(Source&& value) : Element(typeKey<NodeType>()), m_value(std::forward<Source>(value)) {}

    std::unique_ptr<Node> makeNode() override { return std::make_unique<NodeType>(); }
    void update(Node& node, UpdatePass& pass) override { static_cast<NodeType&>(node).adopt(std::move(m_value), pass); }

private:
    Value m_value;
};

// What makeElement() of a view gives back: `value` goes to adopt(Value&&, UpdatePass&) of a NodeType.
template <class NodeType, class Value>
Element* newElement(Value&& value) {
    return ElementArena::current().make<ValueElement<NodeType, std::remove_cvref_t<Value>>>(std::forward<Value>(value));
}

} // namespace proupsells::swiftui
