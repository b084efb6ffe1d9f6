// Taps on views that are no buttons.
#pragma once

#include "Platform/SwiftUI/Tree/Callback.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

struct TapGestureModifier {
    Action action;

    View modified(View content) &&;
};
// Acts when a finger comes down anywhere in the frame and lifts without having moved. A finger on a control inside is that
// control's. Does nothing while it is disabled.
inline TapGestureModifier onTapGesture(Action action) { return {std::move(action)}; }

} // namespace proupsells::swiftui
