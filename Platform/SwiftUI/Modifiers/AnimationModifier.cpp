#include "Platform/SwiftUI/Modifiers/AnimationModifier.hpp"

#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui::detail {

void AnimationNodeBase::adoptContent(const View& content, UpdatePass& pass) {
    if (!m_hasChanged) return updateChild(0, content, pass);
    invalidateLayout();
    UpdatePass inner = pass.with(m_animation ? &*m_animation : nullptr);
    updateChild(0, content, inner);
}

void AnimationNodeBase::layOut(const geometry::ProposedSize& proposal, geometry::Size size) {
    if (!std::exchange(m_hasChanged, false)) return ModifierNode::layOut(proposal, size);
    const motion::Animation* around = host().layoutAnimation();
    host().setLayoutAnimation(m_animation ? &*m_animation : nullptr);
    ModifierNode::layOut(proposal, size);
    host().setLayoutAnimation(around);
}

} // namespace proupsells::swiftui::detail
