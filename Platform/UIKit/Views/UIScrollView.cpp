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
    adoptRanges();
    setNeedsDisplay();
}

void UIScrollView::setContentInset(const geometry::PhysicalInsets& inset) {
    m_contentInset = inset;
    adoptRanges();
}

void UIScrollView::setContentInsetAdjustmentBehavior(ContentInsetAdjustmentBehavior behavior) {
    m_adjustmentBehavior = behavior;
    adoptRanges();
}

// Safe areas count along the axes that can be scrolled.
geometry::PhysicalInsets UIScrollView::adjustedContentInset() const {
    geometry::PhysicalInsets inset = m_contentInset;
    if (m_adjustmentBehavior == ContentInsetAdjustmentBehavior::never) return inset;
    const geometry::PhysicalInsets unsafe = safeAreaInsets();
    if (m_contentSize.width > frame().width()) {
        inset.left += unsafe.left;
        inset.right += unsafe.right;
    }
    if (m_alwaysBouncesVertically || m_contentSize.height > frame().height()) {
        inset.top += unsafe.top;
        inset.bottom += unsafe.bottom;
    }
    return inset;
}

void UIScrollView::adoptRanges() {
    const geometry::PhysicalInsets inset = adjustedContentInset();
    const double now = now_s(), width = frame().width(), height = frame().height();
    const auto horizontal = motion::ScrollRange::ofContent(m_contentSize.width, width, inset.left, inset.right);
    const auto vertical = motion::ScrollRange::ofContent(m_contentSize.height, height, inset.top, inset.bottom);
    axisAlong(Axis::horizontal).setRange(horizontal, width, now);
    axisAlong(Axis::vertical).setRange(vertical, height, now);
    if (m_movementEnd) m_indicator.show(movementEnd_s());
    adoptOffset();
}

void UIScrollView::safeAreaInsetsDidChange() { adoptRanges(); }

void UIScrollView::frameDidChange(const geometry::Rect& previous) {
    if (previous.size == frame().size) return;
    adoptRanges();
}

void UIScrollView::setAlwaysBounceVertical(bool bounces) {
    m_alwaysBouncesVertically = bounces;
    adoptRanges();
}

bool UIScrollView::overflows(Axis axis) const {
    const motion::ScrollRange& range = axisAlong(axis).range();
    return range.maximum > range.minimum;
}

bool UIScrollView::canScroll(Axis axis) const {
    return m_isScrollEnabled && (overflows(axis) || (axis == Axis::vertical && m_alwaysBouncesVertically));
}

// --- Offset ---

geometry::Point UIScrollView::contentOffset() const {
    const double now = now_s();
    return {axisAlong(Axis::horizontal).offsetAt(now), axisAlong(Axis::vertical).offsetAt(now)};
}

void UIScrollView::setContentOffset(geometry::Point offset, bool animated) {
    setContentOffset(offset, motion::Animation{motion::TimingCurve::easeInOut(), animated ? 0.3 : 0});
}

void UIScrollView::setContentOffset(geometry::Point offset, const motion::Animation& animation) {
    if (!std::isfinite(offset.x) || !std::isfinite(offset.y)) return;
    const auto kept = strongReference(*this);
    const double now = now_s();
    axisAlong(Axis::horizontal).animateTo(offset.x, animation, now);
    axisAlong(Axis::vertical).animateTo(offset.y, animation, now);
    if (isMovingAt(now))
        startMovement(&UIScrollViewDelegate::scrollViewDidEndScrollingAnimation);
    else
        endMovement();
    adoptOffset();
}

bool UIScrollView::isDecelerating() const {
    const double now = now_s();
    return axisAlong(Axis::horizontal).isCoastingAt(now) || axisAlong(Axis::vertical).isCoastingAt(now);
}

void UIScrollView::clampOffset() {
    for (motion::ScrollAxis& axis : m_axes) axis.moveIntoRange(now_s());
    adoptOffset();
}

void UIScrollView::adoptOffset() {
    const geometry::Point offset = contentOffset();
    if (offset == bounds().origin) return;
    const auto kept = strongReference(*this);
    setBoundsOrigin(offset);
    contentOffsetDidChange();
    tellDelegate(&UIScrollViewDelegate::scrollViewDidScroll);
}

void UIScrollView::tellDelegate(Event event) {
    if (const auto delegate = m_delegate.lock()) ((*delegate).*event)(*this);
}

// --- Movement ---

bool UIScrollView::isMovingAt(double now_s) const { return m_axes[0].isMovingAt(now_s) || m_axes[1].isMovingAt(now_s); }

double UIScrollView::movementEnd_s() const { return std::max(m_axes[0].end_s(), m_axes[1].end_s()); }

void UIScrollView::startMovement(Event atEnd) {
    endMovement();
    m_movementEnd = atEnd;
    movingScrollViews().push_back(this);
    m_indicator.show(movementEnd_s());
    setNeedsDisplay();
    const auto self = weakReference(*this);
    if (!followsMovement() || self.expired()) return;
    m_steps = runloop::MainRunLoop::main().scheduleRepeating(step_s, [self] {
        if (const auto held = self.lock()) held->stepMovement();
    });
}

void UIScrollView::endMovement() {
    if (!m_movementEnd) return;
    m_movementEnd = nullptr;
    std::erase(movingScrollViews(), this);
    if (m_steps) m_steps->invalidate();
    m_steps.reset();
    m_indicator.show(now_s());
}

void UIScrollView::stopMovement() {
    for (motion::ScrollAxis& axis : m_axes) axis.stop(now_s());
    endMovement();
    adoptOffset();
}

void UIScrollView::stepMovement() {
    const auto kept = strongReference(*this);
    if (isMovingAt(now_s())) return adoptOffset();
    const Event event = m_movementEnd;
    stopMovement();
    const bool hasBegunAnother = m_movementEnd; // somebody who was told of the last step
    if (event && !hasBegunAnother) tellDelegate(event);
}

// Backwards and by index: a view may start, stop or release others during its step, and none of the rest may be left out.
void UIScrollView::followTime() {
    const auto& moving = movingScrollViews();
    for (std::size_t i = moving.size(); i-- > 0;)
        if (i < moving.size()) moving[i]->stepMovement();
}

bool UIScrollView::isAnimating() const {
    if (isHidden()) return false;
    if (isMovingAt(now_s())) return true;
    const bool hasIndicator = showsIndicator(Axis::horizontal) || showsIndicator(Axis::vertical);
    if (hasIndicator && !m_isDragging && now_s() < m_indicator.end_s()) return true;
    const geometry::Rect seen = bounds();
    for (const auto& subview : subviews())
        if ((!subview->transform().isIdentity() || subview->frame().intersects(seen)) && subview->isAnimating()) return true;
    return false;
}

// --- Picture ---

bool UIScrollView::showsIndicator(Axis axis) const { return m_showsIndicators[std::size_t(axis)] && overflows(axis); }

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
    const geometry::Rect seen = bounds();
    const bool isVertical = axis == Axis::vertical;
    m_indicator.paint(context, state,
                      {.axis = axis,
                       .viewport = seen,
                       .covered = adjustedContentInset(),
                       .isRightToLeft = isRightToLeft(),
                       .contentLength = isVertical ? m_contentSize.height : m_contentSize.width,
                       .offset = isVertical ? seen.minY() : seen.minX()},
                      now_s());
}

void UIScrollView::describe(accessibility::SemanticNode& node, const graphics::PaintState&) const {
    node.scroll = accessibility::ScrollInfo{contentOffset(), m_contentSize, adjustedContentInset()};
}

} // namespace proupsells::uikit
