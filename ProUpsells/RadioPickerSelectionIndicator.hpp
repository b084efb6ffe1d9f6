// The radio circle of a plan.
#pragma once

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

// A plain bordered disc, or a ring with a dot in the foreground style.
struct RadioPickerSelectionIndicator {
    bool selected = false;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const RadioPickerSelectionIndicator&) const = default;
};

} // namespace proupsells
