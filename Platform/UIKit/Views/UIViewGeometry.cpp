// Where views stand, and which of them is at a point.
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::uikit {

void UIView::setFrame(const geometry::Rect& frame) {
    if (m_frame == frame) return;
    const geometry::Rect previous = m_frame;
    m_frame = frame;
    if (previous.size != frame.size) setNeedsLayout();
    if (m_layoutItem.exists() && !isPlacedByConstraints()) constraintInputDidChange();
    setNeedsDisplay();
    frameDidChange(previous);
}

void UIView::setBounds(const geometry::Rect& bounds) {
    setBoundsOrigin(bounds.origin);
    const geometry::Point middle = m_frame.center();
    setFrame({{middle.x - bounds.width() / 2, middle.y - bounds.height() / 2}, bounds.size});
}

void UIView::setBoundsOrigin(geometry::Point origin) {
    if (m_boundsOrigin == origin) return;
    m_boundsOrigin = origin;
    setNeedsDisplay();
}

void UIView::setTransform(const geometry::Transform& transform) {
    if (m_transform == transform) return;
    m_transform = transform;
    setNeedsDisplay();
}

geometry::Transform UIView::toSuperview() const {
    const geometry::Point offset = m_frame.origin - m_boundsOrigin;
    const auto moved = geometry::Transform::translation(offset.x, offset.y);
    return m_transform.isIdentity() ? moved : moved.then(m_transform.about(m_frame.center()));
}

geometry::Transform UIView::toOutermost() const {
    geometry::Transform sum = toSuperview();
    for (const UIView* view = m_superview; view; view = view->m_superview) sum = sum.then(view->toSuperview());
    return sum;
}

geometry::Point UIView::convertTo(geometry::Point point, const UIView* view) const {
    const geometry::Point outside = toOutermost().apply(point);
    return view ? view->toOutermost().inverted().apply(outside) : outside;
}

geometry::Point UIView::convertFrom(geometry::Point point, const UIView* view) const {
    const geometry::Point outside = view ? view->toOutermost().apply(point) : point;
    return toOutermost().inverted().apply(outside);
}

geometry::Rect UIView::convertTo(const geometry::Rect& rect, const UIView* view) const {
    const geometry::Transform here = toOutermost();
    return (view ? here.then(view->toOutermost().inverted()) : here).apply(rect);
}

UIView* UIView::hitTest(geometry::Point point) {
    constexpr double leastVisibleAlpha = 0.01;
    if (m_isHidden || !m_isUserInteractionEnabled || m_alpha < leastVisibleAlpha || !pointInside(point)) return nullptr;
    for (auto subview = m_subviews.rbegin(); subview != m_subviews.rend(); ++subview)
        if (UIView* hit = (*subview)->hitTest((*subview)->toSuperview().inverted().apply(point))) return hit;
    return this;
}

bool UIView::scrollBy(geometry::Point location, geometry::Point delta) {
    return m_superview && m_superview->scrollBy(convertTo(location, m_superview), delta);
}

void UIView::scrollRectToVisible(const geometry::Rect& rect) {
    if (m_superview) m_superview->scrollRectToVisible(toSuperview().apply(rect));
}

} // namespace proupsells::uikit
