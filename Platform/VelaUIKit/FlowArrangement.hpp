// How a FlowLayout breaks its views into lines.
#pragma once

#include <string_view>
#include <vector>

#include "Platform/SwiftUI/Layout/LayoutContainer.hpp"

namespace proupsells::velauikit {

struct FlowArrangement {
    static constexpr std::string_view typeName = "FlowLayout";

    double spacing = 0;

    geometry::Size sizeThatFits(const geometry::ProposedSize& proposal, const swiftui::LayoutSubviews& subviews) const;
    void placeSubviews(geometry::Size size, const geometry::ProposedSize& proposal, const swiftui::LayoutSubviews& subviews,
                       std::vector<swiftui::SubviewPlace>& places) const;
    bool operator==(const FlowArrangement&) const = default;
};

} // namespace proupsells::velauikit
