// What buttons look like.
#pragma once

#include <memory>

#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

class BuildContext;

struct ButtonStyleConfiguration {
    View label;
    bool isPressed = false; // a finger is on the button, which acts when it lifts
};

// Given to the buttons inside a view with buttonStyle(style). Whether a button can be used is in the context's environment.
class ButtonStyle {
public:
    virtual ~ButtonStyle() = default;

    // Called at every build, and when the finger comes and goes.
    virtual View body(const ButtonStyleConfiguration& configuration, BuildContext& context) const = 0;

    // The label, dimmed while it is pressed or disabled. Buttons have this style unless they are given another one.
    static const std::shared_ptr<const ButtonStyle>& automatic();
    // The label alone, pressed or not.
    static const std::shared_ptr<const ButtonStyle>& plain();
};

} // namespace proupsells::swiftui
