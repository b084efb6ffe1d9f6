// Fingers and wheels on a scroll view.
#include <cmath>
#include <utility>

#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Views/UIScrollView.hpp"

namespace proupsells::uikit {

namespace {

// How far a finger moves before it drags. The content follows from there on, so that nothing leaps.
constexpr double dragThreshold = 10;

} // namespace

void UIScrollView::setScrollEnabled(bool enabled) {
    m_isScrollEnabled = enabled;
    if (!enabled && m_isTracking) endTouch(runloop::MainRunLoop::main().now_s(), false);
}

// --- Fingers ---

// Where the finger was when it became clear that it drags; absent before, and where it moves across the only axis there is to move
// along.
std::optional<geometry::Point> UIScrollView::dragOrigin(const UITouch& touch) const {
    const bool horizontally = canScroll(Axis::horizontal), vertically = canScroll(Axis::vertical);
    const geometry::Point start = touch.startLocation(*this), moved = touch.location(*this) - start;
    const double distance = std::hypot(moved.x, moved.y);
    if (horizontally && vertically) {
        if (distance < dragThreshold) return std::nullopt;
        return fingerAt({start.x + moved.x / distance * dragThreshold, start.y + moved.y / distance * dragThreshold});
    }
    if (horizontally && std::abs(moved.x) >= dragThreshold && std::abs(moved.x) >= std::abs(moved.y))
        return fingerAt({start.x + std::copysign(dragThreshold, moved.x), start.y});
    if (vertically && std::abs(moved.y) >= dragThreshold && std::abs(moved.y) >= std::abs(moved.x))
        return fingerAt({start.x, start.y + std::copysign(dragThreshold, moved.y)});
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
        if (const auto origin = dragOrigin(touch)) beginDragging(*origin, touch.time_s);
    }
    if (m_isDragging) drag(fingerAt(touch.location(*this)), touch.time_s);
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
    m_isDragging = true;
    m_isOffsetOfPerson = true;
    tellDelegate(&UIScrollViewDelegate::scrollViewWillBeginDragging);
    holdContentAt(finger);
    for (motion::VelocityTracker& speed : m_speeds) speed.reset();
    m_speeds[0].add(time_s, bounds().minX());
    m_speeds[1].add(time_s, bounds().minY());
    m_indicator.show(geometry::infinity);
}

void UIScrollView::holdContentAt(geometry::Point finger) {
    m_finger = m_fingerAtStart = finger;
    const geometry::Rect seen = bounds();
    m_draggedAtStart = {motion::unRubberBanded(seen.minX(), rangeAlong(Axis::horizontal), seen.width()),
                        motion::unRubberBanded(seen.minY(), rangeAlong(Axis::vertical), seen.height())};
}

void UIScrollView::drag(geometry::Point finger, double time_s) {
    m_finger = finger;
    const geometry::Point wanted = m_draggedAtStart - (finger - m_fingerAtStart);
    const geometry::Rect seen = bounds();
    geometry::Point offset = seen.origin;
    if (canScroll(Axis::horizontal)) offset.x = motion::rubberBanded(wanted.x, rangeAlong(Axis::horizontal), seen.width());
    if (canScroll(Axis::vertical)) offset.y = motion::rubberBanded(wanted.y, rangeAlong(Axis::vertical), seen.height());
    m_speeds[0].add(time_s, offset.x);
    m_speeds[1].add(time_s, offset.y);
    applyOffset(offset);
}

void UIScrollView::endTouch(double time_s, bool isFlick) {
    const auto kept = strongReference(*this);
    const bool wasDragging = std::exchange(m_isDragging, false);
    m_isTracking = false;
    geometry::Point velocity;
    if (wasDragging && isFlick) velocity = {m_speeds[0].velocityAt(time_s), m_speeds[1].velocityAt(time_s)};
    if (wasDragging) m_indicator.show(time_s);
    // A finger that only rests on the content and has caught it beyond its end lets it go back, too.
    const bool goesOn = m_isOffsetOfPerson && decelerate(velocity, time_s);
    setNeedsDisplay();
    if (!wasDragging) return;
    if (const auto delegate = m_delegate.lock()) delegate->scrollViewDidEndDragging(*this, goesOn);
}

bool UIScrollView::decelerate(geometry::Point velocity, double now_s) {
    const auto rangeOf = [&](Axis axis, double offset) {
        return canScroll(axis) ? rangeAlong(axis) : motion::ScrollRange{offset, offset};
    };
    const geometry::Point from = bounds().origin;
    if (!canScroll(Axis::horizontal)) velocity.x = 0;
    if (!canScroll(Axis::vertical)) velocity.y = 0;
    const auto movement =
        ScrollMovement::deceleration(from, velocity, rangeOf(Axis::horizontal, from.x), rangeOf(Axis::vertical, from.y), now_s);
    if (movement.isOverAt(now_s)) return false;
    startMovement(movement);
    return true;
}

// --- Wheels, and what is to be seen ---

bool UIScrollView::scrollBy(geometry::Point location, geometry::Point delta) {
    const geometry::Point before = contentOffset();
    geometry::Point offset = before;
    if (delta.x != 0 && canScroll(Axis::horizontal)) offset.x = rangeAlong(Axis::horizontal).clamped(before.x + delta.x);
    if (delta.y != 0 && canScroll(Axis::vertical)) offset.y = rangeAlong(Axis::vertical).clamped(before.y + delta.y);
    if (m_isTracking || offset == before) return UIView::scrollBy(location, delta);
    const auto kept = strongReference(*this);
    stopMovement();
    m_isOffsetOfPerson = true;
    m_indicator.show(runloop::MainRunLoop::main().now_s());
    applyOffset(offset);
    return true;
}

void UIScrollView::scrollRectToVisible(const geometry::Rect& rect) {
    const auto kept = strongReference(*this);
    const geometry::PhysicalInsets inset = adjustedContentInset();
    const auto moved = [](double offset, double first, double last, double near, double far) {
        if (first < offset + near) return first - near;
        return std::max(offset, last - far);
    };
    const geometry::Point before = contentOffset();
    geometry::Point offset{moved(before.x, rect.minX(), rect.maxX(), inset.left, frame().width() - inset.right),
                           moved(before.y, rect.minY(), rect.maxY(), inset.top, frame().height() - inset.bottom)};
    // Only what moves is brought into the range; a strip that the program has put elsewhere stays there.
    if (offset.x != before.x) offset.x = rangeAlong(Axis::horizontal).clamped(offset.x);
    if (offset.y != before.y) offset.y = rangeAlong(Axis::vertical).clamped(offset.y);
    if (offset != before) {
        stopMovement();
        m_isOffsetOfPerson = true;
        applyOffset(offset);
    }
    UIView::scrollRectToVisible(rect);
}

} // namespace proupsells::uikit
