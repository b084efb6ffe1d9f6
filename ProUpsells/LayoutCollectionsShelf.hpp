// A drifting row of page layouts.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class LayoutCollectionsShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "LayoutCollectionsShelf"; }
    double preferredShelfHeight() const override { return 236; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 50}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
