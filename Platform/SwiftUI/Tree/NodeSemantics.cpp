// The semantic tree.
#include "Platform/SwiftUI/Tree/ControlSearch.hpp"
#include "Platform/SwiftUI/Tree/Node.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::Rect;
using graphics::PaintState;

namespace {

// A view that is leaving can still be seen, but not used.
void makeUnreachable(accessibility::SemanticNode& node) {
    node.identifier.clear();
    node.isControl = false;
    node.activate = nullptr;
    node.reveal = nullptr;
    node.revealWhole = nullptr;
    node.spoken.isSilent = true;
    for (accessibility::SemanticNode& child : node.children) makeUnreachable(child);
}

Rect unionOfFrames(const std::vector<accessibility::SemanticNode>& nodes) {
    Rect result;
    for (const accessibility::SemanticNode& node : nodes) result = result.united(node.frame);
    return result;
}

} // namespace

accessibility::SemanticNode SemanticContext::makeNode(std::string_view type, const PaintState& state, const Rect& frame) {
    SemanticAttributes attributes = std::move(pending);
    pending = {};
    accessibility::SemanticNode node;
    node.type = type;
    node.id = attributes.id;
    node.frame = attributes.frame.value_or(state.toWindow(frame));
    node.isOnScreen = state.opacity > 0 && node.frame.intersection(state.clip).intersects(window);
    node.identifier = std::move(attributes.identifier);
    node.label = std::move(attributes.label);
    node.value = std::move(attributes.value);
    node.traits = attributes.traits;
    node.spoken = std::move(attributes.spoken);
    node.opacity = state.opacity;
    node.scale = attributes.scale;
    node.rotation_degrees = attributes.rotation_degrees;
    node.clip = attributes.clip;
    node.isControl = attributes.isControl;
    node.activate = std::move(attributes.activate);
    if (reveal) {
        node.reveal = revealing(node.frame, Revealed::centre);
        node.revealWhole = revealing(node.frame, Revealed::whole);
    }
    return node;
}

// What moves is revealed where it comes to rest, and rests there from then on.
std::function<void()> SemanticContext::revealing(const Rect& frame, Revealed revealed) const {
    const Rect target = frame.offsetBy(movement);
    if (movement == geometry::Point{}) return [reveal = reveal, target, revealed] { reveal(target, revealed); };
    return [reveal = reveal, bringToRest = bringToRest, target, revealed] {
        if (bringToRest) bringToRest();
        reveal(target, revealed);
    };
}

void Node::appendSemantics(SemanticContext& context, const PaintState& parentState,
                           std::vector<accessibility::SemanticNode>& result) {
    if (!m_hasBeenPlaced) return;
    const Rect frame = presentationFrame(context.now_s);
    const geometry::Point movement = context.movement;
    context.movement = movement + (m_frame.origin - frame.origin);
    appendSemanticsAt(frame, context, parentState, result);
    context.movement = movement;
}

void Node::appendSemanticsAt(const Rect& frame, SemanticContext& context, const PaintState& parentState,
                             std::vector<accessibility::SemanticNode>& result) {
    const double now_s = context.now_s;
    // What moves may be outside the bounds, which are those of the end of the movement.
    if (parentState.readsOnlyWhatIsSeen && parentState.hides(m_paintBounds.offsetBy(m_frame.origin)) && !isMovingAt(now_s)) return;
    PaintState state = parentState.movedBy(frame.origin);
    state.scheme = environment().colorScheme;
    addAttributes(context, state);
    if (context.pending.isHidden) {
        context.pending = {};
        return;
    }
    applyEffects(state, now_s);
    const std::string_view type = semanticType();
    if (type.empty()) {
        appendChildSemantics(context, state, result);
        context.pending = {};
        return;
    }
    accessibility::SemanticNode node = context.makeNode(type, state, {{}, frame.size});
    const bool takesFrameFromChildren = isTransparent();
    if (node.id == 0) node.id = m_id;
    describe(node, state, now_s);
    // A control is read as a whole.
    if (node.isControl || takesFrameFromChildren) state.readsOnlyWhatIsSeen = false;
    appendChildSemantics(context, state, node.children);
    context.pending = {};
    if (takesFrameFromChildren) node.frame = unionOfFrames(node.children);
    if (node.isControl) node.leastTarget = ControlSearch::leastTarget;
    result.push_back(std::move(node));
}

void Node::appendChildSemantics(SemanticContext& context, const PaintState& state,
                                std::vector<accessibility::SemanticNode>& result) {
    PaintState inner = state.movedBy(contentTranslation(context.now_s));
    if (context.pending.isControl) inner.readsOnlyWhatIsSeen = false;
    const Node* primary = primarySlot() < m_children.size() ? m_children[primarySlot()].get() : nullptr;
    SemanticAttributes own = std::move(context.pending);
    context.pending = {};
    const auto append = [&](Node& child) {
        if (&child == primary) context.pending = std::move(own);
        const std::size_t first = result.size();
        child.appendSemantics(context, inner, result);
        context.pending = {};
        if (child.m_isLeaving)
            for (std::size_t i = first; i < result.size(); ++i) makeUnreachable(result[i]);
    };
    forEachIn(inner.readsOnlyWhatIsSeen ? inner.visibleRect() : std::nullopt, context.now_s, append);
}

void Node::describe(accessibility::SemanticNode&, const PaintState&, double) const {}
void Node::addAttributes(SemanticContext&, const PaintState&) const {}

} // namespace proupsells::swiftui
