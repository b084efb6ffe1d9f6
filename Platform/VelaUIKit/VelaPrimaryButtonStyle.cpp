#include "Platform/VelaUIKit/VelaPrimaryButtonStyle.hpp"

#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells::velauikit {

using namespace swiftui;

View VelaPrimaryButtonStyle::body(const ButtonStyleConfiguration& configuration, BuildContext& context) const {
    constexpr double greatestHeight = 56;
    const bool isEnabled = context.environment().isEnabled;
    const Shape plate =
        m_cornerRadius == geometry::infinity ? Capsule() : RoundedRectangle(m_cornerRadius, geometry::CornerStyle::continuous);
    return configuration.label | font(velaDefaultFont(FontOption::bold, 17)) | minimumScaleFactor(0.5) |
           lumokit::largestTextSize(lumokit::LargestSize::buttonText) | multilineTextAlignment(graphics::TextAlignment::center) |
           foregroundStyle(isEnabled ? velaLightText : velaLabel) | padding(Edge::horizontal) |
           frame({.maxWidth = geometry::infinity, .maxHeight = greatestHeight}) |
           background(plate.fill(marwickContentAccent) | opacity(isEnabled ? 1 : disabledPlateOpacity) | accessibilityPlate()) |
           scaleEffect(configuration.isPressed ? 0.98 : 1) | opacity(configuration.isPressed ? 0.85 : 1) |
           frame({.maxHeight = geometry::infinity, .alignment = Alignment::bottom});
}

const std::shared_ptr<const ButtonStyle>& VelaPrimaryButtonStyle::rounded() {
    static const std::shared_ptr<const ButtonStyle> style = std::make_shared<VelaPrimaryButtonStyle>(geometry::infinity);
    return style;
}

} // namespace proupsells::velauikit
