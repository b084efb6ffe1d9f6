// The two directions in which things are laid out and scrolled.
#pragma once

#include <cstdint>

namespace proupsells::geometry {

// Sideways, or up and down.
enum class Axis : std::uint8_t { horizontal, vertical };

} // namespace proupsells::geometry
