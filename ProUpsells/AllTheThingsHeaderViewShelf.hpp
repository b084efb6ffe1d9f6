// Another header for the page, which the page does not list.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class AllTheThingsHeaderViewShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "AllTheThingsHeaderViewShelf"; }
    double preferredShelfHeight() const override { return 100; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {}; }
    std::string footerTitle() const override { return {}; }
    std::string footerSubTitle() const override { return {}; }

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
