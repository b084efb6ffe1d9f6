// Fingers and wheels on a scroll view.
#include <utility>

#include "Platform/Motion/DragOrigin.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells::uikit {

void UIScrollView::setScrollEnabled(bool enabled) {
    m_isScrollEnabled = enabled;
    if (!enabled && m_isTracking) endTouch(runloop::MainRunLoop::main().now_s(), false);
}

// --- Fingers ---

std::optional<geometry::Point> UIScrollView::dragOrigin(const UITouch& touch) const {
    const bool horizontally = canScroll(Axis::horizontal), vertically = canScroll(Axis::vertical);
    const geometry::Point start = touch.startLocation(*this), now = touch.location(*this);
    if (horizontally && vertically) return motion::dragOrigin(start, now);
    if (horizontally) return motion::dragOrigin(Axis::horizontal, start, now);
    if (vertically) return motion::dragOrigin(Axis::vertical, start, now);
    return std::nullopt;
}

bool UIScrollView::takesOverTouch(const UITouch& touch) {
    if (!m_isScrollEnabled) return false;
    // Whoever touches moving content means to hold it.
    if (touch.phase == host::TouchPhase::began) return isDecelerating();
    return dragOrigin(touch).has_value();
}

void UIScrollView::touchesBegan(const UITouch& touch) {
    if (!m_isScrollEnabled) return UIView::touchesBegan(touch);
    const auto kept = strongReference(*this);
    m_isTracking = true;
    stopMovement();
    if (touch.phase == host::TouchPhase::moved) touchesMoved(touch);
}

void UIScrollView::touchesMoved(const UITouch& touch) {
    if (!m_isTracking) return UIView::touchesMoved(touch);
    const auto kept = strongReference(*this);
    if (!m_isDragging) {
        if (const auto origin = dragOrigin(touch)) beginDragging(fingerAt(*origin), touch.time_s);
    }
    if (!m_isDragging) return;
    const geometry::Point finger = fingerAt(touch.location(*this));
    axisAlong(Axis::horizontal).track(finger.x, touch.time_s);
    axisAlong(Axis::vertical).track(finger.y, touch.time_s);
    adoptOffset();
}

void UIScrollView::touchesEnded(const UITouch& touch) {
    if (!m_isTracking) return UIView::touchesEnded(touch);
    endTouch(touch.time_s, true);
}

void UIScrollView::touchesCancelled(const UITouch& touch) {
    if (!m_isTracking) return UIView::touchesCancelled(touch);
    endTouch(runloop::MainRunLoop::main().now_s(), false);
}

void UIScrollView::beginDragging(geometry::Point finger, double time_s) {
    stopMovement();
    if (!m_isTracking) return; // whoever was told of the stop may have forbidden scrolling
    m_isDragging = true;
    for (const Axis axis : {Axis::horizontal, Axis::vertical})
        if (canScroll(axis)) axisAlong(axis).beginTracking(motion::along(axis, finger), time_s);
    m_indicator.show(geometry::infinity);
    tellDelegate(&UIScrollViewDelegate::scrollViewWillBeginDragging);
}

void UIScrollView::endTouch(double time_s, bool isFlick) {
    const auto kept = strongReference(*this);
    const bool wasDragging = std::exchange(m_isDragging, false);
    m_isTracking = false;
    if (wasDragging) m_indicator.show(time_s);
    // A finger that only rests on the content and has caught it beyond its end lets it go back, too.
    bool goesOn = false;
    for (motion::ScrollAxis& axis : m_axes) {
        isFlick ? axis.endTracking(time_s) : axis.comeToRest(time_s);
        goesOn = goesOn || axis.isCoastingAt(time_s);
    }
    if (goesOn) startMovement(&UIScrollViewDelegate::scrollViewDidEndDecelerating);
    setNeedsDisplay();
    if (!wasDragging) return;
    if (const auto delegate = m_delegate.lock()) delegate->scrollViewDidEndDragging(*this, goesOn);
}

// --- Wheels, and what is to be seen ---

bool UIScrollView::scrollBy(geometry::Point location, geometry::Point delta) {
    if (m_isTracking) return UIView::scrollBy(location, delta);
    bool hasMoved = false;
    const double now = runloop::MainRunLoop::main().now_s();
    for (const Axis axis : {Axis::horizontal, Axis::vertical})
        if (canScroll(axis) && axisAlong(axis).scrollBy(motion::along(axis, delta), now)) hasMoved = true;
    if (!hasMoved) return UIView::scrollBy(location, delta);
    const auto kept = strongReference(*this);
    stopMovement();
    m_indicator.show(now);
    adoptOffset();
    return true;
}

void UIScrollView::scrollRectToVisible(const geometry::Rect& rect) {
    const auto kept = strongReference(*this);
    const bool horizontally = reveal(Axis::horizontal, rect.minX(), rect.maxX());
    const bool vertically = reveal(Axis::vertical, rect.minY(), rect.maxY());
    if (horizontally || vertically) {
        stopMovement();
        adoptOffset();
    }
    UIView::scrollRectToVisible(rect);
}

// What is visible does not move; a strip that the program has put outside its range stays there. Of what is too large, the
// beginning is shown.
bool UIScrollView::reveal(Axis axis, double first, double last) {
    const geometry::PhysicalInsets inset = adjustedContentInset();
    const bool isHorizontal = axis == Axis::horizontal;
    const double near = isHorizontal ? inset.left : inset.top;
    const double far = isHorizontal ? frame().width() - inset.right : frame().height() - inset.bottom;
    const double now = runloop::MainRunLoop::main().now_s(), offset = axisAlong(axis).offsetAt(now);
    const double wanted = std::min(std::max(offset, last - far), first - near);
    return wanted != offset && axisAlong(axis).scrollTo(wanted, now);
}

} // namespace proupsells::uikit
