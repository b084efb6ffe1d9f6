// The plan comparison: what is free and what is Pro, by category.
#pragma once

#include <memory>
#include <vector>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/ComparisonCatalogue.hpp"
#include "ProUpsells/ExpandedCategories.hpp"

namespace proupsells {

struct ComparisonView {
    swiftui::Action chooseYourPlanHandler;
    std::shared_ptr<const std::vector<FeatureCategory>> items =
        std::make_shared<const std::vector<FeatureCategory>>(ComparisonCatalogue::categories());
    bool requiresSmallCapsule = ComparisonCatalogue::requiresSmallCapsule();

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const ComparisonView&) const = default;

private:
    swiftui::View screen(double height, const swiftui::EnvironmentValues& environment,
                         const swiftui::Binding<ExpandedCategories>& expanded) const;
    swiftui::View headerRow(graphics::ContentSizeCategory textSize) const;
    // Everything that scrolls: the categories, below the header where there is one.
    swiftui::View categoryList(const swiftui::View& header, const swiftui::Binding<ExpandedCategories>& expanded) const;
    swiftui::View category(std::size_t index, const swiftui::Binding<ExpandedCategories>& expanded) const;
    swiftui::View bottomBar() const;
};

} // namespace proupsells
