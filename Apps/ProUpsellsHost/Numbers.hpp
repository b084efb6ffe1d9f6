// Numbers as the program writes them.
#pragma once

#include "Apps/ProUpsellsHost/Json.hpp"
#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::hostprogram {

// Rounded to a millionth; a whole number has no fraction: 5, 0.5, 5.35.
Json toJson(double number);
// [x, y, width, height]
Json toJson(const geometry::Rect& rect);
// [width, height]
Json toJson(geometry::Size size);
// [x, y]
Json toJson(geometry::Point point);
// [top, left, bottom, right]
Json toJson(const geometry::PhysicalInsets& insets);

} // namespace proupsells::hostprogram
