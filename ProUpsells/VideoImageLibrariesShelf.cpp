#include "ProUpsells/VideoImageLibrariesShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"
#include "ProUpsells/ShelfStrips.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"

namespace proupsells {

std::string VideoImageLibrariesShelf::footerTitle() const {
    return foundation::localizedString("Get inspired with videos and images");
}

std::string VideoImageLibrariesShelf::footerSubTitle() const {
    return foundation::localizedString("Exclusive access to Marwick Folio stock videos and libraries with millions of images.");
}

void VideoImageLibrariesShelf::createVideosShelf(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews) {
    using ScrollDirection = StorePageShelfViewController::ScrollDirection;
    constexpr double spacing = 16;

    const auto images = repeatingStrip(*this, 0, ImageResource::videoSectionImagesStorePageShelfImage(), ScrollDirection::right);

    const auto clips = std::make_shared<uikit::UIStackView>(uikit::Axis::horizontal);
    clips->setDistribution(uikit::UIStackView::Distribution::fillEqually);
    clips->setSpacing(spacing);
    for (const auto& videoView : videoViews) clips->addArrangedSubview(videoView);
    const auto videos = StorePageShelfViewController::createWithPaddedCustomView(clips);
    nameStrip(*videos, *this, 1);

    const auto rows = std::make_shared<VerticallyStackedContainerViewController>(images, videos);
    rows->setContentSpacing(spacing);
    videos->setScrollDirection(ScrollDirection::left);

    m_viewController = withTexts(rows, *this);
}

} // namespace proupsells
