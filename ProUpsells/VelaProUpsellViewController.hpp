// The module's front door: the host creates it, sets a tracker and a delegate, and presents it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "ProUpsells/ComparisonViewControllerDelegate.hpp"
#include "ProUpsells/Entitlement.hpp"
#include "ProUpsells/PersonalizedInfo.hpp"
#include "ProUpsells/ProUpsellControllerType.hpp"
#include "ProUpsells/ProUpsellEventTracker.hpp"
#include "ProUpsells/Promotion.hpp"
#include "ProUpsells/Referrer.hpp"
#include "ProUpsells/UpsellViewControllerDelegate.hpp"
#include "ProUpsells/VelaProUpsellViewControllerDelegate.hpp"

namespace proupsells {

// Embeds the paywall, forwards each of its actions to the delegate and reports it to the tracker. Both are held weakly; when one is
// missing, its call is skipped and nothing else; one that is gone before the view loads costs one log line. Main thread only.
class PROUPSELLS_EXPORT VelaProUpsellViewController : public uikit::UIViewController,
                                                      public UpsellViewControllerDelegate,
                                                      public ComparisonViewControllerDelegate {
    struct Creation {};

public:
    // The module's types, under the names that they have at their front door.
    using Referrer = proupsells::Referrer;
    using Entitlement = proupsells::Entitlement;
    using Promotion = proupsells::Promotion;
    using PersonalizedInfo = proupsells::PersonalizedInfo;
    // Which paywall is shown: the one with the plan comparison.
    enum class Variant : std::uint8_t { comparisonPaywall };

    // `options` by the rules of setOptions(). `showLoginOnSuccess` is carried for the host.
    static std::shared_ptr<VelaProUpsellViewController> create(std::vector<SubscriptionOption> options, Variant variant,
                                                               Referrer referrer, Entitlement entitlement, bool showLoginOnSuccess);
    // Stops the program: "init(coder:) has not been implemented".
    [[noreturn]] static std::shared_ptr<VelaProUpsellViewController> create(const foundation::Coder& coder);

    // For create() only.
    VelaProUpsellViewController(Creation, std::vector<SubscriptionOption> options, Variant variant, Referrer referrer,
                                Entitlement entitlement, bool showLoginOnSuccess);

    std::string_view typeName() const override { return "VelaProUpsellViewController"; }

    // What the controller was made with, or was set since.
    const Referrer& referrer() const { return m_referrer; }
    Variant variant() const { return m_variant; }
    Entitlement entitlement() const { return m_entitlement; }
    // For a controller that is presented again, from elsewhere: the tracker is told of them, and store pages get them, from now on.
    void setReferrer(Referrer referrer);
    void setEntitlement(Entitlement entitlement);

    // Held weakly: null once they have gone, as before they are set.
    std::shared_ptr<ProUpsellEventTracker> tracker() const { return m_tracker.lock(); }
    void setTracker(std::weak_ptr<ProUpsellEventTracker> tracker);
    std::shared_ptr<VelaProUpsellViewControllerDelegate> delegate() const { return m_delegate.lock(); }
    void setDelegate(std::weak_ptr<VelaProUpsellViewControllerDelegate> delegate);

    // Options and prices that are set after the view has loaded reach the paywall at once.
    const std::vector<SubscriptionOption>& options() const { return m_options; }
    // May be called at any time, also from inside a delegate's call, with an empty list or with one that has a plan at the selected
    // place. Places are those on the paywall: yearly plans come first, then monthly ones, without lifetime plans. A list that is
    // too short stops the program: "Index out of range: the selected option is number 1 of 1". So does one whose first monthly plan
    // has the price "0" while its first yearly price is a number: "The savings percentage is not a whole number that can be shown".
    void setOptions(std::vector<SubscriptionOption> options);
    // Absent: no promotion, nothing to compare with.
    const std::optional<std::string>& annualSubscriptionPriceForComparisonWithPromotionalPrice() const {
        return m_annualComparisonPrice;
    }
    void setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price);
    const std::optional<std::string>& monthlySubscriptionPriceForComparisonWithPromotionalPrice() const {
        return m_monthlyComparisonPrice;
    }
    void setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price);

    // Carried for the host; nothing here acts on it.
    bool showLoginOnSuccess() const { return m_showLoginOnSuccess; }
    void setShowLoginOnSuccess(bool shows) { m_showLoginOnSuccess = shows; }

    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void viewDidDisappear(bool animated) override;

    // What the embedded paywall tells. The store page and the comparison are shown from here; the rest is the delegate's and the
    // tracker's.
    void upsellViewControllerDidContinueWith(UpsellViewController& sender, const SubscriptionOption& option) override;
    void upsellViewControllerDidTapCancel(UpsellViewController& sender) override;
    void upsellViewControllerDidTapRestoreButton(UpsellViewController& sender) override;
    void upsellViewControllerDidTapWhatIsProButton(UpsellViewController& sender) override;
    void upsellViewControllerDidTapPrivacyPolicyButton(UpsellViewController& sender) override;
    void upsellViewControllerDidTapTermsOfServiceButton(UpsellViewController& sender) override;

    // Does the same as the operation with the longer name.
    void upsellViewControllerDidTapTermsOfService(UpsellViewController& sender);
    void upsellViewControllerDidTapComparePlans(UpsellViewController& sender) override;

    void comparisonViewControllerDidTapChooseYourPlan(ComparisonViewController& sender) override;
    void comparisonViewControllerDidTapClose(ComparisonViewController& sender) override;

private:
    using Delegate = VelaProUpsellViewControllerDelegate;

    void embedPaywall();
    // The embedded paywall, looked up anew each time; null before the view has loaded.
    ProUpsellControllerType* paywall() const;
    void passOnAnnualComparisonPrice();
    void passOnMonthlyComparisonPrice();
    const std::string& screenTitle() const;

    Referrer m_referrer;
    Variant m_variant;
    Entitlement m_entitlement;
    std::weak_ptr<ProUpsellEventTracker> m_tracker;
    std::weak_ptr<VelaProUpsellViewControllerDelegate> m_delegate;
    std::vector<SubscriptionOption> m_options;
    std::optional<std::string> m_annualComparisonPrice;
    std::optional<std::string> m_monthlyComparisonPrice;
    bool m_showLoginOnSuccess = true;
    ClosingReason m_reason = ClosingReason::dismissed; // if it closed now
};

// The screen's name in analytics.
PROUPSELLS_EXPORT const std::string& eventScreenTitle(VelaProUpsellViewController::Variant variant);

} // namespace proupsells
