#include "ProUpsells/FeatureChildRow.hpp"

#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/CheckIcon.hpp"
#include "ProUpsells/ComparisonCatalogue.hpp"
#include "ProUpsells/FreeUsageLimitIndicator.hpp"

namespace proupsells {

using namespace swiftui;

View FeatureChildRow::freeCell() const {
    if (feature.distribution.isFree()) return CheckIcon{} | accessibilityLabel(ComparisonCatalogue::freeHeading());
    if (const auto* limit = feature.distribution.limit()) return FreeUsageLimitIndicator{limit->count};
    return View{};
}

View FeatureChildRow::cells(graphics::ContentSizeCategory textSize) const {
    View name = Text{feature.name} |
                lumokit::textStyle(lumokit::TextStyle::based(lumokit::PlatformTextStyle::subheadline, 15, 15)) |
                fixedSize(false, true) | lumokit::largestTextSize(lumokit::LargestSize::mainText);
    View columns =
        HStack{.spacing = 40, .content = {freeCell(), CheckIcon{} | accessibilityLabel(ComparisonCatalogue::proHeading())}};
    // The largest words need the whole width.
    if (textSize >= graphics::ContentSizeCategory::accessibilityMedium)
        return VStack{.alignment = HorizontalAlignment::leading, .content = {name, HStack{.content = {Spacer{}, columns}}}};
    return HStack{.spacing = 16, .content = {name, Spacer{}, columns}};
}

View FeatureChildRow::body(BuildContext& context) const {
    return cells(context.environment().contentSize) | padding(Edge::vertical, 12.8) | padding(Edge::leading, 16) |
           frame({.minHeight = 40});
}

} // namespace proupsells
