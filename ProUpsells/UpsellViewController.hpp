// Shows the paywall, and turns its taps into calls on a delegate.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Platform/Combine/AnyCancellable.hpp"
#include "Platform/Foundation/Coder.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"
#include "Platform/VelaUIKit/EmptyStateView.hpp"
#include "ProUpsells/ProUpsellControllerType.hpp"
#include "ProUpsells/PromotionalPricingUpsell.hpp"
#include "ProUpsells/UpsellViewControllerDelegate.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells::hosting {
class UIHostingController;
}

namespace proupsells {

// Main thread only.
class PROUPSELLS_EXPORT UpsellViewController : public uikit::UIViewController,
                                               public ProUpsellControllerType,
                                               public PromotionalPricingUpsell {
    struct Creation {};

public:
    // The one with the plan comparison and the header carousel.
    enum class Variant : std::uint8_t { comparisonPaywall };

    // Options with neither a yearly nor a monthly plan write one log line and give an empty list.
    static std::shared_ptr<UpsellViewController> create(const std::vector<SubscriptionOption>& subscriptionOptions,
                                                        Variant variant);
    // Stops the program: "init(coder:) has not been implemented".
    [[noreturn]] static std::shared_ptr<UpsellViewController> create(const foundation::Coder& coder);

    // For create() only.
    UpsellViewController(Creation, Variant variant);

    std::string_view typeName() const override { return "UpsellViewController"; }

    // Which paywall it is, and what it shows.
    Variant variant() const { return m_variant; }
    const std::shared_ptr<UpsellViewModel>& upsellViewModel() const { return m_upsellViewModel; }

    // Held weakly; null once it has gone.
    std::shared_ptr<UpsellViewControllerDelegate> delegate() const { return m_delegate.lock(); }
    void setDelegate(std::weak_ptr<UpsellViewControllerDelegate> delegate) { m_delegate = std::move(delegate); }

    void updateOptions(const std::vector<SubscriptionOption>& options) override;
    std::optional<std::string> annualSubscriptionPriceForComparisonWithPromotionalPrice() const override;
    void setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) override;
    std::optional<std::string> monthlySubscriptionPriceForComparisonWithPromotionalPrice() const override;
    void setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::optional<std::string> price) override;

    // The download of a personalised header image. When it is present as the view appears, a placeholder covers the paywall. The
    // module itself never sets it.
    std::optional<combine::AnyCancellable> imageDownloadTask;

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void languageDidChange() override;
    bool accessibilityPerformEscape() override;
    std::string accessibilityScreenName() const override;

private:
    using Delegate = UpsellViewControllerDelegate;

    void start(const std::vector<SubscriptionOption>& subscriptionOptions);
    void handle(const UpsellViewModel::TapEvent& event);

    Variant m_variant;
    std::shared_ptr<UpsellViewModel> m_upsellViewModel = std::make_shared<UpsellViewModel>();
    combine::AnyCancellable m_upsellModelTapEventObserver;
    std::weak_ptr<UpsellViewControllerDelegate> m_delegate;
    std::shared_ptr<hosting::UIHostingController> m_hostingController; // null until the view is loaded
    std::shared_ptr<velauikit::EmptyStateView> m_emptyStateView = std::make_shared<velauikit::EmptyStateView>();
};

} // namespace proupsells
