#include "ProUpsells/VelaProUpsellViewController.hpp"

#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/RunLoop/MainActor.hpp"
#include "Platform/VelaUIKit/Navigation.hpp"
#include "ProUpsells/ComparisonViewController.hpp"
#include "ProUpsells/PromotionalPricingUpsell.hpp"
#include "ProUpsells/Tell.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"

namespace proupsells {

using Tracker = ProUpsellEventTracker;

namespace {

constexpr geometry::Size formSheetSize{375, 800};

// A host that hands over the only pointer is never told of anything.
template <class Party>
void reportIfNobodyHolds(const std::weak_ptr<Party>& party, std::string_view name) {
    const std::weak_ptr<Party> none;
    const bool wasSet = party.owner_before(none) || none.owner_before(party);
    if (!wasSet || !party.expired()) return;
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                         "VelaProUpsellViewController - the " + std::string(name) +
                                             " is gone already: it is held weakly, so the host must keep it",
                                         "viewDidLoad()");
}

} // namespace

const std::string& eventScreenTitle(VelaProUpsellViewController::Variant) {
    static const std::string title = "ProUpsell Phase 2: with Comparison List and Carousel Sept24";
    return title;
}

const std::string& VelaProUpsellViewController::screenTitle() const { return eventScreenTitle(m_variant); }

std::shared_ptr<VelaProUpsellViewController> VelaProUpsellViewController::create(std::vector<SubscriptionOption> options,
                                                                                 Variant variant, Referrer referrer,
                                                                                 Entitlement entitlement, bool showLoginOnSuccess) {
    runloop::MainActor::assertIsolated("VelaProUpsellViewController::create");
    return std::make_shared<VelaProUpsellViewController>(Creation{}, std::move(options), variant, std::move(referrer), entitlement,
                                                         showLoginOnSuccess);
}

std::shared_ptr<VelaProUpsellViewController> VelaProUpsellViewController::create(const foundation::Coder&) {
    stopAtInitializerFromArchive();
}

VelaProUpsellViewController::VelaProUpsellViewController(Creation, std::vector<SubscriptionOption> options, Variant variant,
                                                         Referrer referrer, Entitlement entitlement, bool showLoginOnSuccess)
    : m_referrer(std::move(referrer)), m_variant(variant), m_entitlement(entitlement), m_options(std::move(options)),
      m_showLoginOnSuccess(showLoginOnSuccess) {
    setModalPresentationStyle(uikit::UIModalPresentationStyle::formSheet);
    setPreferredContentSize(formSheetSize);
}

void VelaProUpsellViewController::setReferrer(Referrer referrer) {
    runloop::MainActor::assertIsolated("VelaProUpsellViewController::setReferrer");
    m_referrer = std::move(referrer);
}

void VelaProUpsellViewController::setEntitlement(Entitlement entitlement) {
    runloop::MainActor::assertIsolated("VelaProUpsellViewController::setEntitlement");
    m_entitlement = entitlement;
}

void VelaProUpsellViewController::setTracker(std::weak_ptr<ProUpsellEventTracker> tracker) {
    runloop::MainActor::assertIsolated("VelaProUpsellViewController::setTracker");
    m_tracker = std::move(tracker);
}

void VelaProUpsellViewController::setDelegate(std::weak_ptr<VelaProUpsellViewControllerDelegate> delegate) {
    runloop::MainActor::assertIsolated("VelaProUpsellViewController::setDelegate");
    m_delegate = std::move(delegate);
}

void VelaProUpsellViewController::viewDidLoad() {
    reportIfNobodyHolds(m_delegate, "delegate");
    reportIfNobodyHolds(m_tracker, "tracker");
    setModalPresentationStyle(uikit::UIModalPresentationStyle::formSheet);
    setPreferredContentSize(formSheetSize);
    embedPaywall();
    passOnAnnualComparisonPrice();
    passOnMonthlyComparisonPrice();
}

void VelaProUpsellViewController::embedPaywall() {
    const auto upsell = UpsellViewController::create(m_options, UpsellViewController::Variant::comparisonPaywall);
    upsell->setDelegate(uikit::weakReference(*this));
    addChild(upsell);
    view()->addSubview(upsell->view());
    upsell->view()->fillSuperview();
    upsell->didMoveToParent(this);
}

ProUpsellControllerType* VelaProUpsellViewController::paywall() const {
    return children().empty() ? nullptr : dynamic_cast<ProUpsellControllerType*>(children().front().get());
}

void VelaProUpsellViewController::passOnAnnualComparisonPrice() {
    if (auto* upsell = dynamic_cast<PromotionalPricingUpsell*>(paywall()))
        upsell->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(m_annualComparisonPrice);
}

void VelaProUpsellViewController::passOnMonthlyComparisonPrice() {
    if (auto* upsell = dynamic_cast<PromotionalPricingUpsell*>(paywall()))
        upsell->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(m_monthlyComparisonPrice);
}

