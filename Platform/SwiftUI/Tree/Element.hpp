// A view value on its way to its node.
#pragma once

#include <memory>

#include "Platform/SwiftUI/Tree/Key.hpp"
#include "Platform/SwiftUI/Tree/TypeKey.hpp"

namespace proupsells::swiftui {

class Node;
struct UpdatePass;

// Lives in the element arena for one build. All elements of one type go to nodes of one type.
class Element {
public:
    explicit Element(TypeKey type) : m_type(type) {}
    virtual ~Element() = default;
    Element(const Element&) = delete;

    TypeKey type() const { return m_type; }
    virtual std::unique_ptr<Node> makeNode() = 0;
    // Hands the value over to a node that makeNode() has made, now or in an earlier build. Called once.
    virtual void update(Node& node, UpdatePass& pass) = 0;

    Key key;

private:
    friend class ElementArena;
    TypeKey m_type;
    Element* m_older = nullptr;
};

} // namespace proupsells::swiftui
