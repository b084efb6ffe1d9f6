// Shapes and colours on screen.
#include <algorithm>
#include <cmath>

#include "Platform/SwiftUI/Layout/FillingSize.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui {

using geometry::Rect;
using geometry::Size;
using graphics::PaintState;
using graphics::RGBA;

namespace {

// Everything that fills what it is offered.
class FillingNode : public Node {
public:
    LengthRange lengthRange(Axis, std::optional<double>) override { return {0, geometry::infinity}; }

protected:
    Size measure(const geometry::ProposedSize& proposal) override { return fillingSize(proposal); }
};

class ShapeNode final : public FillingNode {
public:
    void adopt(Shape&& shape, UpdatePass& pass) {
        const bool isOther = !(shape == m_shape);
        if (!isOther && !environmentChanged()) return;
        const motion::Animation* animation = isNew() ? nullptr : pass.animation;
        m_color.set(shape.color().value_or(environment().foregroundStyle), animation, pass.now_s);
        m_lineWidth.set(shape.lineWidth(), animation, pass.now_s);
        m_data.set(shape.animatableData(), animation, pass.now_s);
        const double outset = paintOutset();
        if (isOther) m_shape = std::move(shape);
        if (isNew()) return;
        if (paintOutset() != outset) invalidateLayout(); // where the picture may be
        noteMovement(std::max(m_lineWidth.end_s(), m_data.end_s()));
        host().noteAnimation(m_color.end_s());
        setNeedsDisplay();
    }

protected:
    std::string_view semanticType() const override { return m_shape.typeName(); }
    // What is behind a ring can be touched through it.
    bool isHittable() const override { return !m_shape.isStroked(); }
    double paintOutset() const override {
        return std::max(0.0, -m_shape.insetAmount()) + (m_shape.isStroked() ? std::max(0.0, m_shape.lineWidth()) / 2 : 0);
    }

    void paintContent(graphics::PaintContext& context, const PaintState& state, double now_s) override {
        const RGBA color = m_color.valueAt(now_s).resolved(environment().colorScheme);
        const Rect rect{{}, presentationFrame(now_s).size};
        if (m_shape.isStroked())
            paintStroke(context, state, rect, color, m_lineWidth.valueAt(now_s), now_s);
        else
            paintFill(context, state, rect, color, now_s);
    }

    void describe(accessibility::SemanticNode& node, const PaintState&, double now_s) const override {
        accessibility::ShapeInfo info;
        const std::string name(m_color.target().name);
        if (m_shape.isStroked()) {
            info.stroke = name;
            info.lineWidth = m_lineWidth.valueAt(now_s);
        } else {
            info.fill = name;
        }
        if (m_shape.kind() == Shape::Kind::roundedRectangle)
            info.cornerRadius = m_shape.cornerRadiusIn({{}, presentationFrame(now_s).size});
        node.shape = std::move(info);
    }

private:
    void paintFill(graphics::PaintContext& context, const PaintState& state, const Rect& rect, RGBA color, double now_s) {
        switch (m_shape.kind()) {
        case Shape::Kind::rectangle: return context.fillRectangle(state, m_shape.outlineRect(rect), color);
        case Shape::Kind::circle:
        case Shape::Kind::ellipse: return context.fillEllipse(state, m_shape.outlineRect(rect), color);
        case Shape::Kind::custom: return context.fillPath(state, customPath(rect, now_s), color);
        default:
            return context.fillRoundedRectangle(state, m_shape.outlineRect(rect), m_shape.cornerRadiusIn(rect), m_shape.style(),
                                                color);
        }
    }

    void paintStroke(graphics::PaintContext& context, const PaintState& state, const Rect& rect, RGBA color, double lineWidth,
                     double now_s) {
        if (!(lineWidth > 0)) return;
        switch (m_shape.kind()) {
        case Shape::Kind::circle:
        case Shape::Kind::ellipse: return context.strokeEllipse(state, m_shape.outlineRect(rect), lineWidth, color);
        case Shape::Kind::custom: return context.strokePath(state, customPath(rect, now_s), lineWidth, color);
        default:
            return context.strokeRoundedRectangle(state, m_shape.outlineRect(rect), m_shape.cornerRadiusIn(rect), m_shape.style(),
                                                  lineWidth, color);
        }
    }

    geometry::Path customPath(const Rect& rect, double now_s) const {
        return (m_data.isAnimatingAt(now_s) ? m_shape.withAnimatableData(m_data.valueAt(now_s)) : m_shape).path(rect);
    }

    Shape m_shape = Rectangle();
    Animated<graphics::Color> m_color;
    Animated<double> m_lineWidth{0};
    Animated<double> m_data{0};
};

class ColorNode final : public FillingNode {
public:
    void adopt(ColorView&& view, UpdatePass& pass) {
        if (!isNew() && view == m_view && !environmentChanged()) return;
        m_color.set(view.color, isNew() ? nullptr : pass.animation, pass.now_s);
        m_view = view;
        if (isNew()) return;
        host().noteAnimation(m_color.end_s());
        setNeedsDisplay();
    }

protected:
    std::string_view semanticType() const override { return "Color"; }
    bool isHittable() const override { return m_view.color.light.alpha > 0 || m_view.color.dark.alpha > 0; }

    void paintContent(graphics::PaintContext& context, const PaintState& state, double now_s) override {
        RGBA color = m_color.valueAt(now_s).resolved(environment().colorScheme);
        color.alpha = std::uint8_t(std::lround(color.alpha * std::clamp(m_view.opacity, 0.0, 1.0)));
        context.fillRectangle(state, {{}, presentationFrame(now_s).size}, color);
    }
    void describe(accessibility::SemanticNode& node, const PaintState&, double) const override {
        accessibility::ShapeInfo info;
        info.fill = std::string(m_view.color.name);
        node.shape = std::move(info);
    }

private:
    ColorView m_view;
    Animated<graphics::Color> m_color;
};

} // namespace

Element* Shape::makeElement() && { return newElement<ShapeNode>(std::move(*this)); }
Element* ColorView::makeElement() && { return newElement<ColorNode>(std::move(*this)); }

} // namespace proupsells::swiftui
