#include "ProUpsells/RadioPickerButtonBadge.hpp"

#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/SwiftUI/Modifiers/EnvironmentModifiers.hpp"
#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Views/Text.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells {

using namespace swiftui;

View RadioPickerButtonBadge::body(BuildContext&) const {
    return Text{text} | font(velauikit::quenbyBold(10)) | textCase(TextCase::uppercase) |
           lumokit::largestTextSize(lumokit::LargestSize::capsule) | foregroundStyle(velauikit::velaLightText) |
           padding(Edge::vertical, 2) | padding(Edge::horizontal, 4) | background(RoundedRectangle(2).fill());
}

} // namespace proupsells
