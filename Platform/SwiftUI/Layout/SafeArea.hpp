// Where nodes touch the edges that are not safe.
#pragma once

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/SwiftUI/Layout/Alignment.hpp"

namespace proupsells::swiftui {

class Node;

// The host's safe-area insets along those edges of the node's frame that touch or cross the safe area's; 0 along the others.
// Good while the node is laid out.
geometry::EdgeInsets touchedSafeArea(const Node& node);

// By how much the node's frame must grow along `edges` to reach the host's edges from where it touches the safe area's.
geometry::EdgeInsets reachToHostEdges(const Node& node, Edge edges);

} // namespace proupsells::swiftui
