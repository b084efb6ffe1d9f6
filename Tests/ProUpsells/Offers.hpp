// Plans to test with.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells::tests {

struct PlanDetails {
    std::optional<std::string> introductoryPeriodLength;
    bool hasUsedFreeTrial = false;
};

inline SubscriptionOption yearly(std::string price = "$99.99", PlanDetails details = {}, std::string SKU = "pro.yearly") {
    return {std::move(SKU),
            SubscriptionOption::SubscriptionType::Yearly{std::move(price), "$8.33", std::nullopt,
                                                         std::move(details.introductoryPeriodLength)},
            details.hasUsedFreeTrial};
}

inline SubscriptionOption monthly(std::string price = "$14.99", PlanDetails details = {}, std::string SKU = "pro.monthly") {
    return {
        std::move(SKU),
        SubscriptionOption::SubscriptionType::Monthly{std::move(price), std::nullopt, std::move(details.introductoryPeriodLength)},
        details.hasUsedFreeTrial};
}

inline SubscriptionOption lifetime(std::string price = "$299.99", std::string SKU = "pro.forever") {
    return {std::move(SKU), SubscriptionOption::SubscriptionType::Lifetime{std::move(price)}, false};
}

inline std::vector<SubscriptionOption> twoPlans() { return {yearly(), monthly()}; }

inline std::vector<std::string> identifiers(const std::vector<SubscriptionOption>& options) {
    std::vector<std::string> result;
    for (const SubscriptionOption& option : options) result.push_back(option.SKU());
    return result;
}

} // namespace proupsells::tests
