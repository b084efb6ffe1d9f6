// Taps on views that are no buttons.
#pragma once

#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

struct TapGestureModifier {
    Action action;

    View modified(View content) &&;
};
// Acts when a finger comes down anywhere in the frame, save on a control inside, and lifts without having moved. Not while
// disabled.
inline TapGestureModifier onTapGesture(Action action) { return {std::move(action)}; }

} // namespace proupsells::swiftui
