// The host's analytics, as typed calls.
#pragma once

#include <string>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/Referrer.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

// Always held weakly; without one, nothing is tracked.
class PROUPSELLS_EXPORT ProUpsellEventTracker {
public:
    virtual ~ProUpsellEventTracker() = default;

    // A sales screen has appeared.
    virtual void trackUpsellViewed(const Referrer& referrer, const std::string& screenTitle, const std::string& entitlement) = 0;
    // The user continues with a plan.
    virtual void trackSubscriptionOptionSelected(const SubscriptionOption& option, const Referrer& referrer,
                                                 const std::string& screenTitle) = 0;
    // Right after the selection, for the same tap.
    virtual void trackPurchaseTapped(const SubscriptionOption& option, const Referrer& referrer, const std::string& screenTitle,
                                     const std::string& entitlement) = 0;
    // Reserved: the module never sends it.
    virtual void trackReservedEvent() = 0;
    // The user closes a sales screen.
    virtual void trackUpsellDismissed(const Referrer& referrer, const std::string& screenTitle, const std::string& entitlement) = 0;
    // The user taps one of the paywall's other buttons.
    virtual void trackRestoreTapped(const Referrer& referrer, const std::string& screenTitle) = 0;
    virtual void trackPrivacyPolicyTapped(const Referrer& referrer, const std::string& screenTitle) = 0;
    virtual void trackTermsOfServiceTapped(const Referrer& referrer, const std::string& screenTitle) = 0;
    virtual void trackComparePlansTapped(const Referrer& referrer, const std::string& screenTitle) = 0;
    // The store page's plan button.
    virtual void trackChoosePlanTapped(const Referrer& referrer, const std::string& screenTitle,
                                       const std::string& entitlement) = 0;
};

} // namespace proupsells
