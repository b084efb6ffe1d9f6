// A window onto content that is longer than it.
#pragma once

#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Along its axis it takes the length that it is offered, across it the content's. Content may be as long as it likes; several views
// make a stack. It follows the finger, coasts after a flick, and gives at its ends like rubber, even if the content is shorter than
// the view. Where it reaches over an edge of the safe area, the content can be scrolled clear of that edge.
struct ScrollView {
    Axis axis = Axis::vertical;
    bool showsIndicators = true; // while it moves
    ViewList content;

    Element* makeElement() &&;
};

} // namespace proupsells::swiftui
