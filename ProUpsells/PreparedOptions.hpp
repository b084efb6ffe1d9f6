// The plans as the paywall shows them.
#pragma once

#include <vector>

#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

// Without lifetime plans, yearly ones before monthly ones, otherwise in the given order.
std::vector<SubscriptionOption> preparedOptions(std::vector<SubscriptionOption> options);

} // namespace proupsells
