// The one loud button of the paywall.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct SubscribeButton {
    std::string text; // shown as given
    swiftui::Action action;
    bool isEnabled = true;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const SubscribeButton&) const = default;
};

} // namespace proupsells
