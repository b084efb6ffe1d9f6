// A drifting row of shapes.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class ShapesShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "ShapesShelf"; }
    double preferredShelfHeight() const override { return 280; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 40}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
