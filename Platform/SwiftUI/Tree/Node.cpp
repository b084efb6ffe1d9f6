#include "Platform/SwiftUI/Tree/Node.hpp"

#include "Platform/Accessibility/NodeId.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/SwiftUI/Animation/Transaction.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

Node::Node() : m_id(accessibility::newNodeId()) {}
Node::~Node() = default;

Node::Leaving::Leaving(std::unique_ptr<Node> leavingNode, std::size_t leavingSlot)
    : node(std::move(leavingNode)), slot(leavingSlot) {}
Node::Leaving::Leaving(Leaving&&) noexcept = default;
Node::Leaving& Node::Leaving::operator=(Leaving&& other) noexcept {
    if (timer) timer->invalidate();
    node = std::move(other.node);
    slot = other.slot;
    timer = std::move(other.timer);
    return *this;
}
Node::Leaving::~Leaving() {
    if (timer) timer->invalidate();
}

void Node::setNeedsBuild() {
    if (!m_needsBuild) {
        m_needsBuild = true;
        for (Node* outer = m_parent; outer && !outer->m_hasDirtyDescendant; outer = outer->m_parent)
            outer->m_hasDirtyDescendant = true;
    }
    if (const auto& animation = Transaction::currentAnimation()) m_buildAnimation = std::make_unique<motion::Animation>(*animation);
    m_host->setNeedsBuild();
}

void Node::invalidateLayout() {
    for (Node* node = this; node && node->m_invalidation != m_host->m_layoutCount; node = node->m_parent) {
        node->m_invalidation = m_host->m_layoutCount;
        node->m_sizeCount = 0;
        node->m_needsLayout = true;
    }
    m_sizeCount = 0;
    m_needsLayout = true;
    m_host->setNeedsLayout();
}

void Node::noteMovement(double end_s) {
    for (Node* node = this; node && node->m_movesUntil_s < end_s; node = node->m_parent) node->m_movesUntil_s = end_s;
    m_host->noteAnimation(end_s);
}

void Node::setNeedsDisplay() { m_host->setNeedsDisplay(); }

void Node::setDependsOnPosition() {
    for (Node* node = this; node && !node->m_dependsOnPosition; node = node->m_parent) node->m_dependsOnPosition = true;
}

void Node::collectLayoutChildren(std::vector<Node*>& result) const {
    for (const auto& child : m_children) {
        if (!child || child->isAbsent()) continue;
        if (child->isTransparent())
            child->collectLayoutChildren(result);
        else
            result.push_back(child.get());
    }
}

void Node::dropSizes() {
    m_sizeCount = 0;
    m_needsLayout = true;
    for (const auto& child : m_children)
        if (child) child->dropSizes();
}

bool Node::hasLeft() const {
    for (const Node* node = this; node; node = node->m_parent)
        if (node->m_isLeaving) return true;
    return false;
}

} // namespace proupsells::swiftui
