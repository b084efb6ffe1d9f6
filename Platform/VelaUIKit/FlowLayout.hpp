// Views in lines, like words.
#pragma once

#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::velauikit {

// From the leading edge on, wrapped onto further lines where they do not fit; a line is as high as its highest view, and the others
// are centred in it. A spacer counts its least length when lines are broken, then takes its share of what its line leaves over; at
// a line's ends it vanishes. Lines that break at a spacer stand as far apart as that length, and far enough for a finger to find
// what is in them. Takes the width that it is offered, its longest line's where it is offered none.
struct FlowLayout {
    double spacing = 0; // between views and between lines
    swiftui::ViewList content;

    swiftui::Element* makeElement() &&;
};

} // namespace proupsells::velauikit
