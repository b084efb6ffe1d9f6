// Sizes and places.
#include <algorithm>
#include <cmath>

#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::extentOf;
using geometry::Point;
using geometry::ProposedSize;
using geometry::Rect;
using geometry::Size;

namespace {

// Keeps the odd answers of a measure, such as not-a-number, from all other nodes.
double soundLength(double length, const std::optional<double>& proposed) {
    if (!(length > 0)) return 0;
    if (std::isinf(length) && !(proposed && std::isinf(*proposed))) return 0;
    return length;
}

// With fewer children than this, a look at each costs less than knowing where they are.
constexpr std::size_t manyChildren = 32;

double finiteLength(double length) { return std::isfinite(length) ? length : 0; }

// Nothing can be centred in an infinite room, so for placing it counts as a room of unknown size.
ProposedSize finiteProposal(ProposedSize proposal) {
    if (proposal.width && !std::isfinite(*proposal.width)) proposal.width.reset();
    if (proposal.height && !std::isfinite(*proposal.height)) proposal.height.reset();
    return proposal;
}

} // namespace

Size Node::sizeThatFits(const ProposedSize& proposal) {
    for (std::uint8_t i = 0; i < m_sizeCount; ++i)
        if (m_sizes[i].proposal == proposal) return m_sizes[i].size;
    Size size = measure(proposal);
    size = {soundLength(size.width, proposal.width), soundLength(size.height, proposal.height)};
    constexpr std::uint8_t capacity = std::size(decltype(m_sizes){});
    if (m_sizeCount == 0) m_nextSize = 0;
    m_sizes[m_nextSize] = {proposal, size};
    m_nextSize = std::uint8_t((m_nextSize + 1) % capacity);
    if (m_sizeCount < capacity) ++m_sizeCount;
    return size;
}

void Node::place(Point origin, const ProposedSize& proposed) {
    const ProposedSize proposal = finiteProposal(proposed);
    const Size fitting = sizeThatFits(proposal);
    const Rect target{{finiteLength(origin.x), finiteLength(origin.y)},
                      {finiteLength(fitting.width), finiteLength(fitting.height)}};
    const bool hasMoved = m_frame.origin != target.origin || !m_hasBeenPlaced;
    const bool isOutdated = m_needsLayout || !m_hasBeenPlaced || m_frame.size != target.size || !(m_placedProposal == proposal) ||
                            (m_dependsOnPosition && (hasMoved || m_host->m_hasPositionChanged));
    if (!(m_frame == target)) animateFrameTo(target);
    m_frame = target;
    if (!isOutdated) return;

    m_hasBeenPlaced = true;
    m_placedProposal = proposal;
    const bool hadPositionChanged = std::exchange(m_host->m_hasPositionChanged, m_host->m_hasPositionChanged || hasMoved);
    layOut(proposal, target.size);
    withdrawAbsentChildren();
    m_host->m_hasPositionChanged = hadPositionChanged;
    m_needsLayout = false;
    updatePaintBounds();
}

void Node::animateFrameTo(const Rect& target) {
    const motion::Animation* animation = m_host->m_layoutAnimation;
    const double now_s = m_host->now_s();
    const bool mayMove = m_hasBeenPlaced && !environment().reduceMotion;
    const bool isMoving = m_frameAnimation && now_s < m_frameAnimation->end_s();
    if (!mayMove || (!animation && !isMoving)) {
        m_frameAnimation.reset();
        return;
    }
    if (!m_frameAnimation) m_frameAnimation = std::make_unique<AnimatedFrame>(m_frame);
    m_frameAnimation->set(target, animation, now_s);
    noteMovement(m_frameAnimation->end_s());
}

void Node::moveTo(Point origin) {
    m_frame.origin = origin;
    m_frameAnimation.reset();
}

void Node::bringToRest() {
    for (const auto& child : m_children) {
        if (!child) continue;
        child->m_frameAnimation.reset();
        child->bringToRest();
    }
    setNeedsDisplay();
}

Rect Node::presentationFrame(double now_s) const { return m_frameAnimation ? m_frameAnimation->valueAt(now_s) : m_frame; }

Rect Node::frameInHost(double now_s) const {
    Rect rect = presentationFrame(now_s);
    for (const Node* outer = m_parent; outer; outer = outer->m_parent)
        rect = rect.offsetBy(outer->presentationFrame(now_s).origin + outer->contentTranslation(now_s));
    return rect;
}

