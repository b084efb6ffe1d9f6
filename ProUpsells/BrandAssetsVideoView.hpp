// The clip of a brand's logo, fonts and colours.
#pragma once

#include "ProUpsells/AppearanceVideoView.hpp"

namespace proupsells {

class BrandAssetsVideoView : public AppearanceVideoView {
public:
    BrandAssetsVideoView() : AppearanceVideoView("StorePageBrandingVideo", "StorePageBrandingVideo_dark") {}
    // Both stop the program.
    explicit BrandAssetsVideoView(const geometry::Rect& frame) : AppearanceVideoView(frame, "BrandAssetsVideoView") {}
    explicit BrandAssetsVideoView(const foundation::Coder& coder) : AppearanceVideoView(coder) {}
    std::string_view typeName() const override { return "BrandAssetsVideoView"; }
};

} // namespace proupsells
