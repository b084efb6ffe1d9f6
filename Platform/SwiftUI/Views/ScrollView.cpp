#include "Platform/SwiftUI/Views/ScrollView.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Graphics/ScrollIndicator.hpp"
#include "Platform/Motion/DragOrigin.hpp"
#include "Platform/Motion/ScrollAxis.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/SwiftUI/Views/Stacks.hpp"

namespace proupsells::swiftui {
namespace {

// How often views learn that they come on screen while the content moves by itself.
constexpr double step_s = 1.0 / 60;

View contentOf(const ScrollView& view) {
    if (view.content.size() == 1) return view.content[0];
    if (view.axis == Axis::horizontal) return HStack{.content = view.content};
    return VStack{.content = view.content};
}

class ScrollViewNode final : public Node, public GestureHandler {
public:
    ~ScrollViewNode() override { stopStepping(); }

    void adopt(ScrollView&& view, UpdatePass& pass) {
        if (view.axis != m_axis) invalidateLayout();
        if (view.showsIndicators != m_showsIndicators) setNeedsDisplay();
        m_axis = view.axis;
        m_showsIndicators = view.showsIndicators;
        updateChild(0, contentOf(view), pass);
    }

    LengthRange lengthRange(Axis axis, std::optional<double> crossProposal) override {
        if (axis == m_axis) return {0, geometry::infinity};
        return Node::lengthRange(axis, crossProposal);
    }
    geometry::Point contentTranslation(double now_s) const override {
        const double offset = shownOffset(now_s);
        if (m_axis == Axis::vertical) return {0, -offset};
        return {isMirrored() ? offset : -offset, 0};
    }
    std::optional<geometry::Rect> viewport() const override { return bounds(); }
    void applyEffects(graphics::PaintState& state, double) const override { state = state.clippedTo(bounds()); }

    // --- Touches
    GestureHandler* gestureHandler() override { return this; }
    bool interceptsTouch(const TouchEvent& event) override {
        m_isHeld = m_offset.isMovingAt(event.time_s);
        return m_isHeld;
    }
    bool touchBegan(const TouchEvent& event) override {
        if (m_isHeld) beginDragging(fingerAt(event.location), event.time_s);
        return true;
    }
    void touchMoved(const TouchEvent& event) override;
    void touchEnded(const TouchEvent& event) override;
    void touchCancelled() override;
    bool claims(const TouchEvent& event) override {
        m_isHeld = false;
        return motion::dragOrigin(m_axis, event.start, event.location).has_value();
    }
    bool holdsTouch() const override { return m_offset.isTracking(); }
    bool scrolled(geometry::Point delta) override;

    void appendSemantics(SemanticContext& context, const graphics::PaintState& parentState,
                         std::vector<accessibility::SemanticNode>& result) override;

protected:
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;
    void paintOverlay(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override;
    bool isHittable() const override { return true; }
    std::string_view semanticType() const override { return "ScrollView"; }
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state, double now_s) const override;

private:
    // What a semantic tree showed of this view, for somebody who reveals something in it later.
    struct Sight {
        geometry::Rect viewportInWindow;
        double offset = 0;
        double pointsPerWindowPoint = 1;
    };

    bool isMirrored() const { return m_axis == Axis::horizontal && environment().isRightToLeft(); }
    geometry::Rect bounds() const { return {{}, frame().size}; }
    double length() const { return m_axis == Axis::vertical ? frame().height() : frame().width(); }
    double contentLength() const { return m_axis == Axis::vertical ? m_contentSize.height : m_contentSize.width; }
    double shownOffset(double now_s) const { return m_offset.offsetAt(now_s) + m_correction.valueAt(now_s); }
    // Of the viewport's left or top edge in the content.
    double offsetFromLeftOrTop(double now_s) const {
        return isMirrored() ? m_contentSize.width - frame().width() - shownOffset(now_s) : shownOffset(now_s);
    }
    // Grows as the content is pulled towards its start.
    double fingerAt(geometry::Point location) const { return isMirrored() ? -location.x : motion::along(m_axis, location); }
    geometry::ProposedSize contentProposal(std::optional<double> cross) const {
        return m_axis == Axis::vertical ? geometry::ProposedSize{cross, std::nullopt} : geometry::ProposedSize{std::nullopt, cross};
    }

    geometry::PhysicalInsets coveredSafeArea() const;
    void adoptRange(double now_s);
    void beginDragging(double finger, double now_s);
    void coast();
    void stopStepping();
    void step();
    void noteMoved();
    geometry::Point revealed(const geometry::Rect& inWindow, Revealed revealed, const Sight& sight);

