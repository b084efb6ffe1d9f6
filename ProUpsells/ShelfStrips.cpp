#include "ProUpsells/ShelfStrips.hpp"

#include <string>
#include <utility>

#include "ProUpsells/RepeatableShelfImageView.hpp"
#include "ProUpsells/TitleSubtitleContainerViewController.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"

namespace proupsells {

void nameStrip(StorePageShelfViewController& strip, const VelaProStorePageShelf& shelf, int row) {
    strip.scrollView()->accessibilityIdentifier = "store.strip." + std::string(shelf.className()) + "." + std::to_string(row);
}

std::shared_ptr<StorePageShelfViewController> repeatingStrip(const VelaProStorePageShelf& shelf, int row,
                                                             const ImageResource& resource,
                                                             StorePageShelfViewController::ScrollDirection direction) {
    constexpr double tileSpacing = 16;
    const auto strip = StorePageShelfViewController::create(RepeatableShelfImageView{{image(resource)}}, tileSpacing);
    nameStrip(*strip, shelf, row);
    strip->setScrollDirection(direction);
    return strip;
}

std::shared_ptr<StorePageShelfViewController> imageStrip(const VelaProStorePageShelf& shelf, const ImageResource& resource) {
    const auto strip = StorePageShelfViewController::create(image(resource));
    nameStrip(*strip, shelf, 0);
    return strip;
}

std::shared_ptr<StorePageShelfViewController> viewStrip(const VelaProStorePageShelf& shelf,
                                                        const std::shared_ptr<uikit::UIView>& view) {
    const auto strip = StorePageShelfViewController::createWithCustomView(view);
    nameStrip(*strip, shelf, 0);
    return strip;
}

std::shared_ptr<uikit::UIViewController> headerController(const std::shared_ptr<uikit::UIView>& header) {
    const auto controller = std::make_shared<uikit::UIViewController>();
    header->setTranslatesAutoresizingMaskIntoConstraints(false);
    controller->view()->addSubview(header);
    header->fillSuperview();
    return controller;
}

std::shared_ptr<uikit::UIViewController> withTexts(const std::shared_ptr<uikit::UIViewController>& picture,
                                                   const VelaProStorePageShelf& shelf) {
    return std::make_shared<VerticallyStackedContainerViewController>(
        picture, std::make_shared<TitleSubtitleContainerViewController>(shelf));
}

} // namespace proupsells
