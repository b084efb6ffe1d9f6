// Where a drag begins: tells it from a tap, and from a drag in another direction.
#pragma once

#include <optional>

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::motion {

constexpr double along(geometry::Axis axis, geometry::Point point) {
    return axis == geometry::Axis::horizontal ? point.x : point.y;
}

// How far a finger moves before it drags. The content follows from there on, so that nothing leaps.
inline constexpr double dragThreshold = 10;

// The place on a finger's way from `start` to `now` from which on it drags; absent while it has not moved far enough.
std::optional<geometry::Point> dragOrigin(geometry::Point start, geometry::Point now);
// The same along one axis only; absent also where the finger moves more across it.
std::optional<geometry::Point> dragOrigin(geometry::Axis axis, geometry::Point start, geometry::Point now);

} // namespace proupsells::motion
