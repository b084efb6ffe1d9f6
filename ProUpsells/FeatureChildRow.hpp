// One feature: its name, and a cell for each plan.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/Feature.hpp"

namespace proupsells {

struct FeatureChildRow {
    Feature feature;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const FeatureChildRow&) const = default;

private:
    swiftui::View freeCell() const;
    std::string spokenName() const;
    swiftui::View name() const;
    swiftui::View columns() const;
    swiftui::View row() const;
    swiftui::View stacked() const;
    swiftui::View cells(graphics::ContentSizeCategory textSize) const;
};

} // namespace proupsells
