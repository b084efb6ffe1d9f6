#include "ProUpsells/ShapesShelf.hpp"

namespace proupsells {

ShapesShelf::ShapesShelf()
    : LazyStorePageShelf({.className = "ShapesShelf",
                          .height = 280,
                          .bottomInset = 40,
                          .title = "Design with editable shapes",
                          .subtitle = "Pro users have access to editable vector shapes to use within projects.",
                          .images = {ImageResource::shapesStorePageShelfImage()}}) {}

LazyStorePageShelf::Controller ShapesShelf::makeViewController() const {
    return withTexts(repeatingStrip(ImageResource::shapesStorePageShelfImage(), ScrollDirection::left));
}

} // namespace proupsells
