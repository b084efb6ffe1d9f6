// Making the page, its offers, its actions and its clips.
#include "ProUpsells/VelaProStorePageViewController.hpp"

#include <utility>

#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/VelaUIKit/VideoView.hpp"
#include "ProUpsells/BrandAssetsShelf.hpp"
#include "ProUpsells/LayoutCollectionsShelf.hpp"
#include "ProUpsells/LibraryClips.hpp"
#include "ProUpsells/PDFsShelf.hpp"
#include "ProUpsells/PremiumFontsShelf.hpp"
#include "ProUpsells/ProIntroHeaderViewShelf.hpp"
#include "ProUpsells/ShapesShelf.hpp"
#include "ProUpsells/Tell.hpp"
#include "ProUpsells/TemplatesShelf.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"
#include "ProUpsells/VideoImageLibrariesShelf.hpp"
#include "ProUpsells/iCloudSyncShelf.hpp"

namespace proupsells {

std::shared_ptr<VelaProStorePageViewController> VelaProStorePageViewController::create(std::vector<SubscriptionOption> options,
                                                                                       Referrer referrer, Entitlement entitlement) {
    runloop::MainActor::assertIsolated("VelaProStorePageViewController::create");
    Shelves shelves{std::make_shared<ProIntroHeaderViewShelf>(),
                    std::make_shared<BrandAssetsShelf>(),
                    std::make_shared<TemplatesShelf>(),
                    std::make_shared<PDFsShelf>(),
                    std::make_shared<LayoutCollectionsShelf>(),
                    std::make_shared<PremiumFontsShelf>(),
                    std::make_shared<ShapesShelf>()};
    if (shouldMentioniCloudSync) shelves.push_back(std::make_shared<iCloudSyncShelf>());
    shelves.push_back(std::make_shared<VideoImageLibrariesShelf>());
    const auto page = std::make_shared<VelaProStorePageViewController>(std::move(shelves), std::move(referrer), entitlement);
    page->configure(std::move(options), 0);
    return page;
}

std::shared_ptr<VelaProStorePageViewController> VelaProStorePageViewController::create(const foundation::Coder&) {
    stopAtInitializerFromArchive();
}

VelaProStorePageViewController::VelaProStorePageViewController(Shelves shelves, Referrer referrer, Entitlement entitlement)
    : m_shelves(std::move(shelves)), m_referrer(std::move(referrer)), m_entitlement(entitlement) {}

// --- Offers ---

void VelaProStorePageViewController::configure(std::vector<SubscriptionOption> options, int selectedIndex) {
    m_subscriptionsOptions = std::move(options);
    m_selectedIndex = selectedIndex;
    for (const auto& shelf : m_shelves)
        if (auto* upsell = dynamic_cast<ProUpsellControllerType*>(shelf.get())) upsell->updateOptions(m_subscriptionsOptions);
}

void VelaProStorePageViewController::updateOptions(const std::vector<SubscriptionOption>& options) {
    configure(options, m_selectedIndex);
}

std::optional<std::string> VelaProStorePageViewController::annualSubscriptionPriceForComparisonWithPromotionalPrice() const {
    return m_annualComparisonPrice;
}

void VelaProStorePageViewController::setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) {
    m_annualComparisonPrice = std::move(price);
}

std::optional<std::string> VelaProStorePageViewController::monthlySubscriptionPriceForComparisonWithPromotionalPrice() const {
    return m_monthlyComparisonPrice;
}

void VelaProStorePageViewController::setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(
    std::optional<std::string> price) {
    m_monthlyComparisonPrice = std::move(price);
}

// --- Appearance and actions ---

void VelaProStorePageViewController::track(TrackingOperation operation) {
    tell(m_tracker, operation, m_referrer, subscriptionScreenVariantTitle, analyticsValue(m_entitlement));
}

void VelaProStorePageViewController::viewDidAppear(bool /*animated*/) { track(&ProUpsellEventTracker::trackUpsellViewed); }

void VelaProStorePageViewController::traitCollectionDidChange(const uikit::UITraitCollection&) { collectionView()->reloadData(); }

void VelaProStorePageViewController::dismissView() {
    const auto self = uikit::strongReference(*this);
    track(&ProUpsellEventTracker::trackUpsellDismissed);
    dismiss(true);
}

bool VelaProStorePageViewController::accessibilityPerformEscape() {
    dismissView();
    return true;
}

void VelaProStorePageViewController::handleChoosePlanButtonTapped() {
    const auto self = uikit::strongReference(*this);
    track(&ProUpsellEventTracker::trackChoosePlanTapped);
    if (const auto action = continueToSelectPlan) action();
}

// --- Clips ---

void VelaProStorePageViewController::startLoadingClips() {
    runloop::MainRunLoop::main().schedule(0, [weakSelf = uikit::weakReference(*this)] {
        if (const auto self = weakSelf.lock()) self->loadClips();
    });
}

void VelaProStorePageViewController::loadClips() {
    constexpr double clipWidth = 94;
    std::vector<std::shared_ptr<velauikit::VideoView>> videoViews;
    for (const auto& file : playList(foundLibraryClips())) {
        const auto videoView = std::make_shared<velauikit::VideoView>();
        videoView->setFile(file);
        videoView->play();
        videoView->widthAnchor().constraintEqualToConstant(clipWidth)->setActive(true);
        videoView->setCornerRadius(10);
        videoView->setClipsToBounds(true);
        videoViews.push_back(videoView);
    }
    handleLoadedVideoViews(videoViews);
    collectionView()->reloadData();
}

void VelaProStorePageViewController::handleLoadedVideoViews(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews) {
    for (const auto& shelf : m_shelves)
        if (auto* videosShelf = dynamic_cast<VideosShelf*>(shelf.get())) videosShelf->createVideosShelf(videoViews);
}

} // namespace proupsells
