#include "Platform/UIKit/Views/UIScrollView.hpp"

#include <cmath>

#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::uikit {

namespace {

constexpr double step_s = 1.0 / 60;

std::vector<UIScrollView*>& movingScrollViews() {
    static std::vector<UIScrollView*> moving;
    return moving;
}

double now_s() { return runloop::MainRunLoop::exists() ? runloop::MainRunLoop::main().now_s() : 0; }

} // namespace

UIScrollView::UIScrollView() { setClipsToBounds(true); }

UIScrollView::~UIScrollView() {
    std::erase(movingScrollViews(), this);
    if (m_steps) m_steps->invalidate();
}

// --- Content ---

void UIScrollView::setContentSize(geometry::Size size) {
    m_ownContentSize = size;
    adoptContentSize();
}

void UIScrollView::setContentSizeFromConstraints(std::optional<double> width, std::optional<double> height) {
    m_constrainedWidth = width;
    m_constrainedHeight = height;
    adoptContentSize();
}

void UIScrollView::adoptContentSize() {
    const auto length = [](double value) { return std::isfinite(value) ? std::max(0.0, value) : 0; };
    const geometry::Size size{length(m_constrainedWidth.value_or(m_ownContentSize.width)),
                              length(m_constrainedHeight.value_or(m_ownContentSize.height))};
    if (m_contentSize == size) return;
    m_contentSize = size;
    adoptInset();
    keepOffsetInRange();
    setNeedsDisplay();
}

void UIScrollView::setContentInset(const geometry::PhysicalInsets& inset) {
    m_contentInset = inset;
    adoptInset();
    keepOffsetInRange();
}

void UIScrollView::setContentInsetAdjustmentBehavior(ContentInsetAdjustmentBehavior behavior) {
    m_adjustmentBehavior = behavior;
    adoptInset();
    keepOffsetInRange();
}

// Safe areas count along the axes that can be scrolled.
geometry::PhysicalInsets UIScrollView::adjustedContentInset() const {
    geometry::PhysicalInsets inset = m_contentInset;
    if (m_adjustmentBehavior == ContentInsetAdjustmentBehavior::never) return inset;
    const geometry::PhysicalInsets unsafe = safeAreaInsets();
    if (m_alwaysBounces[0] || m_contentSize.width > frame().width()) {
        inset.left += unsafe.left;
        inset.right += unsafe.right;
    }
    if (m_alwaysBounces[1] || m_contentSize.height > frame().height()) {
        inset.top += unsafe.top;
        inset.bottom += unsafe.bottom;
    }
    return inset;
}

// Content that stands at its start stays there.
void UIScrollView::adoptInset() {
    const geometry::PhysicalInsets before = m_adoptedInset, after = adjustedContentInset();
    m_adoptedInset = after;
    if (before == after || m_movement || m_isTracking) return;
    geometry::Point offset = bounds().origin;
    if (offset.x == -before.left) offset.x = -after.left;
    if (offset.y == -before.top) offset.y = -after.top;
    applyOffset(offset);
}

void UIScrollView::safeAreaInsetsDidChange() {
    adoptInset();
    keepOffsetInRange();
}

void UIScrollView::frameDidChange(const geometry::Rect& previous) {
    if (previous.size == frame().size) return;
    adoptInset();
    keepOffsetInRange();
}

motion::ScrollRange UIScrollView::rangeAlong(Axis axis) const {
    const geometry::PhysicalInsets inset = adjustedContentInset();
    if (axis == Axis::horizontal) return {-inset.left, std::max(-inset.left, m_contentSize.width + inset.right - frame().width())};
    return {-inset.top, std::max(-inset.top, m_contentSize.height + inset.bottom - frame().height())};
}

bool UIScrollView::canScroll(Axis axis) const {
    const motion::ScrollRange range = rangeAlong(axis);
    return m_isScrollEnabled && (range.maximum > range.minimum || m_alwaysBounces[std::size_t(axis)]);
}

// --- Offset ---

geometry::Point UIScrollView::contentOffset() const { return m_movement ? m_movement->offsetAt(now_s()) : bounds().origin; }

void UIScrollView::setContentOffset(geometry::Point offset, bool animated) {
    setContentOffset(offset, motion::Animation{motion::TimingCurve::easeInOut(), animated ? 0.3 : 0});
}

void UIScrollView::setContentOffset(geometry::Point offset, const motion::Animation& animation) {
    if (!std::isfinite(offset.x) || !std::isfinite(offset.y)) return;
    const auto kept = strongReference(*this);
    stopMovement();
    m_isOffsetOfPerson = false;
    if (animation.end_s() > 0) {
        if (offset != bounds().origin) startMovement(ScrollMovement::animation(bounds().origin, offset, animation, now_s()));
        return;
    }
    applyOffset(offset);
    if (m_isDragging) holdContentAt(m_finger);
}

bool UIScrollView::isDecelerating() const {
    return m_movement && m_movement->kind() == ScrollMovement::Kind::deceleration && !m_movement->isOverAt(now_s());
}

void UIScrollView::keepOffsetInRange() {
    if (m_isOffsetOfPerson) clampOffset();
}

void UIScrollView::clampOffset() {
    if (m_isTracking) return;
    if (isDecelerating()) {
        const double now = now_s();
        const geometry::Point velocity = m_movement->velocityAt(now);
        stopMovement();
        decelerate(velocity, now);
    } else if (!m_movement) {
        const geometry::Point offset = bounds().origin;
        applyOffset({rangeAlong(Axis::horizontal).clamped(offset.x), rangeAlong(Axis::vertical).clamped(offset.y)});
    }
}

