// The plans as the paywall shows them.
#pragma once

#include <vector>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

// Without lifetime plans, yearly ones before monthly ones, otherwise in the given order.
PROUPSELLS_EXPORT std::vector<SubscriptionOption> preparedOptions(std::vector<SubscriptionOption> options);

} // namespace proupsells
