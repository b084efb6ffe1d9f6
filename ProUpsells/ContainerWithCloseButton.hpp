// Any content with a close button on its top trailing corner.
#pragma once

#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells {

struct ContainerWithCloseButton {
    swiftui::Action closeButtonAction;
    // Called each time the body is built.
    swiftui::Callback<swiftui::View()> contentView;

    swiftui::View body(swiftui::BuildContext& context) const;
};

} // namespace proupsells
