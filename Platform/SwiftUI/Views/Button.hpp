// Something to tap.
#pragma once

#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Acts when a finger that came down on it lifts, however long it stayed, unless it has slipped off further than a finger's width or
// a scroll view has claimed it. The whole frame answers. Looks as the style in force makes it; see ButtonStyle.
struct Button {
    Action action;
    View label;

    Element* makeElement() &&;
};

} // namespace proupsells::swiftui
