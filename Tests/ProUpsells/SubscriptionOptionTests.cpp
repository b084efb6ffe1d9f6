#include "ProUpsells/SubscriptionOption.hpp"

#include <gmock/gmock.h>

#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::tests {
namespace {

using Type = SubscriptionOption::SubscriptionType;

TEST(SubscriptionOption, HandsOutWhatItWasMadeFrom) {
    const SubscriptionOption option{"sku", Type::Yearly{"$99", "$8", "$49", "1 week"}, true};

    EXPECT_EQ(option.SKU(), "sku");
    EXPECT_EQ(option.price(), "$99");
    EXPECT_EQ(option.monthlyEffectivePrice(), "$8");
    EXPECT_EQ(option.introductoryPrice(), "$49");
    EXPECT_EQ(option.introductoryPeriodLength(), "1 week");
    EXPECT_TRUE(option.hasUsedFreeTrial());
}

TEST(SubscriptionOption, ReadsTheMonthlyPlansOwnTexts) {
    const SubscriptionOption option{"sku", Type::Monthly{"$14", "$1", "3 days"}, false};

    EXPECT_EQ(option.price(), "$14");
    EXPECT_EQ(option.introductoryPrice(), "$1");
    EXPECT_EQ(option.introductoryPeriodLength(), "3 days");
}

TEST(SubscriptionOption, OnlyAYearlyPlanHasAMonthlyEffectivePrice) {
    EXPECT_EQ(monthly().monthlyEffectivePrice(), "");
    EXPECT_EQ(lifetime().monthlyEffectivePrice(), "");
}

TEST(SubscriptionOption, ALifetimePlanHasNoIntroduction) {
    EXPECT_EQ(lifetime("$299").price(), "$299");
    EXPECT_FALSE(lifetime().introductoryPrice().has_value());
    EXPECT_FALSE(lifetime().introductoryPeriodLength().has_value());
}

TEST(SubscriptionOption, KnowsItsKind) {
    EXPECT_TRUE(yearly().isYearly() && !yearly().isMonthly() && !yearly().isLifetime());
    EXPECT_TRUE(!monthly().isYearly() && monthly().isMonthly() && !monthly().isLifetime());
    EXPECT_TRUE(!lifetime().isYearly() && !lifetime().isMonthly() && lifetime().isLifetime());
}

TEST(SubscriptionOption, AUsedTrialMakesItAnotherOptionOfTheSameCategory) {
    const SubscriptionOption unused = yearly("$99", {.hasUsedFreeTrial = false});
    const SubscriptionOption used = yearly("$99", {.hasUsedFreeTrial = true});

    EXPECT_NE(unused, used);
    EXPECT_TRUE(unused.isSameSubscriptionCategory(used));
}

TEST(SubscriptionOption, AnIntroductionMakesItAnotherOption) {
    EXPECT_NE(yearly("$99", {.introductoryPeriodLength = "1 week"}), yearly("$99"));
    EXPECT_NE(yearly("$99", {.introductoryPeriodLength = ""}), yearly("$99"));
    EXPECT_EQ(yearly("$99", {.introductoryPeriodLength = "1 week"}), yearly("$99", {.introductoryPeriodLength = "1 week"}));
}

TEST(SubscriptionOption, TheCategoryIgnoresPricesAndIdentifiers) {
    EXPECT_TRUE(monthly("$1", {}, "a").isSameSubscriptionCategory(monthly("$2", {}, "b")));
    EXPECT_TRUE(lifetime("$1", "a").isSameSubscriptionCategory(lifetime("$2", "b")));
    EXPECT_FALSE(monthly().isSameSubscriptionCategory(yearly()));
    EXPECT_FALSE(lifetime().isSameSubscriptionCategory(monthly()));
}

TEST(SubscriptionOption, TypesOfDifferentKindsDifferEvenWithTheSamePrice) {
    EXPECT_NE(Type(Type::Lifetime{"$1"}), Type(Type::Monthly{"$1", {}, {}}));
    EXPECT_EQ(Type(Type::Lifetime{"$1"}), Type(Type::Lifetime{"$1"}));
}

} // namespace
} // namespace proupsells::tests
