#include "ProUpsells/CallToActionTexts.hpp"

#include <gmock/gmock.h>

#include "Tests/ProUpsells/HostTranslations.hpp"
#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::tests {
namespace {

std::string disclaimer(const SubscriptionOption& option, std::vector<SubscriptionOption> options = {}) {
    UpsellViewModel model;
    model.options = std::move(options);
    return CallToActionTexts::paymentDisclaimer(option, model);
}

TEST(SubscribeButtonTitle, OffersATrialThatHasNotBeenUsed) {
    EXPECT_EQ(CallToActionTexts::subscribeButtonTitle(yearly("$99", {.introductoryPeriodLength = "1 week"})),
              "Start Your Free Trial");
    EXPECT_EQ(CallToActionTexts::subscribeButtonTitle(monthly("$9", {.introductoryPeriodLength = "1 week"})),
              "Start Your Free Trial");
}

TEST(SubscribeButtonTitle, SaysSubscribeOtherwise) {
    EXPECT_EQ(CallToActionTexts::subscribeButtonTitle(yearly()), "Subscribe Now");
    EXPECT_EQ(CallToActionTexts::subscribeButtonTitle(lifetime()), "Subscribe Now");
    EXPECT_EQ(
        CallToActionTexts::subscribeButtonTitle(monthly("$9", {.introductoryPeriodLength = "1 week", .hasUsedFreeTrial = true})),
        "Subscribe Now");
}

TEST(PaymentDisclaimer, PromisesSevenDaysWhateverTheYearlyTrialsLength) {
    const std::string promise =
        "Cancel within 7 days, and you won\xE2\x80\x99t be charged. Payment will be made automatically after the trial ends.";

    EXPECT_EQ(disclaimer(yearly("$99", {.introductoryPeriodLength = "1 week"})), promise);
    EXPECT_EQ(disclaimer(yearly("$99", {.introductoryPeriodLength = "1 month"})), promise);
}

TEST(PaymentDisclaimer, NamesAMonthlyTrialsLengthOnALineOfItsOwn) {
    EXPECT_EQ(disclaimer(monthly("$9", {.introductoryPeriodLength = "1 week"})),
              "1 week trial.\nPayment will be made automatically after the trial ends.");
}

TEST(PaymentDisclaimer, PraisesTheSavingOfAYearlyPlanWhoseTrialIsUsed) {
    const SubscriptionOption used = yearly("60", {.introductoryPeriodLength = "1 week", .hasUsedFreeTrial = true});

    EXPECT_EQ(disclaimer(used, {used, monthly("10")}), "Save 50%. Payment will be made immediately.");
}

TEST(PaymentDisclaimer, FallsBackTo45WhereThePricesAreNoNumbers) {
    EXPECT_EQ(disclaimer(yearly("$99.99"), {yearly("$99.99"), monthly("$14.99")}), "Save 45%. Payment will be made immediately.");
}

TEST(PaymentDisclaimer, WritesTheSavingWithoutGrouping) {
    EXPECT_EQ(disclaimer(yearly("12000"), {yearly("12000"), monthly("10")}), "Save -9900%. Payment will be made immediately.");
}

TEST(PaymentDisclaimer, SaysLittleOfOtherPlans) {
    EXPECT_EQ(disclaimer(monthly()), "Payment will be made immediately.");
    EXPECT_EQ(disclaimer(monthly("$9", {.introductoryPeriodLength = "1 week", .hasUsedFreeTrial = true})),
              "Payment will be made immediately.");
    EXPECT_EQ(disclaimer(lifetime()), "Payment will be made immediately.");
}

TEST(CallToActionTexts, ComeFromTheHostsTranslations) {
    HostTranslations host{{{"Subscribe Now", "Jetzt abonnieren"}, {"%1$@ trial.", "%1$@ gratis."}}, "de"};

    EXPECT_EQ(CallToActionTexts::subscribeButtonTitle(yearly()), "Jetzt abonnieren");
    EXPECT_EQ(disclaimer(monthly("9", {.introductoryPeriodLength = "1 Woche"})),
              "1 Woche gratis.\nPayment will be made automatically after the trial ends.");
}

} // namespace
} // namespace proupsells::tests
