#include "ProUpsells/LayoutCollectionsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/ShelfStrips.hpp"

namespace proupsells {

namespace {

using ScrollDirection = StorePageShelfViewController::ScrollDirection;

} // namespace

std::string LayoutCollectionsShelf::footerTitle() const { return foundation::localizedString("Speedy layout collections"); }

std::string LayoutCollectionsShelf::footerSubTitle() const {
    return foundation::localizedString("Create consistent designs in seconds with pre-designed themed layouts.");
}

std::shared_ptr<uikit::UIViewController> LayoutCollectionsShelf::makeViewController() const {
    return withTexts(repeatingStrip(*this, 0, ImageResource::layoutCollections(), ScrollDirection::right), *this);
}

} // namespace proupsells
