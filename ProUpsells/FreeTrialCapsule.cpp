#include "ProUpsells/FreeTrialCapsule.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Views/Text.hpp"

namespace proupsells {

using namespace swiftui;
using lumokit::DecorativeColor::tealBackground;
using lumokit::DecorativeColor::tealProminent;

std::string FreeTrialCapsule::text() {
    return foundation::localizedString("7 Day Free Trial", "Label stating that there will be a free trial");
}

View FreeTrialCapsule::body(BuildContext&) const {
    return Text{text()} | lumokit::textStyle(lumokit::labelCapsSmall) | padding(6) |
           background(Capsule(geometry::CornerStyle::continuous).fill(tealBackground)) | foregroundStyle(tealProminent);
}

} // namespace proupsells
