#include "Platform/SwiftUI/Gestures/DragRecognizer.hpp"

#include <cmath>

namespace proupsells::swiftui {

std::optional<double> dragOrigin(Axis axis, const TouchEvent& event) {
    const geometry::Point moved = event.location - event.start;
    const double distance = along(axis, moved);
    if (std::abs(distance) < dragThreshold || std::abs(distance) < std::abs(across(axis, moved))) return std::nullopt;
    return along(axis, event.start) + std::copysign(dragThreshold, distance);
}

} // namespace proupsells::swiftui
