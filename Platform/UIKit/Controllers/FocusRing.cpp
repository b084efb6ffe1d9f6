#include "Platform/UIKit/Controllers/FocusRing.hpp"

#include <algorithm>

namespace proupsells::uikit {

using geometry::Rect;

namespace {

constexpr double lineWidth = 2, rimWidth = 1.5;
constexpr double halfWidth = lineWidth / 2 + rimWidth;

// How far off the control's edge a side may stand, the best one first: outside, across the edge, inside, and further outside.
constexpr double distances[] = {4.5, 3.5, 2.5, 1.5, 0.5, -0.5, -1.5, -2.5, 5.5, 6.5, 7.5, 8.5, 9.5, 10.5, 11.5, 12.5};

// What the letters of a line cover of its height.
Rect lettersOf(const Rect& text) { return text.insetBy(0, 0.1 * std::min(text.height(), 24.0)); }

struct Side {
    bool isHorizontal = false; // the top or the bottom
    double edge = 0;           // of the control
    double outwards = 1;       // or -1
    double least = 0;          // of the places in the window
    double greatest = 0;

    double at(double distance) const { return std::clamp(edge + outwards * distance, least, std::max(least, greatest)); }
};

// The first place at which the side, from `start` to `end`, crosses no text.
double placeOf(const Side& side, double start, double end, const std::vector<Rect>& texts) {
    for (const double distance : distances) {
        const double place = side.at(distance);
        const Rect band = side.isHorizontal ? Rect{{start, place - halfWidth}, {end - start, 2 * halfWidth}}
                                            : Rect{{place - halfWidth, start}, {2 * halfWidth, end - start}};
        const auto isCrossed = [&](const Rect& text) { return band.intersects(lettersOf(text)); };
        if (std::none_of(texts.begin(), texts.end(), isCrossed)) return place;
    }
    return side.at(distances[0]);
}

} // namespace

Rect focusRingAround(const Rect& control, const Rect& window, const std::vector<Rect>& texts) {
    const Rect room = window.insetBy(halfWidth, halfWidth);
    const auto across = [&](double edge, double outwards) {
        return placeOf({false, edge, outwards, room.minX(), room.maxX()}, control.minY(), control.maxY(), texts);
    };
    const auto along = [&](double edge, double outwards) {
        return placeOf({true, edge, outwards, room.minY(), room.maxY()}, control.minX(), control.maxX(), texts);
    };
    const double left = across(control.minX(), -1), right = across(control.maxX(), 1);
    const double top = along(control.minY(), -1), bottom = along(control.maxY(), 1);
    return {{left, top}, {right - left, bottom - top}};
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
