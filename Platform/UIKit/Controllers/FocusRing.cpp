#include "Platform/UIKit/Controllers/FocusRing.hpp"

#include <algorithm>

namespace proupsells::uikit {

using geometry::Rect;

namespace {

constexpr double lineWidth = 2, rimWidth = 1.5;
constexpr double halfWidth = lineWidth / 2 + rimWidth;

bool contains(const Rect& outer, const Rect& inner) {
    return inner.minX() >= outer.minX() && inner.maxX() <= outer.maxX() && inner.minY() >= outer.minY() &&
           inner.maxY() <= outer.maxY();
}

bool crosses(const Rect& ring, const Rect& text) {
    return ring.insetBy(-halfWidth, -halfWidth).intersects(text) && !contains(ring.insetBy(halfWidth, halfWidth), text);
}

} // namespace

Rect focusRingAround(const Rect& control, const Rect& window, const std::vector<Rect>& texts) {
    const Rect room = window.insetBy(halfWidth, halfWidth);
    const auto at = [&](double distance) { return control.insetBy(-distance, -distance).intersection(room); };
    for (const double distance : {4.5, 3.5, 2.5, 1.5, 0.5, -0.5, -1.5, -2.5}) {
        const Rect ring = at(distance);
        if (std::none_of(texts.begin(), texts.end(), [&](const Rect& text) { return crosses(ring, text); })) return ring;
    }
    return at(halfWidth);
}

void paintFocusRing(graphics::PaintContext& context, const graphics::PaintState& state, const Rect& ring) {
    constexpr double radius = 6;
    const auto stroke = [&](double width, const UIColor& color) {
        context.strokeRoundedRectangle(state, ring, radius, geometry::CornerStyle::continuous, width, color.resolved(state.scheme));
    };
    stroke(2 * halfWidth, focusRingRimColor);
    stroke(lineWidth, focusRingColor);
}

} // namespace proupsells::uikit
