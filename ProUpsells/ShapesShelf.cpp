#include "ProUpsells/ShapesShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

using foundation::localizable;

ShapesShelf::ShapesShelf()
    : LazyStorePageShelf({.className = "ShapesShelf",
                          .height = 280,
                          .bottomInset = 40,
                          .title = localizable("Design with editable shapes"),
                          .subtitle = localizable("Pro users have access to editable vector shapes to use within projects."),
                          .images = {ImageResource::shapesStorePageShelfImage()}}) {}

LazyStorePageShelf::Controller ShapesShelf::makeViewController() const {
    return withTexts(repeatingStrip(ImageResource::shapesStorePageShelfImage(), ScrollDirection::left));
}

} // namespace proupsells
