// The look of a screen's one main button.
#pragma once

#include "Platform/SwiftUI/Views/ButtonStyle.hpp"

namespace proupsells::velauikit {

// A plate in the accent with the label in its middle, as wide as there is room and 56 points high, or less where there is less
// room; at the bottom of more. Answers a finger by dimming and shrinking a little. One that is disabled dims its plate; its label
// stays readable.
class VelaPrimaryButtonStyle final : public swiftui::ButtonStyle {
public:
    static constexpr double disabledPlateOpacity = 0.4;

    explicit VelaPrimaryButtonStyle(double cornerRadius) : m_cornerRadius(cornerRadius) {}

    swiftui::View body(const swiftui::ButtonStyleConfiguration& configuration, swiftui::BuildContext& context) const override;

    // With fully rounded ends.
    static const std::shared_ptr<const ButtonStyle>& rounded();

private:
    double m_cornerRadius; // points; infinity for fully rounded ends
};

} // namespace proupsells::velauikit
