#include "Platform/LumoKit/LargestTextSize.hpp"

#include <algorithm>

#include "Platform/SwiftUI/Modifiers/EnvironmentNode.hpp"

template struct swiftui::EnvironmentModifier<lumokit::LargestTextSize>;

namespace lumokit {

void LargestTextSize::apply(swiftui::EnvironmentValues& values) const {
    values.contentSize = std::min(values.contentSize, largest);
}

} // namespace lumokit
