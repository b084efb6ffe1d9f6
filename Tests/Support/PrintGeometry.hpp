// Makes failing expectations print points, sizes and rectangles in words. Include it in every source of a test program or in none.
#pragma once

#include <ostream>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::geometry {

inline void PrintTo(const Point& point, std::ostream* stream) { *stream << '(' << point.x << ", " << point.y << ')'; }

inline void PrintTo(const Size& size, std::ostream* stream) { *stream << size.width << " x " << size.height; }

inline void PrintTo(const Rect& rect, std::ostream* stream) {
    PrintTo(rect.size, stream);
    *stream << " at ";
    PrintTo(rect.origin, stream);
}

} // namespace proupsells::geometry
