// One plan, as the plan picker shows it.
#pragma once

#include <optional>
#include <string>

#include "Platform/Graphics/AttributedString.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

struct RadioPickerItem {
    std::string id; // plans with the same one are marked together
    std::string title;
    graphics::AttributedString subtitle;
    std::optional<std::string> trialLength; // absent when the plan has no free trial
    bool hasUsedFreeTrial = false;
    std::optional<std::string> badge; // absent for none

    // Whether the card tells of a free trial.
    bool offersTrial() const { return proupsells::offersTrial(trialLength, hasUsedFreeTrial); }

    bool operator==(const RadioPickerItem&) const = default;
};

} // namespace proupsells
