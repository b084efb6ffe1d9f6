// What every example sells, and to whom it is told.
#pragma once

#include <ProUpsells/ProUpsells.hpp>
#include <iostream>
#include <memory>
#include <string>

namespace shop {

class Purchases final : public proupsells::VelaProUpsellViewControllerDelegate {
    using Paywall = proupsells::VelaProUpsellViewController;

public:
    // A shop asks the payment service here, and dismisses the paywall when that has agreed.
    void proUpsellViewControllerDidContinueWith(Paywall& paywall, const proupsells::SubscriptionOption& option) override {
        std::cout << "bought " << option.SKU() << std::endl;
        paywall.dismiss(true);
    }
    void proUpsellViewControllerDidTapRestore(Paywall&) override { std::cout << "restore" << std::endl; }
    void proUpsellViewControllerDidTapPrivacyPolicy(Paywall&) override { std::cout << "privacy policy" << std::endl; }
    void proUpsellViewControllerDidTapTermsOfService(Paywall&) override { std::cout << "terms of service" << std::endl; }
    void proUpsellViewControllerDidClose(Paywall&, proupsells::ClosingReason reason) override {
        const char* const names[] = {"purchased", "cancelled", "dismissed"};
        std::cout << "closed: " << names[int(reason)] << std::endl;
    }
};

inline std::shared_ptr<proupsells::VelaProUpsellViewController> newPaywall(const std::shared_ptr<Purchases>& purchases) {
    using namespace proupsells;
    using Type = SubscriptionOption::SubscriptionType;
    const auto paywall = VelaProUpsellViewController::create(
        {SubscriptionOption{"pro.yearly", Type::Yearly{"$99.99", "$8.33", std::nullopt, "1 week"}, false},
         SubscriptionOption{"pro.monthly", Type::Monthly{"$14.99", std::nullopt, std::nullopt}, false}},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5}, Entitlement::velaPRO, true);
    paywall->setDelegate(purchases);
    return paywall;
}

} // namespace shop
