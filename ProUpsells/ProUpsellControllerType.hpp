// A sales screen whose plans can be replaced by a parent that does not know its class.
#pragma once

#include <vector>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

class PROUPSELLS_EXPORT ProUpsellControllerType {
public:
    virtual ~ProUpsellControllerType() = default;

    // A paywall takes an empty list, or one that has a plan at the selected place.
    virtual void updateOptions(const std::vector<SubscriptionOption>& options) = 0;
};

} // namespace proupsells
