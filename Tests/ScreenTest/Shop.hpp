// A host's paywall, and what a customer has bought in it.
#pragma once

#include <string>
#include <vector>

#include "ProUpsells/VelaProUpsellViewController.hpp"

namespace proupsells::screentest {

class Till final : public VelaProUpsellViewControllerDelegate {
public:
    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController& paywall, const SubscriptionOption& option) override {
        bought.push_back(option.SKU());
        paywall.dismiss(true);
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override {}

    std::vector<std::string> bought;
};

inline std::shared_ptr<VelaProUpsellViewController> newPaywall(const std::string& monthlyPrice = "$14.99") {
    using Type = SubscriptionOption::SubscriptionType;
    return VelaProUpsellViewController::create(
        {SubscriptionOption{"pro.yearly", Type::Yearly{"$99.99", "$8.33", std::nullopt, "1 week"}, false},
         SubscriptionOption{"pro.monthly", Type::Monthly{monthlyPrice, std::nullopt, std::nullopt}, false}},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5}, Entitlement::velaPRO, true);
}

} // namespace proupsells::screentest