    Axis m_axis = Axis::vertical;
    bool m_showsIndicators = true;
    geometry::Size m_contentSize;
    geometry::PhysicalInsets m_insets;
    motion::ScrollAxis m_offset;
    // A change of the content may move the offset; while the change is animated, this is what is left of that movement.
    Animated<double> m_correction{0};
    bool m_isHeld = false; // the next touch takes hold at once
    bool m_hasRange = false;
    graphics::ScrollIndicator m_indicator;
    std::shared_ptr<runloop::Timer> m_stepping;
    std::shared_ptr<ScrollViewNode*> m_self; // points here while the node lives; made for those who reveal things
};

// --- Layout

geometry::Size ScrollViewNode::measure(const geometry::ProposedSize& proposal) {
    if (m_axis == Axis::vertical) {
        const geometry::Size content = onlyChild() ? onlyChild()->sizeThatFits(contentProposal(proposal.width)) : geometry::Size{};
        return {content.width, proposal.height.value_or(content.height)};
    }
    const geometry::Size content = onlyChild() ? onlyChild()->sizeThatFits(contentProposal(proposal.height)) : geometry::Size{};
    return {proposal.width.value_or(content.width), content.height};
}

void ScrollViewNode::layOut(const geometry::ProposedSize& proposal, geometry::Size size) {
    setDependsOnPosition();
    const bool isVertical = m_axis == Axis::vertical;
    // The same proposal as in measure: content that asks for more than it is offered keeps its size.
    const geometry::ProposedSize offered = contentProposal(isVertical ? proposal.width : proposal.height);
    m_contentSize = onlyChild() ? onlyChild()->sizeThatFits(offered) : geometry::Size{};
    if (onlyChild()) {
        const geometry::Point origin = isVertical ? geometry::Point{(size.width - m_contentSize.width) / 2, 0}
                                                  : geometry::Point{0, (size.height - m_contentSize.height) / 2};
        placeChild(*onlyChild(), origin, offered);
    }
    m_insets = coveredSafeArea();
    adoptRange(host().now_s());
}

// How far the view reaches over the edges of the safe area along its axis.
geometry::PhysicalInsets ScrollViewNode::coveredSafeArea() const {
    geometry::Point origin = frame().origin;
    for (const Node* outer = parent(); outer; outer = outer->parent()) origin = origin + outer->frame().origin;
    const geometry::PhysicalInsets& safe = host().safeArea();
    const geometry::Size window = host().size();
    const auto covered = [](double inset, double reach) { return std::clamp(reach, 0.0, std::max(0.0, inset)); };
    if (m_axis == Axis::vertical) {
        const double bottom = origin.y + frame().height() - (window.height - safe.bottom);
        return {.top = covered(safe.top, safe.top - origin.y), .bottom = covered(safe.bottom, bottom)};
    }
    const double right = origin.x + frame().width() - (window.width - safe.right);
    return {.left = covered(safe.left, safe.left - origin.x), .right = covered(safe.right, right)};
}

void ScrollViewNode::adoptRange(double now_s) {
    const double start = m_axis == Axis::vertical ? m_insets.top : isMirrored() ? m_insets.right : m_insets.left;
    const double end = m_insets.top + m_insets.bottom + m_insets.left + m_insets.right - start;
    const double before = shownOffset(now_s);
    m_offset.setRange(motion::ScrollRange::ofContent(contentLength(), length(), start, end), length(), now_s);
    const double after = m_offset.offsetAt(now_s);
    if (m_hasRange && before != after + m_correction.valueAt(now_s)) {
        m_correction = Animated<double>(before - after);
        m_correction.set(0, host().layoutAnimation(), now_s);
        if (m_correction.isAnimatingAt(now_s)) host().noteAnimation(m_correction.end_s());
    }
    m_hasRange = true;
    if (m_offset.isMovingAt(now_s)) coast();
}

// --- Touches

void ScrollViewNode::beginDragging(double finger, double now_s) {
    stopStepping();
    m_offset.beginTracking(finger, now_s);
    m_indicator.show(geometry::infinity);
    setNeedsDisplay();
}

void ScrollViewNode::touchMoved(const TouchEvent& event) {
    if (!m_offset.isTracking()) {
        if (const auto origin = motion::dragOrigin(m_axis, event.start, event.location))
            beginDragging(fingerAt(*origin), event.time_s);
    }
    if (!m_offset.isTracking()) return;
    m_offset.track(fingerAt(event.location), event.time_s);
    noteMoved();
}

void ScrollViewNode::touchEnded(const TouchEvent& event) {
    m_isHeld = false;
    if (!m_offset.isTracking()) return;
    m_offset.endTracking(event.time_s);
    coast();
}

void ScrollViewNode::touchCancelled() {
    m_isHeld = false;
    if (!m_offset.isTracking()) return;
    m_offset.comeToRest(host().now_s());
    coast();
}

bool ScrollViewNode::scrolled(geometry::Point delta) {
    if (!m_offset.scrollBy(isMirrored() ? -delta.x : motion::along(m_axis, delta), host().now_s())) return false;
    coast();
    noteMoved();
    return true;
}

// Goes on by itself, or rests if nothing moves.
void ScrollViewNode::coast() {
    const double now_s = host().now_s(), end_s = std::max(now_s, m_offset.end_s());
    m_indicator.show(end_s);
    host().noteAnimation(m_indicator.end_s());
    setNeedsDisplay();
    if (!m_offset.isMovingAt(now_s)) return stopStepping();
    if (!m_stepping) m_stepping = runloop::MainRunLoop::main().scheduleRepeating(step_s, [this] { step(); });
}

void ScrollViewNode::step() {
    noteMoved();
    if (!m_offset.isMovingAt(host().now_s())) stopStepping();
}

void ScrollViewNode::stopStepping() {
    if (m_stepping) m_stepping->invalidate();
    m_stepping = nullptr;
}

void ScrollViewNode::noteMoved() {
    setNeedsDisplay();
    host().setNeedsAppearanceUpdate();
}

// --- Picture

void ScrollViewNode::paintOverlay(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) {
    if (!m_showsIndicators) return;
    m_indicator.paint(context, state,
                      {.axis = m_axis,
                       .viewport = bounds(),
                       .covered = m_insets,
                       .isRightToLeft = environment().isRightToLeft(),
                       .contentLength = contentLength(),
                       .offset = offsetFromLeftOrTop(now_s)},
                      now_s);
}

// --- Semantics

void ScrollViewNode::describe(accessibility::SemanticNode& node, const graphics::PaintState&, double now_s) const {
    const double offset = offsetFromLeftOrTop(now_s);
    node.scroll = accessibility::ScrollInfo{
        .contentOffset = m_axis == Axis::vertical ? geometry::Point{0, offset} : geometry::Point{offset, 0},
        .contentSize = m_contentSize,
        .contentInset = m_insets,
    };
}

void ScrollViewNode::appendSemantics(SemanticContext& context, const graphics::PaintState& parentState,
                                     std::vector<accessibility::SemanticNode>& result) {
    if (!m_self) m_self = std::make_shared<ScrollViewNode*>(this);
    const geometry::Rect place = parentState.toWindow(presentationFrame(context.now_s));
    const double shown = m_axis == Axis::vertical ? place.height() : place.width();
    const Sight sight{place, shownOffset(context.now_s), shown > 0 ? length() / shown : 1};
    const auto outer = context.reveal;
    // Its own movement is none of its content.
    const auto outerMovement = std::exchange(context.movement, presentationFrame(context.now_s).origin - frame().origin);
    const auto outerRest = std::exchange(context.bringToRest, [self = std::weak_ptr(m_self)] {
        if (const auto node = self.lock()) (*node)->bringToRest();
    });
    context.reveal = [self = std::weak_ptr(m_self), sight, outer](const geometry::Rect& inWindow, Revealed revealed) {
        geometry::Point moved;
        if (const auto node = self.lock()) moved = (*node)->revealed(inWindow, revealed, sight);
        if (outer) outer(inWindow.offsetBy(moved), revealed);
    };
    Node::appendSemantics(context, parentState, result);
    context.reveal = outer;
    context.movement = outerMovement;
    context.bringToRest = outerRest;
}

// Scrolls by as little as brings the rectangle, or its centre, into the viewport. Returns by how much the rectangle has moved in
// the window since the sight.
geometry::Point ScrollViewNode::revealed(const geometry::Rect& inWindow, Revealed revealed, const Sight& sight) {
    const geometry::Point centre = inWindow.center() - sight.viewportInWindow.origin;
    const double fromStart = isMirrored() ? sight.viewportInWindow.width() - centre.x : motion::along(m_axis, centre);
    const double inContent = fromStart * sight.pointsPerWindowPoint + sight.offset;
    const double extent = m_axis == Axis::vertical ? inWindow.height() : inWindow.width();
    const double around =
        revealed == Revealed::centre ? 0 : extent * sight.pointsPerWindowPoint / 2 + accessibility::roomAroundRevealed;
    const double first = inContent - around, last = inContent + around;
    const double now_s = host().now_s(), offset = m_offset.offsetAt(now_s), shown = shownOffset(now_s);
    // One point less at the far edge, which is not part of the viewport.
    double wanted = offset;
    if (last >= offset + length()) wanted = last - length() + 1;
    if (first < wanted) wanted = first;
    const bool isShown = first >= shown && last < shown + length();
    // A change that still moves the content may bring it into sight: too late.
    if ((wanted != offset && m_offset.scrollTo(wanted, now_s)) || (!isShown && m_correction.isAnimatingAt(now_s))) {
        m_correction = Animated<double>(0);
        coast();
        noteMoved();
    }
    const double moved = (sight.offset - m_offset.offsetAt(now_s)) / sight.pointsPerWindowPoint;
    if (m_axis == Axis::vertical) return {0, moved};
    return {isMirrored() ? -moved : moved, 0};
}

} // namespace

Element* ScrollView::makeElement() && { return newElement<ScrollViewNode>(std::move(*this)); }

} // namespace proupsells::swiftui
