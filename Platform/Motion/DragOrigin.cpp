#include "Platform/Motion/DragOrigin.hpp"

#include <cmath>

namespace proupsells::motion {

std::optional<geometry::Point> dragOrigin(geometry::Point start, geometry::Point now) {
    const geometry::Point moved = now - start;
    const double distance = std::hypot(moved.x, moved.y);
    if (distance < dragThreshold) return std::nullopt;
    return geometry::Point{start.x + moved.x / distance * dragThreshold, start.y + moved.y / distance * dragThreshold};
}

std::optional<geometry::Point> dragOrigin(geometry::Axis axis, geometry::Point start, geometry::Point now) {
    const geometry::Point moved = now - start;
    const bool isHorizontal = axis == geometry::Axis::horizontal;
    const double distance = isHorizontal ? moved.x : moved.y, aside = isHorizontal ? moved.y : moved.x;
    if (std::abs(distance) < dragThreshold || std::abs(distance) < std::abs(aside)) return std::nullopt;
    (isHorizontal ? start.x : start.y) += std::copysign(dragThreshold, distance);
    return start;
}

} // namespace proupsells::motion
