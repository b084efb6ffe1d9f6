#include "ProUpsells/PreparedOptions.hpp"

#include <algorithm>

namespace proupsells {

std::vector<SubscriptionOption> preparedOptions(std::vector<SubscriptionOption> options) {
    std::erase_if(options, [](const SubscriptionOption& option) { return option.isLifetime(); });
    std::stable_partition(options.begin(), options.end(), [](const SubscriptionOption& option) { return option.isYearly(); });
    return options;
}

} // namespace proupsells
