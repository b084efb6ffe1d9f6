#include "ProUpsells/LayoutCollectionsShelf.hpp"

namespace proupsells {

LayoutCollectionsShelf::LayoutCollectionsShelf()
    : LazyStorePageShelf({.className = "LayoutCollectionsShelf",
                          .height = 236,
                          .bottomInset = 50,
                          .title = "Speedy layout collections",
                          .subtitle = "Create consistent designs in seconds with pre-designed themed layouts.",
                          .images = {ImageResource::layoutCollections()}}) {}

LazyStorePageShelf::Controller LayoutCollectionsShelf::makeViewController() const {
    return withTexts(repeatingStrip(ImageResource::layoutCollections(), ScrollDirection::right));
}

} // namespace proupsells
