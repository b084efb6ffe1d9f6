// Text that must not grow without end.
#pragma once

#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"

namespace proupsells::lumokit {

// Texts inside grow with the person's text size up to this one: for labels in places whose shape would break.
struct LargestTextSize {
    graphics::ContentSizeCategory largest;

    void apply(swiftui::EnvironmentValues& values) const;
    bool operator==(const LargestTextSize&) const = default;
};

inline swiftui::EnvironmentChange<LargestTextSize> largestTextSize(graphics::ContentSizeCategory largest) { return {{largest}}; }

} // namespace proupsells::lumokit
