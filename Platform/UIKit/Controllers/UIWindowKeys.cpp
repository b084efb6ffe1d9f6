// Operating a screen by keys.
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
    case host::Key::escape: return escape();
    default: return useFocused(key);
    }
}

bool UIWindow::escape() {
    UIViewController* const front = frontMostViewController();
    const auto kept = front ? strongReference(*front) : nullptr;
    return kept && kept->accessibilityPerformEscape();
}

bool UIWindow::moveFocus(int step) {
    if (!m_focus) return takeFocus(step > 0 ? host::FocusEnd::first : host::FocusEnd::last);
    const auto controls = focusableControls();
    const std::size_t last = controls.size() - 1, here = controls.empty() ? 0 : std::min(*m_focus, last);
    const bool isAtEnd = controls.empty() || here == (step > 0 ? last : 0);
    if (isAtEnd && (m_focusLeaves || controls.empty())) {
        dropFocus();
        return false;
    }
    focus(controls, isAtEnd ? last - here : here + std::size_t(step));
    return true;
}

bool UIWindow::takeFocus(host::FocusEnd end) {
    const auto kept = strongReference(*this);
    const auto controls = focusableControls();
    if (controls.empty()) return false;
    focus(controls, end == host::FocusEnd::first ? 0 : controls.size() - 1);
    return true;
}

void UIWindow::focus(const std::vector<accessibility::SemanticNode>& controls, std::size_t index) {
    m_focus = index;
    if (const auto& reveal = controls[index].reveal) reveal();
    setNeedsDisplay();
}

void UIWindow::dropFocus() {
    if (!m_focus) return;
    m_focus.reset();
    setNeedsDisplay();
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
    constexpr double distance = 2, width = 2, radius = 6;
    const graphics::PaintState state = windowState();
    context.strokeRoundedRectangle(state, controls[*m_focus].frame.insetBy(-distance, -distance), radius,
                                   geometry::CornerStyle::continuous, width,
                                   tintColor().value_or(focusRingColor).resolved(state.scheme));
}

} // namespace proupsells::uikit
