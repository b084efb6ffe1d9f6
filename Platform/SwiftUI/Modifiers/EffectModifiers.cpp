#include "Platform/SwiftUI/Modifiers/EffectModifiers.hpp"

#include <cmath>
#include <numbers>

#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/SemanticContext.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::Point;
using geometry::Rect;
using geometry::Transform;
using graphics::PaintState;

namespace {

// Sets a value that is shown over time; returns whether it has changed.
template <class Value>
bool setAnimated(Node& node, Animated<Value>& animated, const Value& value, const UpdatePass& pass, bool isMotion) {
    const bool hasChanged = !(animated.target() == value);
    const bool jumps = node.isNew() || (isMotion && node.environment().reduceMotion);
    animated.set(value, jumps ? nullptr : pass.animation, pass.now_s);
    if (!hasChanged || node.isNew()) return false;
    if (isMotion)
        node.noteMovement(animated.end_s());
    else
        node.host().noteAnimation(animated.end_s());
    node.setNeedsDisplay();
    return true;
}

class OpacityNode final : public ModifierNode {
public:
    void adopt(OpacityModifier&& modifier, UpdatePass& pass) { setAnimated(*this, m_opacity, modifier.opacity, pass, false); }
    void applyEffects(PaintState& state, double now_s) const override {
        const double opacity = m_opacity.valueAt(now_s);
        if (opacity != 1) state = state.fadedBy(opacity);
    }

private:
    Animated<double> m_opacity;
};

// Scales and rotations: a transform about a point of the view.
class TransformNodeBase : public ModifierNode {
public:
    void applyEffects(PaintState& state, double now_s) const override {
        const Transform transform = transformAt(now_s, presentationFrame(now_s).size);
        if (!transform.isIdentity()) state = state.transformedBy(transform);
    }

protected:
    virtual Transform transformAt(double now_s, geometry::Size size) const = 0;
    Rect effectBounds(const Rect& bounds) const override {
        // Where it will be, and where it would be without the transform: it may be on its way between the two.
        return transformAt(geometry::infinity, frame().size).apply(bounds).united(bounds);
    }
};

class ScaleNode final : public TransformNodeBase {
public:
    void adopt(ScaleEffectModifier&& modifier, UpdatePass& pass) {
        const bool hasMoved = setAnimated(*this, m_scale, modifier.scale, pass, true) || !(modifier.anchor == m_anchor);
        m_anchor = modifier.anchor;
        if (hasMoved && !isNew()) invalidateLayout(); // where the picture may be
    }

protected:
    Transform transformAt(double now_s, geometry::Size size) const override {
        const double scale = m_scale.valueAt(now_s);
        if (scale == 1) return {};
        return Transform::scaling(scale, scale).about({size.width * m_anchor.x, size.height * m_anchor.y});
    }
    void addAttributes(SemanticContext& context, const PaintState&) const override {
        context.pending.scale = context.pending.scale.value_or(1) * m_scale.valueAt(context.now_s);
    }

private:
    Animated<double> m_scale{1};
    geometry::UnitPoint m_anchor;
};

class RotationNode final : public TransformNodeBase {
public:
    void adopt(RotationEffectModifier&& modifier, UpdatePass& pass) {
        if (setAnimated(*this, m_angle_degrees, modifier.angle_degrees, pass, true)) invalidateLayout();
    }

protected:
    Transform transformAt(double now_s, geometry::Size size) const override {
        const double angle_degrees = m_angle_degrees.valueAt(now_s);
        if (angle_degrees == 0) return {};
        return Transform::rotation(angle_degrees * std::numbers::pi / 180).about({size.width / 2, size.height / 2});
    }
    void addAttributes(SemanticContext& context, const PaintState&) const override {
        context.pending.rotation_degrees = context.pending.rotation_degrees.value_or(0) + m_angle_degrees.valueAt(context.now_s);
    }

private:
    Animated<double> m_angle_degrees{0};
};

class ClipNode final : public ModifierNode {
public:
    void adopt(ClipModifier&& modifier, UpdatePass& pass) {
        if (isNew() || !(modifier.shape == m_shape)) {
            setAnimated(*this, m_data, modifier.shape.animatableData(), pass, true);
            m_shape = modifier.shape;
            if (!isNew()) setNeedsDisplay();
        }
    }
    void applyEffects(PaintState& state, double now_s) const override {
        const Rect bounds{{}, presentationFrame(now_s).size};
        const Shape shape = shapeAt(now_s);
        state = state.clippedTo(shape.outlineRect(bounds), shape.cornerRadiusIn(bounds));
    }

protected:
    void addAttributes(SemanticContext& context, const PaintState& state) const override {
        context.pending.clip = state.toWindow(shapeAt(context.now_s).outlineRect({{}, presentationFrame(context.now_s).size}));
    }
    Rect effectBounds(const Rect& bounds) const override { return bounds.intersection({{}, frame().size}); }

private:
    Shape shapeAt(double now_s) const {
        return m_data.isAnimatingAt(now_s) ? m_shape.withAnimatableData(m_data.valueAt(now_s)) : m_shape;
    }

    Shape m_shape = Rectangle();
    Animated<double> m_data{0};
};

class ShadowNode final : public ModifierNode {
public:
    void adopt(ShadowModifier&& modifier, UpdatePass&) {
        if (modifier == m_shadow) return;
        m_shadow = modifier;
        if (!isNew()) invalidateLayout(); // where the picture may be
    }

protected:
    double paintOutset() const override {
        return 2 * m_shadow.radius + std::max(std::abs(m_shadow.offset.x), std::abs(m_shadow.offset.y));
    }
    void paintContent(graphics::PaintContext& context, const PaintState& state, double now_s) override {
        graphics::RGBA color = m_shadow.color.resolved(environment().colorScheme);
        color.alpha = std::uint8_t(std::lround(color.alpha * std::clamp(m_shadow.opacity, 0.0, 1.0)));
        context.shadow(state, {{}, presentationFrame(now_s).size}, m_shadow.radius, m_shadow.offset, color);
    }

private:
    ShadowModifier m_shadow;
};

class HitTestingNode final : public ModifierNode {
public:
    void adopt(HitTestingModifier&& modifier, UpdatePass&) { m_isAllowed = modifier.isAllowed; }

protected:
    bool allowsHitTesting() const override { return m_isAllowed; }

private:
    bool m_isAllowed = true;
};

class ContentShapeNode final : public ModifierNode {
public:
    void adopt(ContentShapeModifier&&, UpdatePass&) {}

protected:
    bool forwardsTouches() const override { return true; }
};

} // namespace

View OpacityModifier::modified(View content) && { return newModifier<OpacityNode>(std::move(*this), content); }
View ScaleEffectModifier::modified(View content) && { return newModifier<ScaleNode>(std::move(*this), content); }
View RotationEffectModifier::modified(View content) && { return newModifier<RotationNode>(std::move(*this), content); }
View ClipModifier::modified(View content) && { return newModifier<ClipNode>(std::move(*this), content); }
View ShadowModifier::modified(View content) && { return newModifier<ShadowNode>(std::move(*this), content); }
View HitTestingModifier::modified(View content) && { return newModifier<HitTestingNode>(std::move(*this), content); }
View ContentShapeModifier::modified(View content) && { return newModifier<ContentShapeNode>(std::move(*this), content); }

} // namespace proupsells::swiftui
