// What the paywall's button and the line under it say.
#pragma once

#include <string>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/UpsellViewModel.hpp"

namespace proupsells {

class PROUPSELLS_EXPORT CallToActionTexts {
public:
    CallToActionTexts() = delete;

    static std::string subscribeButtonTitle(const SubscriptionOption& option);
    // May have two lines, parted by a line feed. The model's plans give the saving that a yearly plan is praised with.
    static std::string paymentDisclaimer(const SubscriptionOption& option, const UpsellViewModel& model);
};

} // namespace proupsells
