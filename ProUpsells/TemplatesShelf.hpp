// A clip of templates being filled in.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class TemplatesShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "TemplatesShelf"; }
    double preferredShelfHeight() const override { return 290; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 40}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
