#include "ProUpsells/LazyStorePageShelf.hpp"

#include <utility>

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/RepeatableShelfImageView.hpp"
#include "ProUpsells/TitleSubtitleContainerViewController.hpp"
#include "ProUpsells/VerticallyStackedContainerViewController.hpp"

namespace proupsells {

namespace {

std::string localizedUnlessEmpty(const std::string& key) {
    return key.empty() ? key : foundation::Bundle::main().localizedString(key);
}

} // namespace

LazyStorePageShelf::LazyStorePageShelf(Facts facts) : m_facts(std::move(facts)) {}

std::vector<uikit::UIImage> LazyStorePageShelf::images() const {
    std::vector<uikit::UIImage> images;
    for (const ImageResource& resource : m_facts.images) images.push_back(image(resource));
    return images;
}

double LazyStorePageShelf::heightAddedForTexts(double width, const uikit::UITraitCollection& traits) const {
    return TitleSubtitleContainerViewController::heightFor(*this, width, traits) -
           TitleSubtitleContainerViewController::usualHeight;
}

std::string LazyStorePageShelf::footerTitle() const { return localizedUnlessEmpty(m_facts.title); }

std::string LazyStorePageShelf::footerSubTitle() const { return localizedUnlessEmpty(m_facts.subtitle); }

std::string LazyStorePageShelf::accessibilityName() const {
    return localizedUnlessEmpty(m_facts.title.empty() ? m_facts.headline : m_facts.title);
}

std::shared_ptr<uikit::UIViewController> LazyStorePageShelf::viewController() {
    if (!m_viewController) m_viewController = makeViewController();
    return m_viewController;
}

void LazyStorePageShelf::setViewController(std::shared_ptr<uikit::UIViewController> controller) {
    m_viewController = std::move(controller);
}

// --- Strips ---

void LazyStorePageShelf::identify(StorePageShelfViewController& strip, int row) const {
    strip.scrollView()->accessibilityIdentifier = "store.strip." + std::string(className()) + "." + std::to_string(row);
}

LazyStorePageShelf::Strip LazyStorePageShelf::repeatingStrip(const ImageResource& resource, ScrollDirection direction,
                                                             int row) const {
    constexpr double tileSpacing = 16;
    const auto strip = StorePageShelfViewController::create(RepeatableShelfImageView{{image(resource)}}, tileSpacing);
    identify(*strip, row);
    strip->setScrollDirection(direction);
    return strip;
}

LazyStorePageShelf::Strip LazyStorePageShelf::imageStrip(const ImageResource& resource) const {
    const auto strip = StorePageShelfViewController::create(image(resource));
    identify(*strip, 0);
    return strip;
}

LazyStorePageShelf::Strip LazyStorePageShelf::viewStrip(const std::shared_ptr<uikit::UIView>& view) const {
    const auto strip = StorePageShelfViewController::createWithCustomView(view);
    identify(*strip, 0);
    return strip;
}

// --- What stands around them ---

LazyStorePageShelf::Controller LazyStorePageShelf::twoRows(const Controller& upper, const Controller& lower) {
    return std::make_shared<VerticallyStackedContainerViewController>(upper, lower);
}

LazyStorePageShelf::Controller LazyStorePageShelf::withTexts(const Controller& picture) const {
    const auto texts = std::make_shared<TitleSubtitleContainerViewController>(*this);
    if (m_facts.roomForTexts) texts->setRoomForTexts(*m_facts.roomForTexts);
    return std::make_shared<VerticallyStackedContainerViewController>(picture, texts);
}

LazyStorePageShelf::Controller LazyStorePageShelf::headerController(const std::shared_ptr<uikit::UIView>& header) {
    const auto controller = std::make_shared<uikit::UIViewController>();
    controller->view()->addSubview(header);
    header->fillSuperview();
    return controller;
}

} // namespace proupsells
