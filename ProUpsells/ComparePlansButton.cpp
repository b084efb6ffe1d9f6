#include "ProUpsells/ComparePlansButton.hpp"

#include "Platform/LumoKit/Icon.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"

namespace proupsells {

using namespace swiftui;
namespace ContentColor = lumokit::ContentColor;

View ComparePlansButton::body(BuildContext& context) const {
    // The symbol points to the right. Where the language runs from right to left, it is turned.
    const double turn_degrees = context.environment().isRightToLeft() ? 180 : 0;
    View row =
        HStack{.content = {
                   Image{lumokit::Icon::diamond24()} | foregroundStyle(ContentColor::primary) | padding(Edge::horizontal, 6),
                   Text{text} | lumokit::textStyle(lumokit::TextStyle::based(lumokit::PlatformTextStyle::subheadline, 16, 16)) |
                       lumokit::largestTextSize(lumokit::LargestSize::rowText) | foregroundStyle(lumokit::platformPrimary),
                   Spacer{.minLength = 0},
                   Image{lumokit::SystemSymbol::chevronRight()}.resizable() | rotationEffect(turn_degrees) | frame(10, 10) |
                       foregroundStyle(ContentColor::secondary) | padding(Edge::trailing, 16),
               }};
    return Button{.action = action, .label = row | contentShape()} | accessibilityIdentifier("comparePlans") |
           accessibilityLabel(text);
}

} // namespace proupsells
