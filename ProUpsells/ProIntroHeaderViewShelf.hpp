// The branded header on top of the page.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class ProIntroHeaderViewShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "ProIntroHeaderViewShelf"; }
    double preferredShelfHeight() const override { return 220; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {}; }
    std::string footerTitle() const override { return {}; }
    std::string footerSubTitle() const override { return {}; }

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
