// A category's heading, with a chevron that points to where its rows go.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct FeatureCategoryHeader {
    std::string name;
    bool isExpanded = false;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const FeatureCategoryHeader&) const = default;
};

} // namespace proupsells
