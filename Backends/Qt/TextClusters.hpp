// User-perceived characters and the places where lines may break.
#pragma once

#include <cstdint>
#include <vector>

#include "Backends/Qt/RunUnits.hpp"

namespace proupsells::qtbackend {

// The clusters of a text in logical order, without advances and levels; none crosses the border of two runs. `unitStarts` gets
// each one's first UTF-16 unit, and the end.
void makeClusters(const RunUnits& text, std::vector<graphics::Cluster>& clusters, std::vector<std::uint32_t>& unitStarts);

} // namespace proupsells::qtbackend
