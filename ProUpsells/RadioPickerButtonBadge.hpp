// The label on a plan's corner.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

// Shown in capitals on a plate in the foreground style of its surroundings.
struct RadioPickerButtonBadge {
    std::string text;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const RadioPickerButtonBadge&) const = default;
};

} // namespace proupsells
