// A category of the comparison: heading, line, and, while it is open, its features.
#pragma once

#include <memory>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/FeatureCategory.hpp"

namespace proupsells {

struct CategoryView {
    std::shared_ptr<const FeatureCategory> item;
    bool isExpanded = false;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const CategoryView&) const = default;

private:
    swiftui::View rows() const;
};

} // namespace proupsells
