#include "ProUpsells/CategoryView.hpp"

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/ClipShapeModifier.hpp"
#include "ProUpsells/FeatureCategoryHeader.hpp"
#include "ProUpsells/FeatureChildRow.hpp"
#include "ProUpsells/ScaledRect.hpp"

namespace proupsells {

using namespace swiftui;

namespace {

// Fades in while it opens from its top edge downwards.
AnyTransition revealTransition() {
    return AnyTransition::opacity().combined(
        AnyTransition::modifier(ClipShapeModifier<ScaledRect>{ScaledRect{0}}, ClipShapeModifier<ScaledRect>{ScaledRect{1}}));
}

} // namespace

View CategoryView::rows() const {
    if (!isExpanded) return View{};
    const auto& features = item->items;
    return VStack{.spacing = 9,
                  .content = ForEach(static_cast<int>(features.size()),
                                     [&](int index) { return FeatureChildRow{features[static_cast<std::size_t>(index)]}; })} |
           padding(Edge::bottom, 27) | transition(revealTransition());
}

View CategoryView::body(BuildContext&) const {
    return VStack{.spacing = 0,
                  .content = {
                      // The page's own colour above the heading: rows that fold up above it dissolve before they touch it.
                      FeatureCategoryHeader{item->name, isExpanded} | shadow(velauikit::velaBackground, 1, 3, 0, -10) |
                          padding(Edge::bottom, 18),
                      Rectangle().fill(lumokit::BorderColor::secondary) | frame({.height = 1}) | padding(Edge::bottom, 18),
                      rows(),
                  }};
}

} // namespace proupsells
