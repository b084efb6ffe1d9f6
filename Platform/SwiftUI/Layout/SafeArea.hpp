// Where nodes touch the edges that are not safe.
#pragma once

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/SwiftUI/Tree/Alignment.hpp"

namespace proupsells::swiftui {

class Node;

// The host's safe-area insets at those edges where the node's frame touches or crosses the safe area's edge; 0 at the others. To
// be asked while the node is laid out.
geometry::EdgeInsets touchedSafeArea(const Node& node);

// By how much the node's frame must grow at `edges`, where it touches the safe area's edge, to reach the host's edge.
geometry::EdgeInsets reachToHostEdges(const Node& node, Edge edges);

} // namespace proupsells::swiftui