LengthRange Node::lengthRange(Axis axis, std::optional<double> cross) {
    if (axis == Axis::horizontal) return {sizeThatFits({0.0, cross}).width, sizeThatFits({geometry::infinity, cross}).width};
    return {sizeThatFits({cross, 0.0}).height, sizeThatFits({cross, geometry::infinity}).height};
}

double Node::firstBaseline(const ProposedSize& proposal) { return sizeThatFits(proposal).height; }

Size Node::measure(const ProposedSize& proposal) {
    Size result;
    for (const auto& child : m_children) {
        if (!child || child->isAbsent()) continue;
        const Size size = child->sizeThatFits(proposal);
        result = {std::max(result.width, size.width), std::max(result.height, size.height)};
    }
    return result;
}

void Node::layOut(const ProposedSize& proposal, Size) {
    for (const auto& child : m_children)
        if (child && !child->isAbsent()) placeChild(*child, {}, proposal);
}

void Node::placeChild(Node& child, Point leadingOrigin, const ProposedSize& proposal) {
    placeAt(child, leadingOrigin, environment().isRightToLeft() ? child.sizeThatFits(finiteProposal(proposal)) : Size{}, proposal);
}

void Node::placeAt(Node& child, Point leadingOrigin, Size childSize, const ProposedSize& proposal) {
    if (environment().isRightToLeft()) leadingOrigin.x = m_frame.size.width - leadingOrigin.x - childSize.width;
    child.place(leadingOrigin, proposal);
}

void Node::settleTransparentChildren(Size size) {
    for (const auto& child : m_children) {
        if (!child || !child->isTransparent() || child->isAbsent()) continue;
        child->m_frame = {{}, size};
        child->m_frameAnimation.reset();
        child->m_hasBeenPlaced = true;
        child->m_needsLayout = false;
        child->settleTransparentChildren(size);
        child->withdrawAbsentChildren();
        child->updatePaintBounds();
    }
}

// What has become absent is skipped by layOut(), and must not stay where it was. What still leaves in it keeps its place for so
// long.
void Node::withdrawAbsentChildren() {
    for (const auto& child : m_children)
        // What was laid out needs it no more.
        if (child && child->m_needsLayout && child->m_hasBeenPlaced && child->isAbsent() && !child->holdsLeaving())
            child->withdraw();
}

bool Node::holdsLeaving() const {
    if (m_leaving && !m_leaving->empty()) return true;
    return std::any_of(m_children.begin(), m_children.end(), [](const auto& child) { return child && child->holdsLeaving(); });
}

void Node::leaveOut(Node& child) {
    if (child.m_hasBeenPlaced) child.withdraw();
}

void Node::withdraw() {
    m_frame = m_paintBounds = {};
    m_frameAnimation.reset();
    m_hasBeenPlaced = false;
    for (const auto& child : m_children)
        if (child) child->withdraw();
}

void Node::updatePaintBounds() {
    const double outset = finiteLength(paintOutset());
    Rect bounds = Rect{{}, m_frame.size}.insetBy(-outset, -outset);
    forEachPainted([&](const Node& child) { bounds = bounds.united(child.m_paintBounds.offsetBy(child.m_frame.origin)); });
    m_paintBounds = effectBounds(bounds);
    if (m_children.size() >= manyChildren)
        updateChildExtents();
    else
        m_childExtents.reset();
}

void Node::updateChildExtents() {
    if (!m_childExtents) m_childExtents = std::make_unique<ChildExtents>();
    const Axis axis = m_frame.width() > m_frame.height() ? Axis::horizontal : Axis::vertical;
    m_childExtents->axis = axis;
    m_childExtents->intervals.assign(m_children.size(), [&](std::size_t slot) {
        const Node* child = m_children[slot].get();
        // Where nothing is, the interval must not hold up the search.
        if (!child) return std::pair{geometry::infinity, -geometry::infinity};
        return extentOf(child->m_paintBounds.offsetBy(child->m_frame.origin), axis);
    });
}

std::pair<std::size_t, std::size_t> Node::childrenNear(const std::optional<Rect>& rect) const {
    if (!rect) return {0, m_children.size()};
    // Rounding may put an edge a little elsewhere than in the window's coordinates.
    constexpr double margin = 1;
    const auto [start, end] = extentOf(*rect, m_childExtents->axis);
    return m_childExtents->intervals.reachingInto(start - margin, end + margin);
}

} // namespace proupsells::swiftui
