#include "ProUpsells/ShapesShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/ShelfStrips.hpp"

namespace proupsells {

namespace {

using ScrollDirection = StorePageShelfViewController::ScrollDirection;

} // namespace

std::string ShapesShelf::footerTitle() const { return foundation::localizedString("Design with editable shapes"); }

std::string ShapesShelf::footerSubTitle() const {
    return foundation::localizedString("Pro users have access to editable vector shapes to use within projects.");
}

std::shared_ptr<uikit::UIViewController> ShapesShelf::makeViewController() const {
    return withTexts(repeatingStrip(*this, 0, ImageResource::shapesStorePageShelfImage(), ScrollDirection::left), *this);
}

} // namespace proupsells
