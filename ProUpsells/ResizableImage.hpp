// A picture of the module's that takes the size it is given.
#pragma once

#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"
#include "Platform/SwiftUI/Tree/BuildContext.hpp"
#include "Platform/SwiftUI/Views/Image.hpp"

namespace proupsells {

// Keeps its proportions: fits into what it is offered, or fills it and reaches past it.
struct ResizableImage {
    graphics::ImageRef image;
    swiftui::ContentMode contentMode = swiftui::ContentMode::fit;

    swiftui::View body(swiftui::BuildContext& context) const;
    bool operator==(const ResizableImage&) const = default;
};

} // namespace proupsells
