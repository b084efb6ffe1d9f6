// A clip of a brand's logo, fonts and colours.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class BrandAssetsShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "BrandAssetsShelf"; }
    double preferredShelfHeight() const override { return 315; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 25}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
