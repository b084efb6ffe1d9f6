// A view that depends on the room that it gets.
#pragma once

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

struct GeometryProxy {
    geometry::Size size;                 // without safe areas
    geometry::EdgeInsets safeAreaInsets; // of those that the reader touches
};

// Takes all that it is offered and puts its content at its top leading corner. `content` is called once the size is known, when
// the size changes, and whenever the view around is built. It must not capture Views, which are good for one build only.
struct GeometryReader {
    Callback<View(const GeometryProxy&)> content;
    bool isDescribed = true; // in the semantic tree

    Element* makeElement() &&;
};

} // namespace proupsells::swiftui
