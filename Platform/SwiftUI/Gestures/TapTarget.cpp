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
    m_action();
}

std::function<void()> TapTarget::activation() const {
    if (!m_self) m_self = std::make_shared<const TapTarget*>(this);
    return [target = std::weak_ptr(m_self)] {
        if (const auto living = target.lock()) (*living)->act();
    };
}

} // namespace proupsells::swiftui
