// Controls of the paywall that somebody has kept, and uses after the host has changed what is sold.
#include <gmock/gmock.h>

#include "Tests/ProUpsells/Paywall.hpp"

namespace proupsells::tests {
namespace {

using ::testing::IsEmpty;

class KeptControl : public testing::Test {
protected:
    Paywall paywall{{yearly(), monthly()}};
    const accessibility::SemanticNode subscribe = paywall.find("subscribe"), monthlyPlan = paywall.find("plan.pro.monthly");
};

TEST_F(KeptControl, SellsNothingOnceThereIsNothingToSell) {
    paywall.model->options = {};
    paywall.settle();

    subscribe.activate();
    monthlyPlan.activate();

    EXPECT_THAT(paywall.events, IsEmpty());
}

TEST_F(KeptControl, SellsNothingWhenTheScreenDoesNotShowThatYet) {
    paywall.model->options = {};

    subscribe.activate();
    monthlyPlan.activate();

    EXPECT_THAT(paywall.events, IsEmpty());
}

TEST_F(KeptControl, SellsThePlanThatIsSoldNow) {
    paywall.model->options = {lifetime(), monthly()};

    subscribe.activate();

    ASSERT_EQ(paywall.events.size(), 1u);
    EXPECT_EQ(std::get<TapEvent::Purchase>(paywall.events[0].kind).option.SKU(), "pro.forever");
}

TEST_F(KeptControl, RestsOnceThePaywallHasGone) {
    paywall.window().setRootViewController(nullptr);
    paywall.settle();

    subscribe.activate();

    EXPECT_THAT(paywall.events, IsEmpty());
}

} // namespace
} // namespace proupsells::tests
