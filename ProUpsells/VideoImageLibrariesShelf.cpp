#include "ProUpsells/VideoImageLibrariesShelf.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Views/UIStackView.hpp"

namespace proupsells {

using foundation::localizable;

VideoImageLibrariesShelf::VideoImageLibrariesShelf()
    : LazyStorePageShelf(
          {.className = "VideoImageLibrariesShelf",
           .height = 395,
           .bottomInset = 25,
           .title = localizable("Get inspired with videos and images"),
           .subtitle = localizable("Exclusive access to Marwick Folio stock videos and libraries with millions of images."),
           .images = {ImageResource::videoSectionImagesStorePageShelfImage()},
           // The last shelf: what is further down stays under the page's bar.
           .roomForTexts = 140}) {}

void VideoImageLibrariesShelf::createVideosShelf(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews) {
    const auto images = repeatingStrip(ImageResource::videoSectionImagesStorePageShelfImage(), ScrollDirection::right, 0);

    const auto clips = std::make_shared<uikit::UIStackView>(uikit::Axis::horizontal);
    clips->setDistribution(uikit::UIStackView::Distribution::fillEqually);
    clips->setSpacing(16);
    for (const auto& videoView : videoViews) clips->addArrangedSubview(videoView);
    const auto videos = StorePageShelfViewController::createWithPaddedCustomView(clips);
    identify(*videos, 1);

    const auto rows = twoRows(images, videos);
    videos->setScrollDirection(ScrollDirection::left);
    setViewController(withTexts(rows));
}

} // namespace proupsells
