#include "ProUpsells/FreeUsageLimitIndicator.hpp"

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/ComparisonCatalogue.hpp"

namespace proupsells {

using namespace swiftui;
using lumokit::DecorativeColor::tealBackground;
using lumokit::DecorativeColor::tealProminent;

View FreeUsageLimitIndicator::body(BuildContext&) const {
    return Text{ComparisonCatalogue::freeUsageText(count)} | lumokit::textStyle(lumokit::labelCapsSmall) |
           foregroundStyle(tealProminent) | multilineTextAlignment(graphics::TextAlignment::center) | padding(6) |
           background(Capsule(geometry::CornerStyle::continuous).fill(tealBackground));
}

} // namespace proupsells
