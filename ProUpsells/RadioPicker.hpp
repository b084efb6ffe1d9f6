// The list of plans, of which one is marked.
#pragma once

#include <string>
#include <vector>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/RadioPickerItem.hpp"

namespace proupsells {

// A tap writes its plan's id; that is all it does.
struct RadioPicker {
    std::vector<RadioPickerItem> items;
    // The marked plan's id; one that no plan has marks none.
    swiftui::Binding<std::string> selectedItem;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const RadioPicker&) const = default;
};

} // namespace proupsells
