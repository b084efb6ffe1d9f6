// The product's logo with its Pro badge.
#pragma once

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct HeaderImage {
    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const HeaderImage&) const = default;
};

} // namespace proupsells
