#include "ProUpsells/FeatureChildRow.hpp"

#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/CheckIcon.hpp"
#include "ProUpsells/ComparisonCatalogue.hpp"
#include "ProUpsells/FreeUsageLimitIndicator.hpp"

namespace proupsells {

using namespace swiftui;

namespace {

// Beside the two columns of a small screen, larger words would be broken.
const auto largestRowTextSize = lumokit::largestTextSize(graphics::ContentSizeCategory::extraExtraExtraLarge);

} // namespace

View FeatureChildRow::freeCell() const {
    if (feature.distribution.isFree()) return CheckIcon{} | accessibilityLabel(ComparisonCatalogue::freeHeading());
    if (const auto* limit = feature.distribution.limit()) return FreeUsageLimitIndicator{limit->count};
    return View{};
}

View FeatureChildRow::body(BuildContext&) const {
    return HStack{.spacing = 16,
                  .content =
                      {
                          Text{feature.name} |
                              lumokit::textStyle(lumokit::TextStyle::based(lumokit::PlatformTextStyle::subheadline, 15, 15)) |
                              fixedSize(false, true) | largestRowTextSize,
                          Spacer{},
                          HStack{.spacing = 40,
                                 .content = {freeCell(), CheckIcon{} | accessibilityLabel(ComparisonCatalogue::proHeading())}},
                      }} |
           padding(Edge::vertical, 12.8) | padding(Edge::leading, 16) | frame({.minHeight = 40});
}

} // namespace proupsells
