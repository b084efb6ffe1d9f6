// Which control a finger means that has come down beside it.
#pragma once

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::swiftui {

class Node;

// Of the controls whose target reaches the finger, the nearest one. Everything is in the host's coordinates.
struct ControlSearch {
    // How wide and how high a target is at least, and so how far it may reach around what is drawn.
    static constexpr double leastTarget = 44;
    static constexpr double reach = leastTarget / 2;

    geometry::Point finger;
    Node* nearest = nullptr; // null: no target reaches the finger
    geometry::Point shift;   // from the finger to the nearest place on that control

    // `frame` is what can be seen of the control.
    void offer(Node& control, const geometry::Rect& frame);
};

} // namespace proupsells::swiftui
