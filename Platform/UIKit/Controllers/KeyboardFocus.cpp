#include "Platform/UIKit/Controllers/KeyboardFocus.hpp"

#include <algorithm>

#include "Platform/UIKit/Controllers/FocusRing.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::uikit {

namespace {

void collectControls(const accessibility::SemanticNode& node, std::vector<accessibility::SemanticNode>& controls) {
    if (node.isControl && (node.activate || node.adjust)) {
        accessibility::SemanticNode control = node;
        control.children.clear();
        controls.push_back(std::move(control));
    }
    for (const accessibility::SemanticNode& child : node.children) collectControls(child, controls);
}

} // namespace

KeyboardFocus::Controls KeyboardFocus::controls() const {
    Controls controls;
    collectControls(m_window.semanticTree(), controls);
    return controls;
}

KeyboardFocus::Place* KeyboardFocus::place() {
    const UIViewController* const front = m_window.frontMostViewController();
    std::erase_if(m_places, [](const Place& place) { return place.screen.expired(); });
    const auto known =
        std::find_if(m_places.begin(), m_places.end(), [&](const Place& place) { return place.screen.lock().get() == front; });
    return known == m_places.end() ? nullptr : &*known;
}

std::optional<std::size_t> KeyboardFocus::indexInFocus(const Controls& controls) {
    if (!m_isThere || controls.empty()) return std::nullopt;
    if (!place()) give(controls, 0);
    Place* const here = place();
    const auto control =
        std::find_if(controls.begin(), controls.end(), [&](const auto& node) { return here && node.id == here->control; });
    if (control == controls.end()) return std::nullopt;
    here->index = std::size_t(control - controls.begin());
    return here->index;
}

void KeyboardFocus::give(const Controls& controls, std::size_t index) {
    UIViewController* const front = m_window.frontMostViewController();
    if (!front) return;
    m_isThere = true;
    Place* here = place();
    if (!here) here = &m_places.emplace_back(Place{weakReference(*front), 0, 0});
    here->control = controls[index].id;
    here->index = index;
    m_window.setNeedsDisplay();
}

void KeyboardFocus::giveInSight(const Controls& controls, std::size_t index) {
    give(controls, index);
    if (const auto& reveal = controls[index].reveal) reveal();
}

bool KeyboardFocus::move(int step, bool leavesAtEnds) {
    if (!m_isThere) return take(step > 0 ? host::FocusEnd::first : host::FocusEnd::last);
    const Controls controls = this->controls();
    if (controls.empty()) {
        drop();
        return false;
    }
    const std::size_t last = controls.size() - 1;
    const std::optional<std::size_t> here = indexInFocus(controls);
    // Where the control was that has gone is now the next one.
    const std::size_t lost = place() ? std::min(place()->index, last) : 0;
    const bool isAtEnd = here ? *here == (step > 0 ? last : 0) : step < 0 && lost == 0;
    if (isAtEnd && leavesAtEnds) {
        drop();
        return false;
    }
    if (isAtEnd)
        giveInSight(controls, step > 0 ? 0 : last);
    else
        giveInSight(controls, here ? *here + std::size_t(step) : step > 0 ? lost : lost - 1);
    return true;
}

bool KeyboardFocus::take(host::FocusEnd end) {
    const Controls controls = this->controls();
    if (controls.empty()) return false;
    giveInSight(controls, end == host::FocusEnd::first ? 0 : controls.size() - 1);
    return true;
}

void KeyboardFocus::drop() {
    if (m_isThere) m_window.setNeedsDisplay();
    m_isThere = false;
    m_places.clear();
}

bool KeyboardFocus::use(host::Key key) {
    const Controls controls = this->controls();
    const std::optional<std::size_t> here = indexInFocus(controls);
    if (!here) return false;
    const accessibility::SemanticNode& control = controls[*here];
    if (key == host::Key::activate) {
        if (control.activate) control.activate();
        return control.activate != nullptr;
    }
    if (!control.adjust) return false;
    const bool isForwardKey = key == host::Key::down || key == (m_window.isRightToLeft() ? host::Key::left : host::Key::right);
    control.adjust(isForwardKey ? 1 : -1);
    return true;
}

void KeyboardFocus::paintRing(graphics::PaintContext& context) {
    if (!m_isThere || m_window.isTransitioning()) return;
    const Controls controls = this->controls();
    const std::optional<std::size_t> here = indexInFocus(controls);
    if (!here || !controls[*here].isOnScreen) return;
    constexpr double distance = 2, width = 2, radius = 6;
    const graphics::PaintState state = m_window.windowState();
    context.strokeRoundedRectangle(state, controls[*here].frame.insetBy(-distance, -distance), radius,
                                   geometry::CornerStyle::continuous, width,
                                   m_window.tintColor().value_or(focusRingColor).resolved(state.scheme));
}

} // namespace proupsells::uikit
