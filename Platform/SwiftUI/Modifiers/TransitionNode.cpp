#include "Platform/SwiftUI/Modifiers/TransitionNode.hpp"

#include "Platform/SwiftUI/Tree/SemanticContext.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

void TransitionNode::adopt(TransitionModifier&& modifier, UpdatePass&) { m_transition = std::move(modifier.transition); }

const motion::Animation* TransitionNode::animationOf(const AnyTransition::Way& way, const UpdatePass& pass) const {
    if (way.parts.empty() || (environment().reduceMotion && !way.fades())) return nullptr;
    return way.animation ? &*way.animation : pass.animation;
}

void TransitionNode::enter(const UpdatePass& pass) {
    const motion::Animation* animation = animationOf(m_transition.insertion(), pass);
    if (!animation) return;
    m_isLeavingWay = false;
    m_presence.set(0, nullptr, pass.now_s);
    m_presence.set(1, animation, pass.now_s);
    noteMovement(m_presence.end_s());
}

double TransitionNode::leave(const UpdatePass& pass) {
    const motion::Animation* animation = animationOf(m_transition.removal(), pass);
    if (!animation) return pass.now_s;
    m_isLeavingWay = true;
    m_presence.set(0, animation, pass.now_s);
    noteMovement(m_presence.end_s());
    return m_presence.end_s();
}

void TransitionNode::comeBack(const UpdatePass& pass) {
    // It goes back the way by which it was leaving, from where it is now.
    const AnyTransition::Way& way = m_isLeavingWay ? m_transition.removal() : m_transition.insertion();
    m_presence.set(1, animationOf(way, pass), pass.now_s);
    noteMovement(m_presence.end_s());
}

TransitionEffect TransitionNode::effectAt(double now_s) const {
    TransitionEffect effect;
    const AnyTransition::Way& way = m_isLeavingWay ? m_transition.removal() : m_transition.insertion();
    way.apply(m_presence.valueAt(now_s), frame().size, effect);
    if (environment().reduceMotion) return {.opacity = effect.opacity};
    return effect;
}

void TransitionNode::applyEffects(graphics::PaintState& state, double now_s) const {
    if (m_presence.target() == 1 && !m_presence.isAnimatingAt(now_s)) return;
    const TransitionEffect effect = effectAt(now_s);
    const geometry::Rect bounds{{}, frame().size};
    if (effect.offset != geometry::Point{}) {
        const double mirror = environment().isRightToLeft() ? -1 : 1;
        state.origin = state.origin + geometry::Point{effect.offset.x * mirror, effect.offset.y};
    }
    if (effect.scale != 1)
        state = state.transformedBy(geometry::Transform::scaling(effect.scale, effect.scale).about(bounds.center()));
    if (effect.clip) state = state.clippedTo(effect.clip->outlineRect(bounds), effect.clip->cornerRadiusIn(bounds));
    if (effect.opacity != 1) state = state.fadedBy(effect.opacity);
}

void TransitionNode::addAttributes(SemanticContext& context, const graphics::PaintState& state) const {
    if (m_presence.target() == 1 && !m_presence.isAnimatingAt(context.now_s)) return;
    const TransitionEffect effect = effectAt(context.now_s);
    if (effect.clip) context.pending.clip = state.toWindow(effect.clip->outlineRect({{}, frame().size}));
    if (effect.scale != 1) context.pending.scale = context.pending.scale.value_or(1) * effect.scale;
}

View TransitionModifier::modified(View content) && { return newModifier<TransitionNode>(std::move(*this), content); }

} // namespace proupsells::swiftui
