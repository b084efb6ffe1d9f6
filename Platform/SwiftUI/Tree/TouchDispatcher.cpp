#include "Platform/SwiftUI/Tree/TouchDispatcher.hpp"

#include <algorithm>

#include "Platform/SwiftUI/Tree/ControlSearch.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {
namespace {

bool isInside(const Node* node, const Node& outer) {
    while (node && node != &outer) node = node->parent();
    return node != nullptr;
}

} // namespace

bool TouchDispatcher::touch(const host::Touch& touch) {
    const ViewHost::Hold hold(m_host);
    if (touch.phase == host::TouchPhase::began) return begin(touch);
    if (m_candidates.empty()) return false;

    const bool wasActive = m_active != nullptr;
    if (touch.phase == host::TouchPhase::cancelled) {
        cancel();
        return wasActive;
    }
    // A finger that lifts at another place must have moved there.
    if (touch.phase == host::TouchPhase::moved || !(touch.location == m_location)) move(touch);
    if (touch.phase == host::TouchPhase::ended) {
        const TouchEvent event = eventAt(touch.location);
        if (GestureHandler* handler = release()) handler->touchEnded(event);
    }
    return wasActive;
}

bool TouchDispatcher::begin(const host::Touch& touch) {
    if (m_active) return true;
    m_start = m_location = touch.location;
    m_shift = {};
    collectHandlers(m_host.nodeAt(touch.location));
    if (!hasControl()) {
        if (const ControlSearch search = m_host.controlNear(touch.location); search.nearest) {
            m_shift = search.shift;
            collectHandlers(search.nearest);
        }
    }
    const TouchEvent event = eventAt(touch.location);
    if (GestureHandler* handler = interceptor(event)) {
        m_active = handler;
        handler->touchBegan(event);
        return true;
    }
    for (std::size_t index = 0; index < m_candidates.size() && !m_active; ++index) {
        GestureHandler* handler = m_candidates[index].handler;
        if (handler->touchBegan(event)) m_active = handler;
    }
    if (!m_active) m_candidates.clear();
    return m_active != nullptr;
}

GestureHandler* TouchDispatcher::interceptor(const TouchEvent& event) const {
    for (std::size_t index = m_candidates.size(); index-- > 0;) {
        GestureHandler* handler = m_candidates[index].handler;
        if (handler->interceptsTouch(event)) return handler;
    }
    return nullptr;
}

void TouchDispatcher::move(const host::Touch& touch) {
    m_location = touch.location;
    const TouchEvent event = eventAt(touch.location);
    if (m_active) m_active->touchMoved(event);
    if (!m_active || !m_active->holdsTouch()) offerToOthers(event);
}

void TouchDispatcher::offerToOthers(const TouchEvent& event) {
    for (std::size_t index = 0; index < m_candidates.size(); ++index) {
        GestureHandler* claimer = m_candidates[index].handler;
        if (claimer == m_active || !claimer->claims(event)) continue;
        GestureHandler* before = m_active;
        m_active = claimer;
        if (before) before->touchCancelled();
        TouchEvent atStart = event;
        atStart.location = event.start;
        if (m_active) m_active->touchBegan(atStart);
        if (m_active) m_active->touchMoved(event);
        return;
    }
}

bool TouchDispatcher::scroll(geometry::Point location, geometry::Point delta) {
    const ViewHost::Hold hold(m_host);
    for (Node* node = m_host.nodeAt(location); node; node = node->parent()) {
        GestureHandler* handler = node->gestureHandler();
        if (handler && handler->scrolled(delta)) return true;
    }
    return false;
}

TouchDispatcher::Candidate TouchDispatcher::controlUnder(geometry::Point location) const {
    const auto around = [](Node* node) -> Candidate {
        for (; node; node = node->parent()) {
            GestureHandler* const handler = node->gestureHandler();
            if (handler && handler->isControl()) return {node, handler};
        }
        return {};
    };
    const Candidate hit = around(m_host.nodeAt(location));
    return hit.node ? hit : around(m_host.controlNear(location).nearest);
}

bool TouchDispatcher::hover(std::optional<geometry::Point> location) {
    const ViewHost::Hold hold(m_host);
    const Candidate here = location ? controlUnder(*location) : Candidate{};
    if (here.handler != m_hovered.handler) {
        if (m_hovered.handler) m_hovered.handler->hovered(false);
        m_hovered = here;
        if (m_hovered.handler) m_hovered.handler->hovered(true);
    }
    return here.node && here.node->environment().isEnabled;
}

void TouchDispatcher::cancel() {
    if (GestureHandler* handler = release()) handler->touchCancelled();
}

GestureHandler* TouchDispatcher::release() {
    GestureHandler* handler = m_active;
    m_active = nullptr;
    m_candidates.clear();
    return handler;
}

void TouchDispatcher::nodeGone(const Node& node) {
    if (isInside(m_hovered.node, node)) m_hovered = {};
    std::erase_if(m_candidates, [&](const Candidate& candidate) {
        const bool isGone = isInside(candidate.node, node);
        if (isGone && candidate.handler == m_active) m_active = nullptr;
        return isGone;
    });
}

void TouchDispatcher::collectHandlers(Node* hit) {
    m_candidates.clear();
    for (Node* node = hit; node; node = node->parent()) {
        if (GestureHandler* handler = node->gestureHandler()) m_candidates.push_back({node, handler});
    }
}

bool TouchDispatcher::hasControl() const {
    return std::any_of(m_candidates.begin(), m_candidates.end(),
                       [](const Candidate& candidate) { return candidate.handler->isControl(); });
}

TouchEvent TouchDispatcher::eventAt(geometry::Point location) const {
    return {location + m_shift, m_start + m_shift, m_host.now_s()};
}

} // namespace proupsells::swiftui
