#include "ProUpsells/AllTheThingsHeaderViewShelf.hpp"

#include "ProUpsells/LabelHeaderView.hpp"

namespace proupsells {

AllTheThingsHeaderViewShelf::AllTheThingsHeaderViewShelf()
    : LazyStorePageShelf({.className = "AllTheThingsHeaderViewShelf", .height = 100, .headline = LabelHeaderView::headline}) {}

LazyStorePageShelf::Controller AllTheThingsHeaderViewShelf::makeViewController() const {
    return headerController(std::make_shared<LabelHeaderView>(geometry::Rect{}));
}

} // namespace proupsells
