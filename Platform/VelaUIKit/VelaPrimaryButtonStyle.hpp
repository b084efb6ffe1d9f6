// The look of a screen's one main button.
#pragma once

#include "Platform/SwiftUI/Views/ButtonStyle.hpp"

namespace proupsells::velauikit {

// Fills the size it is offered with the accent, the label in its middle. Answers a finger by dimming and shrinking a little.
class VelaPrimaryButtonStyle final : public swiftui::ButtonStyle {
public:
    explicit VelaPrimaryButtonStyle(double cornerRadius) : m_cornerRadius(cornerRadius) {}

    swiftui::View body(const swiftui::ButtonStyleConfiguration& configuration, swiftui::BuildContext& context) const override;

    // With fully rounded ends.
    static const std::shared_ptr<const ButtonStyle>& rounded();

private:
    double m_cornerRadius; // points; infinity for fully rounded ends
};

} // namespace proupsells::velauikit
