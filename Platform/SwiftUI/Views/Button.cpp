#include "Platform/SwiftUI/Views/Button.hpp"

#include "Platform/SwiftUI/Gestures/TapTarget.hpp"
#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/SwiftUI/Views/ButtonStyle.hpp"

namespace proupsells::swiftui {
namespace {

// How far off its edges the finger may slip while the button still counts as held.
constexpr double slack = 44;

// What the style makes of the label.
struct StyledLabel {
    static constexpr std::string_view typeName{}; // of no account in the semantic tree

    std::shared_ptr<const ButtonStyle> style;
    View label;
    bool isPressed = false;

    View body(BuildContext& context) const { return style->body({label, isPressed}, context); }
};

class ButtonNode final : public Node, public GestureHandler {
public:
    void adopt(Button&& button, UpdatePass& pass) {
        m_target.adopt(*this, std::move(button.action));
        m_isPressed = m_isPressed && environment().isEnabled;
        const auto& style = environment().buttonStyle;
        updateChild(0, StyledLabel{style ? style : ButtonStyle::automatic(), button.label, m_isPressed}, pass);
    }

    double layoutPriority() const override { return onlyChild() ? onlyChild()->layoutPriority() : 0; }
    double firstBaseline(const geometry::ProposedSize& proposal) override {
        return onlyChild() ? onlyChild()->firstBaseline(proposal) : 0;
    }
    LengthRange lengthRange(Axis axis, std::optional<double> crossProposal) override {
        return onlyChild() ? onlyChild()->lengthRange(axis, crossProposal) : LengthRange{};
    }
    GestureHandler* gestureHandler() override { return this; }

    bool isControl() const override { return true; }
    // A disabled button takes the touch too, so that nothing around it gets it.
    bool touchBegan(const TouchEvent&) override {
        setPressed(environment().isEnabled);
        return true;
    }
    void touchMoved(const TouchEvent& event) override { setPressed(environment().isEnabled && holds(event.location)); }
    void touchEnded(const TouchEvent&) override {
        const bool acts = m_isPressed;
        setPressed(false);
        if (acts) m_target.act();
    }
    void touchCancelled() override { setPressed(false); }
    void hovered(bool isHovered) override {
        m_isHovered = isHovered;
        setNeedsDisplay();
    }
    // The mouse that rests on it is answered quietly.
    void applyEffects(graphics::PaintState& state, double) const override {
        constexpr double hoveredOpacity = 0.88;
        if (m_isHovered && !m_isPressed && environment().isEnabled) state = state.fadedBy(hoveredOpacity);
    }

protected:
    geometry::Size measure(const geometry::ProposedSize& proposal) override {
        return onlyChild() ? onlyChild()->sizeThatFits(proposal) : geometry::Size{};
    }
    void layOut(const geometry::ProposedSize& proposal, geometry::Size) override {
        if (onlyChild()) onlyChild()->place({}, proposal);
    }
    bool isHittable() const override { return true; }
    std::string_view semanticType() const override { return "Button"; }
    void describe(accessibility::SemanticNode& node, const graphics::PaintState&, double) const override {
        using accessibility::Traits;
        node.isControl = true;
        node.traits = node.traits | Traits::button | (environment().isEnabled ? Traits::none : Traits::disabled);
        if (environment().isEnabled) node.activate = m_target.activation();
    }

private:
    bool holds(geometry::Point location) const { return frameInHost(host().now_s()).insetBy(-slack, -slack).contains(location); }
    void setPressed(bool isPressed) {
        if (isPressed == m_isPressed) return;
        m_isPressed = isPressed;
        setNeedsBuild();
    }

    TapTarget m_target;
    bool m_isPressed = false;
    bool m_isHovered = false;
};

} // namespace

Element* Button::makeElement() && { return newElement<ButtonNode>(std::move(*this)); }

} // namespace proupsells::swiftui
