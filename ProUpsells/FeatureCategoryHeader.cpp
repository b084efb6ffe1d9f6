#include "ProUpsells/FeatureCategoryHeader.hpp"

#include "Platform/LumoKit/Icon.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"

namespace proupsells {

using namespace swiftui;
using lumokit::ContentColor::secondary;

View FeatureCategoryHeader::body(BuildContext&) const {
    const double up_degrees = -90, down_degrees = 90;
    return HStack{.content = {
                      Text{name} | lumokit::textStyle(lumokit::labelCapsLarge) | foregroundStyle(secondary),
                      Spacer{},
                      Image{lumokit::SystemSymbol::chevronRight()}.resizable() | frame(14, 14) |
                          rotationEffect(isExpanded ? up_degrees : down_degrees) | foregroundStyle(secondary),
                  }};
}

} // namespace proupsells
