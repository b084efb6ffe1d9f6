// How the two view layers' words for the same things translate.
#pragma once

#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/UIKit/Views/UITraitCollection.hpp"

namespace proupsells::hosting {

// Writes what the traits say into the environment and leaves the rest of it alone.
void adoptTraits(swiftui::EnvironmentValues& environment, const uikit::UITraitCollection& traits);
uikit::UITraitCollection traitsOf(const swiftui::EnvironmentValues& environment);

} // namespace proupsells::hosting
