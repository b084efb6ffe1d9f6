// Typefaces and graphics, two rows that drift apart.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class PremiumFontsShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "PremiumFontsShelf"; }
    double preferredShelfHeight() const override { return 331; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 75}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
