// The upper part of a rectangle.
#pragma once

#include "Platform/SwiftUI/Shapes/Shapes.hpp"

namespace proupsells {

struct ScaledRect {
    double animatableData = 1; // the share of the height that is kept

    geometry::Path path(const geometry::Rect& rect) const;
    operator swiftui::Shape() const;

    bool operator==(const ScaledRect&) const = default;
};

} // namespace proupsells
