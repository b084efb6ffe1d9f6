// The clip of a brand's logo, fonts and colours.
#pragma once

#include "ProUpsells/AppearanceVideoView.hpp"

namespace proupsells {

class BrandAssetsVideoView : public AppearanceVideoView {
public:
    BrandAssetsVideoView() : AppearanceVideoView("StorePageBrandingVideo", "StorePageBrandingVideo_dark") {}
    // Stops the program: there is no such view at a frame of its own, and none from an archive.
    [[noreturn]] explicit BrandAssetsVideoView(const geometry::Rect& frame);
    [[noreturn]] explicit BrandAssetsVideoView(const foundation::Coder& coder);
    std::string_view typeName() const override { return "BrandAssetsVideoView"; }
};

} // namespace proupsells
