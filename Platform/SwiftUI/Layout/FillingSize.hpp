// The size of what fills whatever it is offered.
#pragma once

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::swiftui {

// 10 points along an axis for which nothing is proposed.
inline geometry::Size fillingSize(const geometry::ProposedSize& proposal) { return proposal.orReplacing({10, 10}); }

} // namespace proupsells::swiftui
