// Affine transforms of the plane.
#pragma once

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::geometry {

// Maps (x, y) to (a·x + c·y + tx, b·x + d·y + ty).
struct PROUPSELLS_EXPORT Transform {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double tx = 0;
    double ty = 0;

    // Moves by so many points.
    static constexpr Transform translation(double x, double y) { return {1, 0, 0, 1, x, y}; }
    // About the origin; 1 leaves a length as it is.
    static constexpr Transform scaling(double x, double y) { return {x, 0, 0, y, 0, 0}; }
    // Clockwise on screen for positive angles, since y grows downwards.
    static Transform rotation(double angle_rad);
    // The transform seen from `anchor` instead of from the origin.
    Transform about(Point anchor) const;

    // First this transform, then `next`.
    Transform then(const Transform& next) const;
    // The identity where the transform has no inverse.
    Transform inverted() const;
    // Where the point comes to lie.
    Point apply(Point p) const;
    // The bounding rectangle of the mapped rectangle.
    Rect apply(const Rect& rect) const;
    // Whether it changes nothing.
    constexpr bool isIdentity() const { return *this == Transform{}; }
    // Whether it moves at most; true for the identity, too.
    constexpr bool isTranslation() const { return a == 1 && b == 0 && c == 0 && d == 1; }

    constexpr bool operator==(const Transform&) const = default;
};

} // namespace proupsells::geometry
