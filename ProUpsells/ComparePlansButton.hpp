// The full-width row that leads to the plan comparison.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct ComparePlansButton {
    std::string text;
    swiftui::Action action;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const ComparePlansButton&) const = default;
};

} // namespace proupsells
