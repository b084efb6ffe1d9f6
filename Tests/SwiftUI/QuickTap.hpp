// A button under a finger that is quicker than the screen.
#pragma once

#include "Tests/SwiftUI/TouchScreen.hpp"

namespace proupsells::swiftui::tests {

// A tap that is over before the screen has been brought up to date.
inline void quickTap(proupsells::tests::TouchScreen& screen, geometry::Point at = proupsells::tests::middle) {
    screen.host().touch({host::TouchPhase::began, at, screen.now_s()});
    screen.host().touch({host::TouchPhase::ended, at, screen.now_s()});
    screen.settle();
}

inline View buttonInTheMiddle(Action action) {
    return Button{.action = std::move(action), .label = proupsells::tests::box(100, 50, "label")};
}

} // namespace proupsells::swiftui::tests
