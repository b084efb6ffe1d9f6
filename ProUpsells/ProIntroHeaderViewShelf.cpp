#include "ProUpsells/ProIntroHeaderViewShelf.hpp"

#include "ProUpsells/VelaProHeaderView.hpp"

namespace proupsells {

ProIntroHeaderViewShelf::ProIntroHeaderViewShelf()
    : LazyStorePageShelf({.className = "ProIntroHeaderViewShelf", .height = 220, .headline = VelaProHeaderView::headline}) {}

double ProIntroHeaderViewShelf::heightAddedForTexts(double width, const uikit::UITraitCollection& traits) const {
    if (traits.preferredContentSizeCategory <= graphics::ContentSizeCategory::large) return 0;
    return std::make_shared<VelaProHeaderView>(geometry::Rect{})->heightAddedForHeadline(width, traits);
}

LazyStorePageShelf::Controller ProIntroHeaderViewShelf::makeViewController() const {
    return headerController(std::make_shared<VelaProHeaderView>(geometry::Rect{}));
}

} // namespace proupsells
