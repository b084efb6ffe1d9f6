// Told of what the user decides; the host buys, restores and opens pages.
#pragma once

#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

class VelaProUpsellViewController;

// Always held weakly. From inside a call it may present, dismiss or let go of anything, the sender too, and change options; see
// VelaProUpsellViewController::setOptions for the lists that are allowed.
class VelaProUpsellViewControllerDelegate {
public:
    virtual ~VelaProUpsellViewControllerDelegate() = default;

    virtual void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController& sender, const SubscriptionOption& option) = 0;
    virtual void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController& sender) = 0;
    virtual void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController& sender) = 0;
    virtual void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController& sender) = 0;
};

} // namespace proupsells
