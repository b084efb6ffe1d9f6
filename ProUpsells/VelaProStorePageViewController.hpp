// The store page: a list of shelves, a close button, and a bar with the plan button.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Collection/UICollectionViewDataSource.hpp"
#include "Platform/UIKit/Collection/UICollectionViewDelegateFlowLayout.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "ProUpsells/Entitlement.hpp"
#include "ProUpsells/ProUpsellControllerType.hpp"
#include "ProUpsells/ProUpsellEventTracker.hpp"
#include "ProUpsells/PromotionalPricingUpsell.hpp"
#include "ProUpsells/Referrer.hpp"
#include "ProUpsells/VelaProStorePageShelf.hpp"

namespace proupsells::velauikit {
class ChargedButton;
class VideoView;
} // namespace proupsells::velauikit

namespace proupsells {

// Sells nothing itself: the plan button hands control back through continueToSelectPlan. Main thread only.
class PROUPSELLS_EXPORT VelaProStorePageViewController : public uikit::UIViewController,
                                                         public ProUpsellControllerType,
                                                         public PromotionalPricingUpsell,
                                                         public uikit::UICollectionViewDataSource,
                                                         public uikit::UICollectionViewDelegateFlowLayout {
public:
    // From the top down.
    using Shelves = std::vector<std::shared_ptr<VelaProStorePageShelf>>;

    // Whether pages that are created from now on list the shelf about synchronisation.
    inline static bool shouldMentioniCloudSync = false;

    // The page with its usual shelves, configured with the plans and index 0.
    static std::shared_ptr<VelaProStorePageViewController> create(std::vector<SubscriptionOption> options, Referrer referrer,
                                                                  Entitlement entitlement);
    // Stops the program: "init(coder:) has not been implemented".
    [[noreturn]] static std::shared_ptr<VelaProStorePageViewController> create(const foundation::Coder& coder);
    // A page with shelves of the caller's own. Made with std::make_shared.
    VelaProStorePageViewController(Shelves shelves, Referrer referrer, Entitlement entitlement);

    std::string_view typeName() const override { return "VelaProStorePageViewController"; }

    // The screen's name in analytics.
    std::string subscriptionScreenVariantTitle = "Vela Pro Store Page";
    // What the plan button does. When it is empty, the tap is only tracked.
    std::function<void()> continueToSelectPlan;

    // What the page was configured with.
    const std::vector<SubscriptionOption>& subscriptionsOptions() const { return m_subscriptionsOptions; }
    // A place among the options, from 0; not checked.
    int selectedIndex() const { return m_selectedIndex; }
    void setSelectedIndex(int index) { m_selectedIndex = index; }

    // What the page was made with.
    const Shelves& shelves() const { return m_shelves; }
    const Referrer& referrer() const { return m_referrer; }
    Entitlement entitlement() const { return m_entitlement; }
    // Held weakly.
    std::shared_ptr<ProUpsellEventTracker> tracker() const { return m_tracker.lock(); }
    void setTracker(std::weak_ptr<ProUpsellEventTracker> tracker) { m_tracker = std::move(tracker); }
    // Carried for the host; the page itself leaves it empty.
    const std::shared_ptr<uikit::UIViewController>& videoImageLibrariesViewController() const {
        return m_videoImageLibrariesViewController;
    }
    void setVideoImageLibrariesViewController(std::shared_ptr<uikit::UIViewController> controller) {
        m_videoImageLibrariesViewController = std::move(controller);
    }

    // Hands the plans on to the shelves that show some.
    virtual void configure(std::vector<SubscriptionOption> options, int selectedIndex);
    // The same, keeping the selected index.
    void updateOptions(const std::vector<SubscriptionOption>& options) override;

    // Stored only.
    std::optional<std::string> annualSubscriptionPriceForComparisonWithPromotionalPrice() const override;
    void setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) override;
    std::optional<std::string> monthlySubscriptionPriceForComparisonWithPromotionalPrice() const override;
    void setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) override;

    // Built when they are first asked for.
    const std::shared_ptr<velauikit::ChargedButton>& dismissIconButton();
    const std::shared_ptr<uikit::UICollectionView>& collectionView();
    // Reads the page's own texts anew, in the language of the moment. Its shelves and its plan button have texts of their own.
    void applyTexts();

    void languageDidChange() override { applyTexts(); }
    bool accessibilityPerformEscape() override;

    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void traitCollectionDidChange(const uikit::UITraitCollection& previous) override;

    // What the page tells its collection.
    std::size_t numberOfSections(uikit::UICollectionView& collectionView) override;
    std::size_t collectionViewNumberOfItemsInSection(uikit::UICollectionView& collectionView, std::size_t section) override;
    std::shared_ptr<uikit::UICollectionViewCell> collectionViewCellForItemAt(uikit::UICollectionView& collectionView,
                                                                             uikit::IndexPath indexPath) override;
    uikit::UICollectionItemDescription collectionViewDescriptionOfItemAt(uikit::UICollectionView& collectionView,
                                                                         uikit::IndexPath indexPath) override;
    std::vector<uikit::UIImage> collectionViewImagesForItemAt(uikit::UICollectionView& collectionView,
                                                              uikit::IndexPath indexPath) override;
    std::shared_ptr<uikit::UICollectionReusableView>
    collectionViewViewForSupplementaryElementOfKind(uikit::UICollectionView& collectionView, uikit::UICollectionElementKind kind,
                                                    uikit::IndexPath indexPath) override;

    // What the page tells the collection's layout, and is told by it: how large shelves are, and which of them can be seen.
    std::optional<geometry::Size> collectionViewLayoutSizeForItemAt(uikit::UICollectionView& collectionView,
                                                                    uikit::UICollectionViewFlowLayout& layout,
                                                                    uikit::IndexPath indexPath) override;
    std::optional<geometry::PhysicalInsets> collectionViewLayoutInsetForSectionAt(uikit::UICollectionView& collectionView,
                                                                                  uikit::UICollectionViewFlowLayout& layout,
                                                                                  std::size_t section) override;
    std::optional<geometry::Size> collectionViewLayoutReferenceSizeForHeaderInSection(uikit::UICollectionView& collectionView,
                                                                                      uikit::UICollectionViewFlowLayout& layout,
                                                                                      std::size_t section) override;
    std::optional<geometry::Size> collectionViewLayoutReferenceSizeForFooterInSection(uikit::UICollectionView& collectionView,
                                                                                      uikit::UICollectionViewFlowLayout& layout,
                                                                                      std::size_t section) override;
    void collectionViewWillDisplayForItemAt(uikit::UICollectionView& collectionView, uikit::UICollectionViewCell& cell,
                                            uikit::IndexPath indexPath) override;
    void collectionViewDidEndDisplayingForItemAt(uikit::UICollectionView& collectionView, uikit::UICollectionViewCell& cell,
                                                 uikit::IndexPath indexPath) override;

    // The buttons' actions: tracks the tap, then runs continueToSelectPlan or dismisses the page.
    virtual void handleChoosePlanButtonTapped();
    virtual void dismissView();

