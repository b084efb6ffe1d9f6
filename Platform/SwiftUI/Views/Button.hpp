// Something to tap.
#pragma once

#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// Acts when a finger that came down on it lifts. It does not act if the finger has slipped off by more than a finger's width, or if
// a scroll view has claimed the touch. The whole frame answers. The style in force decides how it looks; see ButtonStyle.
struct Button {
    Action action;
    View label;

    Element* makeElement() &&;
};

} // namespace proupsells::swiftui
