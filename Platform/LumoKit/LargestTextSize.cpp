#include "Platform/LumoKit/LargestTextSize.hpp"

#include <algorithm>

#include "Platform/SwiftUI/Modifiers/EnvironmentNode.hpp"

template struct proupsells::swiftui::EnvironmentModifier<proupsells::lumokit::LargestTextSize>;

namespace proupsells::lumokit {

void LargestTextSize::apply(swiftui::EnvironmentValues& values) const {
    values.contentSize = std::min(values.contentSize, largest);
}

} // namespace proupsells::lumokit
