// Something with an action, for fingers and for keyboards and other means to act.
#pragma once

#include <functional>
#include <memory>

#include "Platform/SwiftUI/Tree/Callback.hpp"

namespace proupsells::swiftui {

class Node;

// Part of a node.
class TapTarget {
public:
    ~TapTarget();

    void adopt(Node& node, Action action);
    // Runs the newest action, which may do anything: take the node out of the tree, or let go of everything. Does nothing while
    // the node is disabled.
    void act() const;
    // The same from outside, at any later time. Does nothing where the node has gone or cannot be seen any more.
    std::function<void()> activation() const;

private:
    void activate() const;

    Node* m_node = nullptr;
    Action m_action;
    // Points here for as long as the target lives; made when it is first asked for.
    mutable std::shared_ptr<const TapTarget*> m_self;
};

} // namespace proupsells::swiftui
