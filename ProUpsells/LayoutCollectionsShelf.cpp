#include "ProUpsells/LayoutCollectionsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

using foundation::localizable;

LayoutCollectionsShelf::LayoutCollectionsShelf()
    : LazyStorePageShelf({.className = "LayoutCollectionsShelf",
                          .height = 236,
                          .bottomInset = 50,
                          .title = localizable("Speedy layout collections"),
                          .subtitle = localizable("Create consistent designs in seconds with pre-designed themed layouts."),
                          .images = {ImageResource::layoutCollections()}}) {}

LazyStorePageShelf::Controller LayoutCollectionsShelf::makeViewController() const {
    return withTexts(repeatingStrip(ImageResource::layoutCollections(), ScrollDirection::right));
}

} // namespace proupsells
