#include "ProUpsells/InfoButton.hpp"

#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"

namespace proupsells {

using namespace swiftui;

View InfoButton::body(BuildContext&) const {
    return Button{.action = action,
                  .label = HStack{.spacing = 2,
                                  .content =
                                      {
                                          Text{text} | font(velauikit::quenbyBold(14)) |
                                              lumokit::largestTextSize(lumokit::LargestSize::rowText) |
                                              foregroundStyle(lumokit::ContentColor::secondary),
                                          image ? Image{image} : View{},
                                      }}} |
           accessibilityIdentifier(identifier) | accessibilityLabel(text.plain());
}

} // namespace proupsells
