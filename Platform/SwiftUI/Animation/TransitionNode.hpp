// The node that makes what is inside it come and go.
#pragma once

#include "Platform/SwiftUI/Animation/AnyTransition.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"

namespace proupsells::swiftui {

class TransitionNode final : public ModifierNode {
public:
    void adopt(TransitionModifier&& modifier, UpdatePass& pass);

    // Told by the parent that inserts, removes or takes back the subtree.
    void enter(const UpdatePass& pass);
    // Begins to leave. Returns when it will be gone; that is now or earlier if it goes at once.
    double leave(const UpdatePass& pass);
    void comeBack(const UpdatePass& pass);

    void applyEffects(graphics::PaintState& state, double now_s) const override;

protected:
    void addAttributes(SemanticContext& context, const graphics::PaintState& state) const override;
    TransitionNode* asTransition() override { return this; }

private:
    const motion::Animation* animationOf(const AnyTransition::Way& way, const UpdatePass& pass) const;
    TransitionEffect effectAt(double now_s) const;

    AnyTransition m_transition = AnyTransition::identity();
    bool m_isLeavingWay = false;
    Animated<double> m_presence{1};
};

} // namespace proupsells::swiftui
