#include "ProUpsells/PremiumFontsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

using foundation::localizable;

PremiumFontsShelf::PremiumFontsShelf()
    : LazyStorePageShelf({.className = "PremiumFontsShelf",
                          .height = 331,
                          .bottomInset = 75,
                          .title = localizable("Create with premium fonts and graphics"),
                          .subtitle = localizable("Unlimited access to 60k+ exclusive graphics and 500+ curated fonts."),
                          .images = {ImageResource::fonts0StorePageShelfImage(), ImageResource::graphics0StorePageShelfImage()}}) {}

LazyStorePageShelf::Controller PremiumFontsShelf::makeViewController() const {
    return withTexts(twoRows(repeatingStrip(ImageResource::fonts0StorePageShelfImage(), ScrollDirection::left, 0),
                             repeatingStrip(ImageResource::graphics0StorePageShelfImage(), ScrollDirection::right, 1)));
}

} // namespace proupsells
