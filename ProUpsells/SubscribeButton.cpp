#include "ProUpsells/SubscribeButton.hpp"

#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/VelaPrimaryButtonStyle.hpp"

namespace proupsells {

using namespace swiftui;

View SubscribeButton::body(BuildContext&) const {
    return Button{.action = action, .label = Text{text}} | buttonStyle(velauikit::VelaPrimaryButtonStyle::rounded()) |
           disabled(!isEnabled) | frame({.minHeight = 56, .idealHeight = 56, .maxHeight = 56}) |
           accessibilityIdentifier("subscribe") | accessibilityLabel(text) | padding(Edge::horizontal) | padding(Edge::top, 12) |
           padding(Edge::bottom, -8);
}

} // namespace proupsells
