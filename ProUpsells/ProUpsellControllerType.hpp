// A sales screen whose plans can be replaced by a parent that does not know its class.
#pragma once

#include <vector>

#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

class ProUpsellControllerType {
public:
    virtual ~ProUpsellControllerType() = default;

    virtual void updateOptions(const std::vector<SubscriptionOption>& options) = 0;
};

} // namespace proupsells
