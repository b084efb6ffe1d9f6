// Told of every tap on the paywall.
#pragma once

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

class UpsellViewController;

// Always held weakly.
class PROUPSELLS_EXPORT UpsellViewControllerDelegate {
public:
    virtual ~UpsellViewControllerDelegate() = default;

    // The person continues with a plan, as it was at the moment of the tap.
    virtual void upsellViewControllerDidContinueWith(UpsellViewController& sender, const SubscriptionOption& option) = 0;
    // The paywall dismisses itself afterwards.
    virtual void upsellViewControllerDidTapCancel(UpsellViewController& sender) = 0;
    // The person has tapped the button of that name; the paywall itself does nothing more.
    virtual void upsellViewControllerDidTapRestoreButton(UpsellViewController& sender) = 0;
    virtual void upsellViewControllerDidTapWhatIsProButton(UpsellViewController& sender) = 0;
    virtual void upsellViewControllerDidTapPrivacyPolicyButton(UpsellViewController& sender) = 0;
    virtual void upsellViewControllerDidTapTermsOfServiceButton(UpsellViewController& sender) = 0;
    virtual void upsellViewControllerDidTapComparePlans(UpsellViewController& sender) = 0;
};

} // namespace proupsells
