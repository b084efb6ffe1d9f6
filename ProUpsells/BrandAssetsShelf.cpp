#include "ProUpsells/BrandAssetsShelf.hpp"

#include "ProUpsells/BrandAssetsVideoView.hpp"

namespace proupsells {

BrandAssetsShelf::BrandAssetsShelf()
    : LazyStorePageShelf({.className = "BrandAssetsShelf",
                          .height = 315,
                          .bottomInset = 25,
                          .title = "Upload brand assets",
                          .subtitle = "Add your logos, fonts and color palettes to use within your projects."}) {}

LazyStorePageShelf::Controller BrandAssetsShelf::makeViewController() const {
    return withTexts(viewStrip(std::make_shared<BrandAssetsVideoView>()));
}

} // namespace proupsells
