// Pages beside each other, one of which is shown.
#pragma once

#include "Platform/SwiftUI/Tree/State.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// It fills what it is offered, and so does each page. A finger turns the pages; the selection is written when the finger lifts.
// When the selection changes from outside, the pages slide there directly, with the animation of the change; where motion is to be
// reduced, the new page fades over the old one instead, as far as both have tags. A page without a tag
// is selected by its place in the list, from 0. A selection that no page has leaves the page that is shown.
struct TabView {
    Binding<int> selection;
    ViewList content;

    Element* makeElement() &&;
};

struct TagModifier {
    int tag = 0;

    View modified(View content) &&;
    bool operator==(const TagModifier&) const = default;
};
// The selection that shows this view in a TabView.
inline TagModifier tag(int tag) { return {tag}; }

} // namespace proupsells::swiftui
