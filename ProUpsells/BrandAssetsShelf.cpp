#include "ProUpsells/BrandAssetsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/BrandAssetsVideoView.hpp"

namespace proupsells {

using foundation::localizable;

BrandAssetsShelf::BrandAssetsShelf()
    : LazyStorePageShelf({.className = "BrandAssetsShelf",
                          .height = 315,
                          .bottomInset = 25,
                          .title = localizable("Upload brand assets"),
                          .subtitle = localizable("Add your logos, fonts and color palettes to use within your projects.")}) {}

LazyStorePageShelf::Controller BrandAssetsShelf::makeViewController() const {
    return withTexts(viewStrip(std::make_shared<BrandAssetsVideoView>()));
}

} // namespace proupsells
