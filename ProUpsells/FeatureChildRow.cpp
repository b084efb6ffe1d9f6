#include "ProUpsells/FeatureChildRow.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/CheckIcon.hpp"
#include "ProUpsells/ComparisonCatalogue.hpp"
#include "ProUpsells/FreeUsageLimitIndicator.hpp"

namespace proupsells {

using namespace swiftui;
using foundation::localizedString;

View FeatureChildRow::freeCell() const {
    if (feature.distribution.isFree()) return CheckIcon{} | accessibilityLabel(ComparisonCatalogue::freeHeading());
    if (const auto* limit = feature.distribution.limit()) return FreeUsageLimitIndicator{limit->count};
    return View{};
}

// What the marks in the two columns say.
std::string FeatureChildRow::spokenName() const {
    if (feature.distribution.isFree())
        return foundation::format(
            localizedString("%@: in Free and in Pro", "Spoken for a row of the comparison: a feature that both plans have"),
            {feature.name});
    if (const auto* limit = feature.distribution.limit())
        return foundation::format(
            localizedString("%1$@: %2$@, without limit in Pro",
                            "Spoken for a row of the comparison: a feature, and how often the Free plan may use it (3 free)"),
            {feature.name, ComparisonCatalogue::freeUsageText(limit->count)});
    return foundation::format(
        localizedString("%@: not in Free, in Pro", "Spoken for a row of the comparison: a feature that only the Pro plan has"),
        {feature.name});
}

View FeatureChildRow::name() const {
    return Text{feature.name} | lumokit::textStyle(lumokit::TextStyle::based(lumokit::PlatformTextStyle::subheadline, 15, 15)) |
           fixedSize(false, true) | lumokit::largestTextSize(lumokit::LargestSize::mainText);
}

View FeatureChildRow::columns() const {
    return HStack{.spacing = 40, .content = {freeCell(), CheckIcon{} | accessibilityLabel(ComparisonCatalogue::proHeading())}};
}

View FeatureChildRow::row() const { return HStack{.spacing = 16, .content = {name(), Spacer{}, columns()}}; }

View FeatureChildRow::stacked() const {
    return VStack{.alignment = HorizontalAlignment::leading, .content = {name(), HStack{.content = {Spacer{}, columns()}}}};
}

View FeatureChildRow::cells(graphics::ContentSizeCategory textSize) const {
    // The largest words need the whole width.
    if (textSize >= graphics::ContentSizeCategory::accessibilityMedium) return stacked();
    // Where the free plan has words, too, these and the name may be too long for one row.
    if (feature.distribution.limit()) return FirstThatFits{.content = {row() | keepsWordsWhole(), stacked()}};
    return row();
}

View FeatureChildRow::body(BuildContext& context) const {
    return cells(context.environment().contentSize) | accessibilitySpokenName(spokenName()) | padding(Edge::vertical, 12.8) |
           padding(Edge::leading, 16) | frame({.minHeight = 40});
}

} // namespace proupsells
