// Directions of mixed text.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::headless {

// The level of each cluster, given the clusters' first characters: even left to right, odd right to left. The rules are those of
// the Unicode bidirectional algorithm for texts without explicit marks, with characters told apart by their blocks.
std::vector<std::uint8_t> bidiLevels(std::span<const char32_t> characters, geometry::LayoutDirection direction);

} // namespace proupsells::headless
