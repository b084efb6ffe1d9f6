#include "Tests/SwiftUI/Star.hpp"

#include <cmath>
#include <numbers>

#include "Platform/SwiftUI/Animation/Animated.hpp"
#include "Platform/SwiftUI/Tree/ModifierNode.hpp"
#include "Platform/SwiftUI/Tree/ValueElement.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"

namespace proupsells::swiftui::tests {
namespace {

geometry::Path starPath(int points, double radius) {
    geometry::Path path;
    for (int corner = 0; corner < 2 * points; ++corner) {
        const double distance = corner % 2 == 0 ? radius : radius / 2, angle = corner * std::numbers::pi / points;
        const geometry::Point at{radius + distance * std::sin(angle), radius - distance * std::cos(angle)};
        if (corner == 0)
            path.moveTo(at);
        else
            path.lineTo(at);
    }
    path.close();
    return path;
}

class StarNode final : public Node {
public:
    void adopt(Star&& star, UpdatePass& pass) {
        if (star.points != m_points) setNeedsDisplay();  // another picture
        if (star.radius != m_radius) invalidateLayout(); // another size, and so another picture
        m_points = star.points;
        m_radius = star.radius;
        updateChild(0, star.content, pass);
    }

protected:
    geometry::Size measure(const geometry::ProposedSize&) override { return {2 * m_radius, 2 * m_radius}; }
    void layOut(const geometry::ProposedSize&, geometry::Size size) override {
        if (!onlyChild() || onlyChild()->isAbsent()) return;
        placeChild(*onlyChild(), alignedOrigin(onlyChild()->sizeThatFits(size), size, Alignment::center), size);
    }
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double) override {
        context.fillPath(state, starPath(m_points, m_radius), environment().foregroundStyle.resolved(state.scheme));
    }
    bool isHittable() const override { return true; }
    std::string_view semanticType() const override { return "Star"; }
    void describe(accessibility::SemanticNode& node, const graphics::PaintState&, double) const override {
        node.value = std::to_string(m_points);
    }

private:
    int m_points = 0;
    double m_radius = 0;
};

class GlowNode final : public ModifierNode {
public:
    void adopt(Glow&& glow, UpdatePass& pass) {
        m_strength.set(glow.strength, isNew() ? nullptr : pass.animation, pass.now_s);
        host().noteAnimation(m_strength.end_s());
        setNeedsDisplay();
    }

protected:
    double paintOutset() const override { return outset; }
    void paintContent(graphics::PaintContext& context, const graphics::PaintState& state, double now_s) override {
        const geometry::Rect disc = geometry::Rect{{}, presentationFrame(now_s).size}.insetBy(-outset, -outset);
        context.fillEllipse(state.fadedBy(m_strength.valueAt(now_s)), disc, graphics::rgb(0xFFF0A0));
    }

private:
    static constexpr double outset = 4;

    Animated<double> m_strength{0};
};

} // namespace

Element* Star::makeElement() && { return newElement<StarNode>(std::move(*this)); }

View Glow::modified(View content) && { return newModifier<GlowNode>(std::move(*this), content); }

} // namespace proupsells::swiftui::tests
