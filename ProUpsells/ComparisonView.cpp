#include "ProUpsells/ComparisonView.hpp"

#include <algorithm>
#include <numeric>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Graphics/ContentSize.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Platform/VelaUIKit/VelaPrimaryButtonStyle.hpp"
#include "ProUpsells/CategoryView.hpp"
#include "ProUpsells/ComparisonColumnCapsule.hpp"

namespace proupsells {

using namespace swiftui;
using foundation::localizedString;

namespace {

using Expanded = Binding<ExpandedCategories>;

// A category that appears is open or closed as the catalogue says. What the user did to it before is forgotten; this is deliberate.
void seed(const Expanded& expanded, const FeatureCategory& category) {
    ExpandedCategories changed = expanded.get();
    changed.expandedCategories[category.name] = category.expanded;
    withoutAnimation([&] { expanded.set(std::move(changed)); });
}

const std::string& knownAs(const FeatureCategory& category) {
    return category.englishName.empty() ? category.name : category.englishName;
}

void toggle(const Expanded& expanded, const std::string& name) {
    ExpandedCategories changed = expanded.get();
    changed.expandedCategories[name] = !changed.isExpanded(name);
    withAnimation([&] { expanded.set(std::move(changed)); });
}

} // namespace

View ComparisonView::headerRow(graphics::ContentSizeCategory textSize) const {
    // Of its usual size, however large it is.
    const double leastScale = 0.6 / std::max(1.0, graphics::scaleFactor(std::min(textSize, lumokit::headingH2.largestTextSize)));
    View title =
        Text{localizedString("Compare Plans", "Title for screen where users can see a comparison between our Folio plans")} |
        minimumScaleFactor(leastScale) | lumokit::textStyle(lumokit::headingH2) | foregroundStyle(lumokit::ContentColor::primary) |
        accessibilityTraits(accessibility::Traits::header) |
        frame({.maxWidth = geometry::infinity, .alignment = Alignment::leading});
    // The two capsules have different line spacings. This is deliberate.
    View freeColumn = ComparisonColumnCapsule{.heading = ComparisonCatalogue::freeHeading(),
                                              .fill = lumokit::ValidationColor::neutralSubdued,
                                              .textColor = lumokit::ValidationColor::neutralImportant,
                                              .lineSpacing = 8,
                                              .isSmall = requiresSmallCapsule};
    View proColumn = ComparisonColumnCapsule{.heading = ComparisonCatalogue::proHeading(),
                                             .fill = lumokit::BackgroundColor::level4,
                                             .textColor = lumokit::ContentColor::inverse,
                                             .lineSpacing = 2,
                                             .isSmall = requiresSmallCapsule};
    const auto row = [](ViewList content) {
        return HStack{.alignment = VerticalAlignment::bottom, .spacing = 16, .content = std::move(content)};
    };
    const bool isStacked = textSize >= graphics::ContentSizeCategory::accessibilityMedium;
    return (isStacked ? View{VStack{.content = {title, row({Spacer{}, freeColumn, proColumn})}}}
                      : View{row({title, freeColumn, proColumn})}) |
           padding(Edge::bottom, 42) | padding(Edge::horizontal, 24);
}

View ComparisonView::category(std::size_t index, const Expanded& expanded) const {
    const std::shared_ptr<const FeatureCategory> item(items, &(*items)[index]);
    return CategoryView{item, expanded.get().isExpanded(item->name)} |
           onTapGesture([expanded, item] { toggle(expanded, item->name); }) |
           onAppear([expanded, item] { seed(expanded, *item); }) |
           AccessibilityModifier{.identifier = "comparison.category." + knownAs(*item), .label = item->name} |
           accessibilityDisclosure(expanded.get().isExpanded(item->name));
}

View ComparisonView::categoryList(const View& header, const Expanded& expanded) const {
    std::vector<std::size_t> indices(items->size());
    std::iota(indices.begin(), indices.end(), std::size_t(0));
    View categories = VStack{.spacing = 0,
                             .content = ForEach(
                                 indices, [&](std::size_t index) { return Key((*items)[index].name); },
                                 [&](std::size_t index) { return category(index, expanded); })} |
                      padding(Edge::horizontal, 24);
    if (header.isAbsent()) return ScrollView{.content = categories};
    return ScrollView{.content = VStack{.spacing = 0, .content = {header, categories}}};
}

View ComparisonView::bottomBar() const {
    const std::string title = localizedString("Choose Your Plan", "Button that a user clicks to go back to upsell page");
    return Rectangle().fill(velauikit::velaBackground) | frame({.height = 80}) | shadow(graphics::Color::black, 0.1, 10, 4, -10) |
           overlay(Button{.action = chooseYourPlanHandler, .label = Text{title}} |
                       buttonStyle(velauikit::VelaPrimaryButtonStyle::rounded()) |
                       accessibilityIdentifier("comparison.choosePlan") | accessibilityLabel(title) | padding(Edge::horizontal) |
                       padding(Edge::top),
                   Alignment::bottom);
}

// On a low screen, and above large texts, the header would leave the list hardly any room.
View ComparisonView::screen(double height, const EnvironmentValues& environment, const Expanded& expanded) const {
    constexpr double lowestForFixedHeader = 260;
    const bool scrollsHeader =
        height < lowestForFixedHeader || environment.contentSize >= graphics::ContentSizeCategory::accessibilityMedium;
    const bool reachesTheEdge = environment.safeAreaInsets.bottom == 0;
    View header = headerRow(environment.contentSize);
    return VStack{
               .spacing = 0,
               .content = {scrollsHeader ? View{} : header, categoryList(scrollsHeader ? header : View{}, expanded), bottomBar()}} |
           padding(Edge::bottom, reachesTheEdge ? 20 : 0) | background(velauikit::velaBackground);
}

View ComparisonView::body(BuildContext& context) const {
    const auto screen = [view = *this, environment = context.environment(), expanded = context.state(ExpandedCategories{})](
                            const GeometryProxy& proxy) { return view.screen(proxy.size.height, environment, expanded); };
    return GeometryReader{.content = screen, .isDescribed = false};
}

} // namespace proupsells
