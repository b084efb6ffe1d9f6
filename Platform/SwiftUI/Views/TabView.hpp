// Pages beside each other, one of which is shown.
#pragma once

#include "Platform/SwiftUI/Tree/State.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Fills what it is offered, and so does each page. The finger turns the pages; the selection is written when it lifts. A selection
// that is changed from outside slides there directly, by the animation of the change. A page is selected by its tag, or by its
// place in the list, from 0, where it has none; a selection that no page has shows the page that was shown before.
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
// What selects the view in a TabView.
inline TagModifier tag(int tag) { return {tag}; }

} // namespace proupsells::swiftui
