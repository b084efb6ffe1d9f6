// Tells a drag along an axis from a tap and from a drag across it.
#pragma once

#include <optional>

#include "Platform/SwiftUI/Layout/Alignment.hpp"
#include "Platform/SwiftUI/Tree/GestureHandler.hpp"

namespace proupsells::swiftui {

// How far a finger moves before it drags. The content follows from there on, so that nothing leaps.
inline constexpr double dragThreshold = 10;

constexpr double along(Axis axis, geometry::Point point) { return axis == Axis::horizontal ? point.x : point.y; }
constexpr double across(Axis axis, geometry::Point point) { return axis == Axis::horizontal ? point.y : point.x; }

// The finger's place along the axis where the drag begins; absent while it has not moved far enough, and where it moves more
// across the axis than along it.
std::optional<double> dragOrigin(Axis axis, const TouchEvent& event);

} // namespace proupsells::swiftui
