// A small link: a text, and an image after it.
#pragma once

#include <string>

#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "Platform/SwiftUI/Views/Text.hpp"

namespace proupsells {

struct InfoButton {
    swiftui::Text text;
    swiftui::Action action;
    graphics::ImageRef image;    // null for none
    std::string identifier = {}; // accessibility

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const InfoButton&) const = default;
};

} // namespace proupsells
