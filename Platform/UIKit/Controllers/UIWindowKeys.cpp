// Operating a screen by keys.
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

std::vector<accessibility::SemanticNode> UIWindow::focusableControls() {
    std::vector<accessibility::SemanticNode> controls;
    collectControls(semanticTree(), controls);
    return controls;
}

bool UIWindow::key(host::Key key) {
    if (isTransitioning()) return false;
    const auto kept = strongReference(*this);
    switch (key) {
    case host::Key::tab: return moveFocus(1);
    case host::Key::backTab: return moveFocus(-1);
    case host::Key::escape: return false;
    default: return useFocused(key);
    }
}

bool UIWindow::moveFocus(int step) {
    const auto controls = focusableControls();
    if (controls.empty()) {
        m_focus.reset();
        return false;
    }
    const std::size_t count = controls.size();
    if (!m_focus)
        m_focus = step > 0 ? 0 : count - 1;
    else
        m_focus = (std::min(*m_focus, count - 1) + (step > 0 ? 1 : count - 1)) % count;
    if (const auto& reveal = controls[*m_focus].reveal) reveal();
    setNeedsDisplay();
    return true;
}

bool UIWindow::useFocused(host::Key key) {
    if (!m_focus) return false;
    const auto controls = focusableControls();
    if (*m_focus >= controls.size()) return false;
    const accessibility::SemanticNode& control = controls[*m_focus];
    if (key == host::Key::activate) {
        if (control.activate) control.activate();
        return control.activate != nullptr;
    }
    if (!control.adjust) return false;
    const bool isForwardKey = key == host::Key::down || key == (isRightToLeft() ? host::Key::left : host::Key::right);
    control.adjust(isForwardKey ? 1 : -1);
    return true;
}

void UIWindow::paintFocusRing(graphics::PaintContext& context) {
    if (!m_focus || isTransitioning()) return;
    const auto controls = focusableControls();
    if (*m_focus >= controls.size() || !controls[*m_focus].isOnScreen) return;
    constexpr UIColor ring{"focusRing", graphics::rgb(0x0A7C78), graphics::rgb(0x3CCBC1)};
    constexpr double distance = 2, width = 2, radius = 6;
    const graphics::PaintState state = windowState();
    context.strokeRoundedRectangle(state, controls[*m_focus].frame.insetBy(-distance, -distance), radius,
                                   geometry::CornerStyle::continuous, width, tintColor().value_or(ring).resolved(state.scheme));
}

} // namespace proupsells::uikit
