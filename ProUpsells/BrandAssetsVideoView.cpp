#include "ProUpsells/BrandAssetsVideoView.hpp"

#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

BrandAssetsVideoView::BrandAssetsVideoView(const geometry::Rect&) : BrandAssetsVideoView() {
    stopAtUnimplementedInitializer("init(frame:)", "BrandAssetsVideoView");
}

BrandAssetsVideoView::BrandAssetsVideoView(const foundation::Coder&) : BrandAssetsVideoView() { stopAtInitializerFromArchive(); }

} // namespace proupsells
