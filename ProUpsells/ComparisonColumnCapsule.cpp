#include "ProUpsells/ComparisonColumnCapsule.hpp"

#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"

namespace proupsells {

using namespace swiftui;

View ComparisonColumnCapsule::body(BuildContext&) const {
    return Text{heading} | font(velauikit::quenbySemibold(isSmall ? 11 : 12)) |
           lumokit::largestTextSize(lumokit::LargestSize::capsule) | foregroundStyle(textColor) |
           multilineTextAlignment(graphics::TextAlignment::center) | swiftui::lineSpacing(lineSpacing) |
           padding(Edge::horizontal, isSmall ? 9 : 12) | padding(Edge::vertical, isSmall ? 4 : 7) |
           background(Capsule(geometry::CornerStyle::continuous).fill(fill));
}

} // namespace proupsells
