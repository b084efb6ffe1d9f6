// Told of what the user decides; the host buys, restores and opens pages.
#pragma once

#include <cstdint>

#include "Platform/System/Compiler.hpp"
#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells {

class VelaProUpsellViewController;

// Why a paywall has closed.
enum class ClosingReason : std::uint8_t {
    purchased, // the host has dismissed it, and the last thing that the person did was to continue with a plan
    cancelled, // the person has closed it
    dismissed  // the host has taken it away
};

// Always held weakly. From inside a call it may present, dismiss or let go of anything, the sender too, and change options; see
// VelaProUpsellViewController::setOptions for the lists that are allowed.
class PROUPSELLS_EXPORT VelaProUpsellViewControllerDelegate {
public:
    virtual ~VelaProUpsellViewControllerDelegate() = default;

    // The person continues with a plan: buy it, and dismiss `sender` when that is done. The option is as it was at the tap.
    virtual void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController& sender, const SubscriptionOption& option) = 0;
    // The person has tapped the button of that name; the paywall stays.
    virtual void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController& sender) = 0;
    virtual void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController& sender) = 0;
    virtual void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController& sender) = 0;

    // The screen has gone, after its last animation: dismissed, or taken out of its window. Not told when a window goes with it.
    virtual void proUpsellViewControllerDidClose(VelaProUpsellViewController& /*sender*/, ClosingReason /*reason*/) {}
};

} // namespace proupsells