void UIScrollView::applyOffset(geometry::Point offset) {
    if (offset == bounds().origin) return;
    const auto kept = strongReference(*this);
    setBoundsOrigin(offset);
    contentOffsetDidChange();
    tellDelegate(&UIScrollViewDelegate::scrollViewDidScroll);
}

void UIScrollView::tellDelegate(void (UIScrollViewDelegate::*call)(UIScrollView&)) {
    if (const auto delegate = m_delegate.lock()) ((*delegate).*call)(*this);
}

// --- Movement ---

void UIScrollView::startMovement(const ScrollMovement& movement) {
    m_movement = movement;
    movingScrollViews().push_back(this);
    m_indicator.show(movement.end_s());
    setNeedsDisplay();
    const auto self = weakReference(*this);
    if (!followsMovement() || self.expired()) return;
    m_steps = runloop::MainRunLoop::main().scheduleRepeating(step_s, [self] {
        if (const auto held = self.lock()) held->stepMovement();
    });
}

void UIScrollView::stopMovement() {
    if (!m_movement) return;
    const geometry::Point offset = contentOffset();
    m_movement.reset();
    std::erase(movingScrollViews(), this);
    if (m_steps) m_steps->invalidate();
    m_steps.reset();
    m_indicator.show(now_s());
    applyOffset(offset);
}

void UIScrollView::stepMovement() {
    if (!m_movement) return;
    const auto kept = strongReference(*this);
    const double now = now_s();
    if (m_movement->isOverAt(now))
        finishMovement();
    else
        applyOffset(m_movement->offsetAt(now));
}

void UIScrollView::finishMovement() {
    const auto kind = m_movement->kind();
    stopMovement();
    if (m_movement) return; // somebody told of the last step has started another one
    tellDelegate(kind == ScrollMovement::Kind::deceleration ? &UIScrollViewDelegate::scrollViewDidEndDecelerating
                                                            : &UIScrollViewDelegate::scrollViewDidEndScrollingAnimation);
}

void UIScrollView::followTime() {
    const auto moving = movingScrollViews();
    for (UIScrollView* const view : moving) {
        const auto& now = movingScrollViews();
        if (std::find(now.begin(), now.end(), view) != now.end()) view->stepMovement();
    }
}

bool UIScrollView::isAnimating() const {
    if (isHidden()) return false;
    if (m_movement && !m_movement->isOverAt(now_s())) return true;
    const bool hasIndicator = showsIndicator(Axis::horizontal) || showsIndicator(Axis::vertical);
    if (hasIndicator && !m_isDragging && now_s() < m_indicator.end_s()) return true;
    const geometry::Rect seen = bounds();
    for (const auto& subview : subviews())
        if ((!subview->transform().isIdentity() || subview->frame().intersects(seen)) && subview->isAnimating()) return true;
    return false;
}

// --- Picture ---

bool UIScrollView::showsIndicator(Axis axis) const {
    const motion::ScrollRange range = rangeAlong(axis);
    return m_showsIndicators[std::size_t(axis)] && range.maximum > range.minimum;
}

void UIScrollView::setShowsVerticalScrollIndicator(bool shows) {
    m_showsIndicators[std::size_t(Axis::vertical)] = shows;
    setNeedsDisplay();
}

void UIScrollView::setShowsHorizontalScrollIndicator(bool shows) {
    m_showsIndicators[std::size_t(Axis::horizontal)] = shows;
    setNeedsDisplay();
}

// What is scrolled out costs nothing. A subview without an area of its own may have something in it all the same.
void UIScrollView::paintSubviews(graphics::PaintContext& context, const graphics::PaintState& state) const {
    const geometry::Rect seen = bounds();
    for (const auto& subview : subviews()) {
        const geometry::Rect& frame = subview->frame();
        const bool mayBeSeen = !clipsToBounds() || frame.isEmpty() || !subview->transform().isIdentity() || frame.intersects(seen);
        if (mayBeSeen) subview->paint(context, state);
    }
    for (const Axis axis : {Axis::horizontal, Axis::vertical})
        if (showsIndicator(axis)) paintIndicator(axis, context, state);
}

void UIScrollView::paintIndicator(Axis axis, graphics::PaintContext& context, const graphics::PaintState& state) const {
    constexpr double breadth = 3, margin = 3;
    const double now = now_s();
    if (now >= m_indicator.end_s()) return;
    const geometry::PhysicalInsets inset = adjustedContentInset();
    const geometry::Rect seen = bounds();
    const geometry::Rect room{
        {seen.minX() + inset.left + margin, seen.minY() + inset.top + margin},
        {seen.width() - inset.left - inset.right - 2 * margin, seen.height() - inset.top - inset.bottom - 2 * margin}};
    const double trailing = isRightToLeft() ? room.minX() : room.maxX() - breadth;
    const bool isVertical = axis == Axis::vertical;
    const motion::ScrollRange range = rangeAlong(axis);
    const double length = isVertical ? m_contentSize.height : m_contentSize.width;
    m_indicator.paint(context, state,
                      {.axis = axis,
                       .rect = isVertical ? geometry::Rect{{trailing, room.minY()}, {breadth, room.height()}}
                                          : geometry::Rect{{room.minX(), room.maxY() - breadth}, {room.width(), breadth}},
                       .viewportLength = length - (range.maximum - range.minimum),
                       .contentLength = length,
                       .offset = (isVertical ? seen.minY() : seen.minX()) - range.minimum},
                      now);
}

void UIScrollView::describe(accessibility::Node& node, const graphics::PaintState&) const {
    node.scroll = accessibility::ScrollInfo{contentOffset(), m_contentSize, adjustedContentInset()};
}

} // namespace proupsells::uikit
