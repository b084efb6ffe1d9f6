#include "Platform/SwiftUI/Modifiers/TapGestureModifier.hpp"

#include <cmath>

#include "Platform/SwiftUI/Gestures/TapTarget.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {
namespace {

// A finger that has moved further than this meant something else.
constexpr double slack = 10;

class TapGestureNode final : public ModifierNode, public GestureHandler {
public:
    void adopt(TapGestureModifier&& modifier, UpdatePass&) { m_target.adopt(*this, std::move(modifier.action)); }

    GestureHandler* gestureHandler() override { return environment().isEnabled ? this : nullptr; }
    bool isControl() const override { return true; }
    bool touchBegan(const TouchEvent&) override {
        m_isTap = true;
        return true;
    }
    void touchMoved(const TouchEvent& event) override {
        const geometry::Point moved = event.location - event.start;
        if (std::hypot(moved.x, moved.y) > slack) m_isTap = false;
    }
    void touchEnded(const TouchEvent&) override {
        if (m_isTap) m_target.act();
    }

protected:
    bool isHittable() const override { return true; }
    void addAttributes(SemanticContext& context, const graphics::PaintState&) const override {
        context.pending.isControl = true;
        context.pending.id = id();
        if (environment().isEnabled) context.pending.activate = m_target.activation();
    }

private:
    TapTarget m_target;
    bool m_isTap = false;
};

} // namespace

View TapGestureModifier::modified(View content) && { return newModifier<TapGestureNode>(std::move(*this), content); }

} // namespace proupsells::swiftui
