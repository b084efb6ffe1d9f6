#include "Backends/Qt/SystemTraits.hpp"

#include "Backends/Qt/DesktopSettings.hpp"

namespace proupsells::qtbackend {

uikit::UITraitCollection traitsOf(const ScreenTraits& decided, const SystemTraits& system, const DesktopSettings& desktop,
                                  double scale) {
    const auto direction =
        system.direction == Qt::RightToLeft ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
    uikit::UITraitCollection traits;
    traits.userInterfaceStyle = decided.colorScheme.value_or(colorSchemeOf(system.palette));
    traits.layoutDirection = decided.layoutDirection.value_or(direction);
    traits.reduceMotion = decided.reducesMotion.value_or(system.reducesMotion || desktop.reducesMotion());
    traits.preferredContentSizeCategory = decided.textSize.value_or(desktop.textSize(scale));
    traits.displayScale = scale;
    return traits;
}

} // namespace proupsells::qtbackend
