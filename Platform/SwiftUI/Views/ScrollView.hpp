// A window onto content that is longer than it.
#pragma once

#include "Platform/SwiftUI/Layout/Alignment.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Takes the length that it is offered along its axis, and its content's across. Content may be as long as it likes; several views
// make a stack. Follows the finger, coasts after a flick, and gives at its ends like rubber, also where the content is shorter than
// the view. Where it reaches over a safe area's edge, the content can be scrolled clear of it.
struct ScrollView {
    Axis axis = Axis::vertical;
    bool showsIndicators = true; // while it moves
    ViewList content;

    Element* makeElement() &&;
};

} // namespace proupsells::swiftui