protected:
    // Steps of viewDidLoad().
    virtual void layoutBottomBar();
    virtual void layoutChoosePlanButton(const std::shared_ptr<uikit::UIView>& bottomBar);
    virtual void layoutDismissButton();

    // Hands the clips, once they are loaded, on to the shelves that show some.
    virtual void handleLoadedVideoViews(const std::vector<std::shared_ptr<velauikit::VideoView>>& videoViews);

private:
    // All of the page's events carry the same arguments.
    using TrackingOperation = void (ProUpsellEventTracker::*)(const Referrer& referrer, const std::string& screenTitle,
                                                              const std::string& entitlement);

    void track(TrackingOperation operation);
    void startLoadingClips();
    void loadClips();

    std::vector<SubscriptionOption> m_subscriptionsOptions;
    int m_selectedIndex = 0;
    Shelves m_shelves;
    std::shared_ptr<velauikit::ChargedButton> m_dismissIconButton;
    std::shared_ptr<uikit::UICollectionView> m_collectionView;
    std::weak_ptr<ProUpsellEventTracker> m_tracker;
    Referrer m_referrer;
    Entitlement m_entitlement;
    std::shared_ptr<uikit::UIViewController> m_videoImageLibrariesViewController;
    std::optional<std::string> m_annualComparisonPrice;
    std::optional<std::string> m_monthlyComparisonPrice;
};

} // namespace proupsells