void VelaProUpsellViewController::setOptions(std::vector<SubscriptionOption> options) {
    runloop::MainActor::assertIsolated("VelaProUpsellViewController::setOptions");
    m_options = std::move(options);
    if (auto* upsell = paywall()) upsell->updateOptions(m_options);
}

void VelaProUpsellViewController::setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) {
    m_annualComparisonPrice = std::move(price);
    passOnAnnualComparisonPrice();
}

void VelaProUpsellViewController::setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) {
    m_monthlyComparisonPrice = std::move(price);
    passOnMonthlyComparisonPrice();
}

void VelaProUpsellViewController::viewDidAppear(bool /*animated*/) {
    tell(m_tracker, &Tracker::trackUpsellViewed, Referrer(m_referrer), screenTitle(), analyticsValue(m_entitlement));
}

// Whoever is only covered by another screen stays in the window.
void VelaProUpsellViewController::viewDidDisappear(bool /*animated*/) {
    const bool isGone = isBeingDismissed() || !view()->window();
    if (!isGone) return;
    const auto self = uikit::strongReference(*this);
    tell(m_delegate, &Delegate::proUpsellViewControllerDidClose, *this, std::exchange(m_reason, ClosingReason::dismissed));
}

// A delegate may let go of this controller from inside a call, so each operation holds it until it is over. A tracker may set
// another referrer, so it is told of a copy.

void VelaProUpsellViewController::upsellViewControllerDidContinueWith(UpsellViewController&, const SubscriptionOption& option) {
    const auto self = uikit::strongReference(*this);
    m_reason = ClosingReason::purchased;
    tell(m_delegate, &Delegate::proUpsellViewControllerDidContinueWith, *this, option);
    tell(m_tracker, &Tracker::trackSubscriptionOptionSelected, option, Referrer(m_referrer), screenTitle());
    tell(m_tracker, &Tracker::trackPurchaseTapped, option, Referrer(m_referrer), screenTitle(), analyticsValue(m_entitlement));
}

void VelaProUpsellViewController::upsellViewControllerDidTapCancel(UpsellViewController&) {
    const auto self = uikit::strongReference(*this);
    m_reason = ClosingReason::cancelled;
    tell(m_tracker, &Tracker::trackUpsellDismissed, Referrer(m_referrer), screenTitle(), analyticsValue(m_entitlement));
}

void VelaProUpsellViewController::upsellViewControllerDidTapRestoreButton(UpsellViewController&) {
    const auto self = uikit::strongReference(*this);
    tell(m_delegate, &Delegate::proUpsellViewControllerDidTapRestore, *this);
    tell(m_tracker, &Tracker::trackRestoreTapped, Referrer(m_referrer), screenTitle());
}

void VelaProUpsellViewController::upsellViewControllerDidTapWhatIsProButton(UpsellViewController&) {
    const auto self = uikit::strongReference(*this);
    const auto storePage = VelaProStorePageViewController::create(m_options, m_referrer, m_entitlement);
    storePage->setTracker(m_tracker);
    storePage->continueToSelectPlan = [weakPage = std::weak_ptr<VelaProStorePageViewController>(storePage)] {
        if (const auto page = weakPage.lock()) page->dismiss(true);
    };
    present(storePage, true);
}

void VelaProUpsellViewController::upsellViewControllerDidTapPrivacyPolicyButton(UpsellViewController&) {
    const auto self = uikit::strongReference(*this);
    tell(m_delegate, &Delegate::proUpsellViewControllerDidTapPrivacyPolicy, *this);
    tell(m_tracker, &Tracker::trackPrivacyPolicyTapped, Referrer(m_referrer), screenTitle());
}

void VelaProUpsellViewController::upsellViewControllerDidTapTermsOfServiceButton(UpsellViewController&) {
    const auto self = uikit::strongReference(*this);
    tell(m_delegate, &Delegate::proUpsellViewControllerDidTapTermsOfService, *this);
    tell(m_tracker, &Tracker::trackTermsOfServiceTapped, Referrer(m_referrer), screenTitle());
}

void VelaProUpsellViewController::upsellViewControllerDidTapTermsOfService(UpsellViewController& sender) {
    upsellViewControllerDidTapTermsOfServiceButton(sender);
}

void VelaProUpsellViewController::upsellViewControllerDidTapComparePlans(UpsellViewController&) {
    const auto self = uikit::strongReference(*this);
    const auto comparison = std::make_shared<ComparisonViewController>();
    comparison->setDelegate(uikit::weakReference(*this));
    present(velauikit::embedInNavController(comparison), true);
    tell(m_tracker, &Tracker::trackComparePlansTapped, Referrer(m_referrer), screenTitle());
}

void VelaProUpsellViewController::comparisonViewControllerDidTapChooseYourPlan(ComparisonViewController& sender) {
    sender.dismiss(true);
}

void VelaProUpsellViewController::comparisonViewControllerDidTapClose(ComparisonViewController& sender) { sender.dismiss(true); }

} // namespace proupsells
