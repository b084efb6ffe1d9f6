#include "ProUpsells/ProIntroHeaderViewShelf.hpp"

#include "ProUpsells/VelaProHeaderView.hpp"

namespace proupsells {

ProIntroHeaderViewShelf::ProIntroHeaderViewShelf()
    : LazyStorePageShelf({.className = "ProIntroHeaderViewShelf", .height = 220, .headline = VelaProHeaderView::headline}) {}

LazyStorePageShelf::Controller ProIntroHeaderViewShelf::makeViewController() const {
    return headerController(std::make_shared<VelaProHeaderView>(geometry::Rect{}));
}

} // namespace proupsells
