// The node that makes what is inside it come and go.
#pragma once

#include "Platform/SwiftUI/Modifiers/AnyTransition.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/TransitionHandler.hpp"

namespace proupsells::swiftui {

class TransitionNode final : public ModifierNode, private TransitionHandler {
public:
    void adopt(TransitionModifier&& modifier, UpdatePass& pass);

    void applyEffects(graphics::PaintState& state, double now_s) const override;

protected:
    void addAttributes(SemanticContext& context, const graphics::PaintState& state) const override;
    TransitionHandler* transitionHandler() override { return this; }

private:
    void enter(const UpdatePass& pass) override;
    double leave(const UpdatePass& pass) override;
    void comeBack(const UpdatePass& pass) override;
    const motion::Animation* animationOf(const AnyTransition::Way& way, const UpdatePass& pass) const;
    TransitionEffect effectAt(double now_s) const;

    AnyTransition m_transition = AnyTransition::identity();
    bool m_isLeavingWay = false;
    Animated<double> m_presence{1};
};

} // namespace proupsells::swiftui
