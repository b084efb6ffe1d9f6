// How often the free plan may use a feature.
#pragma once

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct FreeUsageLimitIndicator {
    int count = 0;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const FreeUsageLimitIndicator&) const = default;
};

} // namespace proupsells
