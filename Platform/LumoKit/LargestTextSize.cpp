#include "Platform/LumoKit/LargestTextSize.hpp"

#include <algorithm>

namespace proupsells::lumokit {

void LargestTextSize::apply(swiftui::EnvironmentValues& values) const {
    values.contentSize = std::min(values.contentSize, largest);
}

} // namespace proupsells::lumokit
