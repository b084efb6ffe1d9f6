#include "Platform/SwiftUI/Tree/ControlSearch.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::swiftui {

using geometry::Point;
using geometry::Rect;

namespace {

// The far edge does not belong to a rectangle, so the place is a little before it.
double nearestPlace(double value, double least, double length) {
    constexpr double beforeEnd = 0.5;
    return std::clamp(value, least, least + std::max(length / 2, length - beforeEnd));
}

} // namespace

void ControlSearch::offer(Node& control, const Rect& frame) {
    if (frame.isEmpty()) return;
    const double widening = std::max(0.0, leastTarget - frame.width()) / 2,
                 heightening = std::max(0.0, leastTarget - frame.height()) / 2;
    if (!frame.insetBy(-widening, -heightening).contains(finger)) return;
    // What is under the finger and was not hit is covered by something.
    if (frame.contains(finger)) return;
    const Point place{nearestPlace(finger.x, frame.minX(), frame.width()), nearestPlace(finger.y, frame.minY(), frame.height())};
    const Point move = place - finger;
    if (nearest && std::hypot(move.x, move.y) >= std::hypot(shift.x, shift.y)) return;
    nearest = &control;
    shift = move;
}

} // namespace proupsells::swiftui
