#include "Platform/UIKit/Controls/UIControl.hpp"

namespace proupsells::uikit {

void UIControl::addEntry(Entry entry) { m_entries.push_back(std::move(entry)); }

void UIControl::removeTarget(const void* target, Event event) {
    std::erase_if(m_entries, [&](const Entry& entry) { return entry.address && entry.address == target && entry.event == event; });
}

void UIControl::sendActions(Event event) {
    const auto kept = strongReference(*this);
    const auto entries = m_entries;
    for (const Entry& entry : entries) {
        if (entry.event != event) continue;
        const auto target = entry.target.lock();
        if (entry.address && !target) continue;
        if (entry.action)
            entry.action(*this);
        else
            sendUpTheChain(entry.selector, this);
    }
}

void UIControl::setEnabled(bool enabled) {
    if (m_isEnabled == enabled) return;
    m_isEnabled = enabled;
    if (!enabled) setHighlighted(false);
    setNeedsDisplay();
}

void UIControl::setHighlighted(bool highlighted) {
    if (m_isHighlighted == highlighted) return;
    m_isHighlighted = highlighted;
    setNeedsDisplay();
}

bool UIControl::hover(std::optional<geometry::Point> location) {
    if (std::exchange(m_isHovered, location.has_value()) != m_isHovered) setNeedsDisplay();
    return isHovered();
}

bool UIControl::isInside(const UITouch& touch) const {
    return bounds().insetBy(-trackingMargin, -trackingMargin).contains(touch.location(*this));
}

bool UIControl::canBeOperated() const {
    for (const UIView* view = this; view; view = view->superview())
        if (view->isHidden() || !view->isUserInteractionEnabled()) return false;
    return m_isEnabled && window();
}

void UIControl::touchesBegan(const UITouch&) {
    if (!m_isEnabled) return;
    m_isTracking = true;
    setHighlighted(true);
    sendActions(Event::touchDown);
}

void UIControl::touchesMoved(const UITouch& touch) {
    if (!m_isTracking) return;
    const bool inside = isInside(touch);
    if (inside == m_isHighlighted) return;
    setHighlighted(inside);
    sendActions(inside ? Event::touchDragEnter : Event::touchDragExit);
}

void UIControl::touchesEnded(const UITouch& touch) {
    if (!m_isTracking) return;
    m_isTracking = false;
    setHighlighted(false);
    if (m_isEnabled) sendActions(isInside(touch) ? Event::touchUpInside : Event::touchUpOutside);
}

void UIControl::touchesCancelled(const UITouch&) {
    if (!m_isTracking) return;
    m_isTracking = false;
    setHighlighted(false);
    sendActions(Event::touchCancel);
}

namespace {

constexpr double fingertip = 44; // points

bool takesTouchesAround(const UIControl& control, double size) {
    const geometry::Point center = control.bounds().center();
    const double half = size / 2 - 0.01; // the far edges do not belong to a rectangle
    return control.pointInside({center.x - half, center.y}) && control.pointInside({center.x + half, center.y}) &&
           control.pointInside({center.x, center.y - half}) && control.pointInside({center.x, center.y + half});
}

} // namespace

void UIControl::describe(accessibility::SemanticNode& node, const graphics::PaintState&) const {
    node.isControl = isUserInteractionEnabled();
    node.leastTarget = takesTouchesAround(*this, fingertip) ? fingertip : 0;
    if (!m_isEnabled) {
        node.traits = node.traits | accessibility::Traits::disabled;
        return;
    }
    node.activate = [control = weakReference(const_cast<UIControl&>(*this))] {
        if (const auto held = control.lock(); held && held->canBeOperated()) held->activate();
    };
}

} // namespace proupsells::uikit
