// Numbers inside what the tools say.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// To the nearest thousandth, a whole number without a fraction: 5, 0.5, -5.35. The same in every language.
PROUPSELLS_EXPORT std::string written(double number);
// "x y width height"
PROUPSELLS_EXPORT std::string written(const geometry::Rect& rect);

// Takes a number as written() writes it off the front of the text. Absent, and the text as it was, where none stands there.
PROUPSELLS_EXPORT std::optional<double> takeNumber(std::string_view& text);

} // namespace proupsells::tooling
