#include "ProUpsells/CallToActionTexts.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Format.hpp"
#include "ProUpsells/SubscriptionOptionFormatter.hpp"

namespace proupsells {

using foundation::localizedString;

std::string CallToActionTexts::subscribeButtonTitle(const SubscriptionOption& option) {
    return option.offersTrial() ? localizedString("Start Your Free Trial") : localizedString("Subscribe Now");
}

std::string CallToActionTexts::paymentDisclaimer(const SubscriptionOption& option, const UpsellViewModel& model) {
    // The seven days are fixed text: every yearly trial says so, whatever its own length is. This is deliberate.
    if (option.offersTrial() && option.isYearly())
        return localizedString(
            "Cancel within 7 days, and you won\u2019t be charged. Payment will be made automatically after the trial "
            "ends.",
            "Subscription option details");
    if (option.offersTrial() && option.isMonthly())
        return foundation::format(localizedString("%1$@ trial."), {*option.introductoryPeriodLength()}) + "\n" +
               localizedString("Payment will be made automatically after the trial ends.");
    if (option.isYearly()) {
        const std::string percentage = std::to_string(SubscriptionOptionFormatter::savingsPercentage(model));
        return foundation::format(localizedString("Save %1$@%%. Payment will be made immediately."), {percentage});
    }
    return localizedString("Payment will be made immediately.");
}

} // namespace proupsells
