// The check mark of a feature that a plan includes.
#pragma once

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct CheckIcon {
    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const CheckIcon&) const = default;
};

} // namespace proupsells
