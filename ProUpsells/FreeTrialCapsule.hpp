// Says that a plan starts with a free trial.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct FreeTrialCapsule {
    static std::string text();

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const FreeTrialCapsule&) const = default;
};

} // namespace proupsells
