// Views in a row, in a column or on top of each other.
#pragma once

#include <optional>

#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// From the leading to the trailing edge. The room is shared out to the least flexible view first.
struct HStack {
    VerticalAlignment alignment = VerticalAlignment::center;
    double spacing = defaultSpacing; // between any two views
    ViewList content;

    Element* makeElement() &&;
};

// From top to bottom.
struct VStack {
    HorizontalAlignment alignment = HorizontalAlignment::center;
    double spacing = defaultSpacing; // between any two views
    ViewList content;

    Element* makeElement() &&;
};

// From back to front; as large as the largest view.
struct ZStack {
    Alignment alignment = Alignment::center;
    ViewList content;

    Element* makeElement() &&;
};

// The first of its views that is no wider than the room offered, and otherwise the last. All of them live; the others are neither
// seen, touched nor told.
struct FirstThatFits {
    ViewList content;

    Element* makeElement() &&;
};

// Takes the room that the other views of its stack leave. Outside stacks it takes all room in both directions.
struct Spacer {
    double minLength = defaultSpacing;

    Element* makeElement() &&;
};

// Views that the container around lays out as if they were its own. Without a container they make a column.
struct Group {
    ViewList content;

    Element* makeElement() &&;
};

// Nothing, like an absent branch.
struct EmptyView {
    Element* makeElement() && { return nullptr; }
};

} // namespace proupsells::swiftui
