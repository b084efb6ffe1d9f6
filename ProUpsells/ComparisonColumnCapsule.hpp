// A column's heading in the comparison.
#pragma once

#include <string>

#include "Platform/Graphics/Color.hpp"
#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct ComparisonColumnCapsule {
    std::string heading;
    graphics::Color fill;
    graphics::Color textColor;
    double lineSpacing = 0;
    bool isSmall = false;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const ComparisonColumnCapsule&) const = default;
};

} // namespace proupsells
