#include "Platform/Hosting/Traits.hpp"

namespace proupsells::hosting {

void adoptTraits(swiftui::EnvironmentValues& environment, const uikit::UITraitCollection& traits) {
    environment.colorScheme = traits.userInterfaceStyle;
    environment.layoutDirection = traits.layoutDirection;
    environment.contentSize = traits.preferredContentSizeCategory;
    environment.displayScale = traits.displayScale;
    environment.reduceMotion = traits.reduceMotion;
    environment.horizontalSizeClass = traits.horizontalSizeClass == uikit::UIUserInterfaceSizeClass::compact
                                          ? swiftui::SizeClass::compact
                                          : swiftui::SizeClass::regular;
}

uikit::UITraitCollection traitsOf(const swiftui::EnvironmentValues& environment) {
    uikit::UITraitCollection traits;
    traits.userInterfaceStyle = environment.colorScheme;
    traits.layoutDirection = environment.layoutDirection;
    traits.preferredContentSizeCategory = environment.contentSize;
    traits.displayScale = environment.displayScale;
    traits.reduceMotion = environment.reduceMotion;
    traits.horizontalSizeClass = environment.horizontalSizeClass == swiftui::SizeClass::compact
                                     ? uikit::UIUserInterfaceSizeClass::compact
                                     : uikit::UIUserInterfaceSizeClass::regular;
    return traits;
}

} // namespace proupsells::hosting
