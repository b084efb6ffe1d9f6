#include "Platform/Geometry/Transform.hpp"

#include <cmath>

namespace proupsells::geometry {

Transform Transform::rotation(double angle_rad) {
    const double cosine = std::cos(angle_rad), sine = std::sin(angle_rad);
    return {cosine, sine, -sine, cosine, 0, 0};
}

Transform Transform::about(Point anchor) const {
    return translation(-anchor.x, -anchor.y).then(*this).then(translation(anchor.x, anchor.y));
}

Transform Transform::then(const Transform& next) const {
    return {
        next.a * a + next.c * b,
        next.b * a + next.d * b,
        next.a * c + next.c * d,
        next.b * c + next.d * d,
        next.a * tx + next.c * ty + next.tx,
        next.b * tx + next.d * ty + next.ty,
    };
}

Transform Transform::inverted() const {
    const double determinant = a * d - b * c;
    if (!std::isfinite(determinant) || determinant == 0) return {};
    return {
        d / determinant,
        -b / determinant,
        -c / determinant,
        a / determinant,
        (c * ty - d * tx) / determinant,
        (b * tx - a * ty) / determinant,
    };
}

Point Transform::apply(Point p) const { return {a * p.x + c * p.y + tx, b * p.x + d * p.y + ty}; }

Rect Transform::apply(const Rect& rect) const {
    // Moving must not change a size by a rounding error, so that moved rectangles compare equal.
    if (isTranslation()) return rect.offsetBy({tx, ty});
    const Point corners[] = {
        apply(rect.origin),
        apply(Point{rect.maxX(), rect.minY()}),
        apply(Point{rect.minX(), rect.maxY()}),
        apply(Point{rect.maxX(), rect.maxY()}),
    };
    Point lowest = corners[0], highest = corners[0];
    for (const Point corner : corners) {
        lowest = {std::min(lowest.x, corner.x), std::min(lowest.y, corner.y)};
        highest = {std::max(highest.x, corner.x), std::max(highest.y, corner.y)};
    }
    return {lowest, {highest.x - lowest.x, highest.y - lowest.y}};
}

} // namespace proupsells::geometry
