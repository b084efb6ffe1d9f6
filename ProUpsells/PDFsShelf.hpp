// A print sheet.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class PDFsShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "PDFsShelf"; }
    double preferredShelfHeight() const override { return 336; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 50}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
