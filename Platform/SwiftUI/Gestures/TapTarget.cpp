#include "Platform/SwiftUI/Gestures/TapTarget.hpp"

#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

TapTarget::~TapTarget() = default;

void TapTarget::adopt(Node& node, Action action) {
    m_node = &node;
    m_action = std::move(action);
}

void TapTarget::act() const {
    const ViewHost::Hold hold(m_node->host());
    if (m_node->environment().isEnabled) m_action();
}

// Whoever acts without a finger may have looked at the screen long ago, and the update that disables the node or takes it away may
// still be due.
void TapTarget::activate() const {
    ViewHost& host = m_node->host();
    if (host.weak_from_this().expired()) return;
    const ViewHost::Hold hold(host);
    host.update();
    if (host.isVisible() && !m_node->hasLeft()) act();
}

std::function<void()> TapTarget::activation() const {
    if (!m_self) m_self = std::make_shared<const TapTarget*>(this);
    return [target = std::weak_ptr(m_self)] {
        if (const auto living = target.lock()) (*living)->activate();
    };
}

} // namespace proupsells::swiftui
