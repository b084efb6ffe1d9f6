// One tappable plan: title row and price on the leading side, radio circle at the trailing end.
#pragma once

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "ProUpsells/RadioPickerItem.hpp"

namespace proupsells {

struct RadioPickerButton {
    RadioPickerItem item;
    bool selected = false;
    swiftui::Action action;
    double cornerRadius = 6;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const RadioPickerButton&) const = default;

private:
    swiftui::View titleRow(graphics::ContentSizeCategory textSize) const;
    swiftui::View card(graphics::ContentSizeCategory textSize) const;
    swiftui::View selectedBorder() const;
    swiftui::View badge() const;
    std::string label() const;
    std::string spokenName() const;
};

} // namespace proupsells
