// Devices that share a document. Listed only when the host says so.
#pragma once

#include "ProUpsells/LazyStorePageShelf.hpp"

namespace proupsells {

class iCloudSyncShelf : public LazyStorePageShelf {
public:
    std::string_view className() const override { return "iCloudSyncShelf"; }
    double preferredShelfHeight() const override { return 278; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 50}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

protected:
    std::shared_ptr<uikit::UIViewController> makeViewController() const override;
};

} // namespace proupsells
