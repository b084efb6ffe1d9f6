#include "ProUpsells/BrandAssetsShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/BrandAssetsVideoView.hpp"
#include "ProUpsells/ShelfStrips.hpp"

namespace proupsells {

std::string BrandAssetsShelf::footerTitle() const { return foundation::localizedString("Upload brand assets"); }

std::string BrandAssetsShelf::footerSubTitle() const {
    return foundation::localizedString("Add your logos, fonts and color palettes to use within your projects.");
}

std::shared_ptr<uikit::UIViewController> BrandAssetsShelf::makeViewController() const {
    return withTexts(viewStrip(*this, std::make_shared<BrandAssetsVideoView>()), *this);
}

} // namespace proupsells
