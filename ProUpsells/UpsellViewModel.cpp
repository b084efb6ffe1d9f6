#include "ProUpsells/UpsellViewModel.hpp"

#include <algorithm>

namespace proupsells {

namespace {

const SubscriptionOption* firstOption(const std::vector<SubscriptionOption>& options,
                                      bool (SubscriptionOption::*isOfKind)() const) {
    const auto found =
        std::find_if(options.begin(), options.end(), [&](const SubscriptionOption& option) { return (option.*isOfKind)(); });
    return found == options.end() ? nullptr : &*found;
}

} // namespace

const SubscriptionOption* UpsellViewModel::yearlyOption() const {
    return firstOption(options.get(), &SubscriptionOption::isYearly);
}

const SubscriptionOption* UpsellViewModel::monthlyOption() const {
    return firstOption(options.get(), &SubscriptionOption::isMonthly);
}

} // namespace proupsells
