// Stock pictures and clips, two rows that drift apart.
#pragma once

#include "ProUpsells/VelaProStorePageShelf.hpp"
#include "ProUpsells/VideosShelf.hpp"

namespace proupsells {

// Empty until it is given its clips.
class VideoImageLibrariesShelf : public VelaProStorePageShelf, public VideosShelf {
public:
    std::string_view className() const override { return "VideoImageLibrariesShelf"; }
    std::shared_ptr<uikit::UIViewController> viewController() override { return m_viewController; }
    void setViewController(std::shared_ptr<uikit::UIViewController> controller) { m_viewController = std::move(controller); }
    double preferredShelfHeight() const override { return 395; }
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = 25}; }
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;

    void createVideosShelf(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews) override;

private:
    std::shared_ptr<uikit::UIViewController> m_viewController;
};

} // namespace proupsells
