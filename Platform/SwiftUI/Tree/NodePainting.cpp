// The picture, and what is where in it.
#include "Platform/SwiftUI/Tree/ControlSearch.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::Point;
using geometry::Rect;
using graphics::PaintState;

namespace {

// Views fainter than this take no touches.
constexpr double touchableOpacity = 0.01;

// The state for a node's own coordinates, its effects included.
PaintState stateInside(const Node& node, const PaintState& parentState, double now_s) {
    PaintState state = parentState.movedBy(node.presentationFrame(now_s).origin);
    state.scheme = node.environment().colorScheme;
    node.applyEffects(state, now_s);
    return state;
}

PaintState stateOfContent(const Node& node, const PaintState& state, double now_s) {
    return state.movedBy(node.contentTranslation(now_s));
}

} // namespace

void Node::paint(graphics::PaintContext& context, const PaintState& parentState, double now_s) {
    ++m_host->m_paintVisitCount;
    if (!m_hasBeenPlaced) return;
    // What moves may be outside the bounds, which are those of the end of the movement.
    if (parentState.hides(m_paintBounds.offsetBy(m_frame.origin)) && !isMovingAt(now_s)) return;
    const PaintState state = stateInside(*this, parentState, now_s);
    if (!(state.opacity > 0)) return;
    paintContent(context, state, now_s);
    if (!m_children.empty() || m_leaving) {
        const Point translation = contentTranslation(now_s);
        if (translation == Point{})
            paintChildren(context, state, now_s);
        else
            paintChildren(context, state.movedBy(translation), now_s);
    }
    paintOverlay(context, state, now_s);
}

void Node::paintChildren(graphics::PaintContext& context, const PaintState& state, double now_s) {
    forEachIn(state.visibleRect(), now_s, [&](Node& child) { child.paint(context, state, now_s); });
}

void Node::applyEffects(PaintState&, double) const {}
Point Node::contentTranslation(double) const { return {}; }
void Node::paintContent(graphics::PaintContext&, const PaintState&, double) {}
void Node::paintOverlay(graphics::PaintContext&, const PaintState&, double) {}

Node* Node::hitTest(Point inWindow, const PaintState& parentState, double now_s) {
    if (!m_hasBeenPlaced || !allowsHitTesting()) return nullptr;
    const bool isInside = parentState.toWindow(m_paintBounds.offsetBy(m_frame.origin)).contains(inWindow);
    if (!isInside && !isMovingAt(now_s)) return nullptr;
    const PaintState state = stateInside(*this, parentState, now_s);
    if (state.opacity < touchableOpacity || !state.clip.contains(inWindow)) return nullptr;
    const PaintState inner = stateOfContent(*this, state, now_s);
    const auto [first, end] = childrenTouched(inWindow, inner, now_s);
    for (std::size_t i = 0; i < end - first; ++i) {
        Node* child = m_children[m_paintsInReverse ? first + i : end - 1 - i].get();
        if (Node* hit = child ? child->hitTest(inWindow, inner, now_s) : nullptr) return hit;
    }
    const Point local = state.transform.inverted().apply(inWindow) - state.origin;
    if (!Rect{{}, presentationFrame(now_s).size}.contains(local)) return nullptr;
    if (isHittable() || gestureHandler()) return this;
    return forwardsTouches() ? firstHandlerNode() : nullptr;
}

void Node::findControl(ControlSearch& search, const PaintState& parentState, double now_s) {
    if (!m_hasBeenPlaced || !allowsHitTesting()) return;
    const Rect bounds = parentState.toWindow(m_paintBounds.offsetBy(m_frame.origin));
    const bool isNear = bounds.insetBy(-ControlSearch::reach, -ControlSearch::reach).contains(search.finger);
    if (!isNear && !isMovingAt(now_s)) return;
    const PaintState state = stateInside(*this, parentState, now_s);
    if (state.opacity < touchableOpacity || !state.clip.contains(search.finger)) return;
    // What takes touches for a control inside is that control's target.
    Node* const target = forwardsTouches() ? firstHandlerNode() : this;
    const GestureHandler* handler = target ? target->gestureHandler() : nullptr;
    if (handler && handler->isControl()) {
        search.offer(*target, state.toWindow({{}, presentationFrame(now_s).size}).intersection(state.clip));
        if (target != this) return;
    }
    const PaintState inner = stateOfContent(*this, state, now_s);
    for (const auto& child : m_children)
        if (child) child->findControl(search, inner, now_s);
}

std::pair<std::size_t, std::size_t> Node::childrenTouched(Point inWindow, const PaintState& inner, double now_s) const {
    if (!m_childExtents || isMovingAt(now_s)) return {0, m_children.size()};
    return childrenNear(Rect{inner.transform.inverted().apply(inWindow) - inner.origin, {}});
}

Node* Node::firstHandlerNode() {
    if (!allowsHitTesting()) return nullptr;
    if (gestureHandler()) return this;
    for (const auto& child : m_children)
        if (child)
            if (Node* found = child->firstHandlerNode()) return found;
    return nullptr;
}

} // namespace proupsells::swiftui
