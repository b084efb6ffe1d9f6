#include "Tests/Explorer/Setting.hpp"

#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::explorer {

std::vector<SubscriptionOption> plansOf(Deed offer) {
    using tests::lifetime, tests::monthly, tests::yearly;
    switch (offer) {
    case Deed::offerLifetime: return {lifetime()};
    case Deed::offerYearly: return {yearly("$79.99", {.introductoryPeriodLength = "1 week"}, "one.yearly")};
    case Deed::offerMonthly: return {monthly("$9.99", {.introductoryPeriodLength = "3 days"}, "one.monthly")};
    case Deed::offerBoth: return {monthly(), yearly()};
    case Deed::offerSeveral:
        return {monthly("$12", {.introductoryPeriodLength = "2 weeks", .hasUsedFreeTrial = true}, "some.monthly"), lifetime(),
                yearly("$99", {.introductoryPeriodLength = "1 week"}, "some.yearly"), yearly("$89", {}, "more.yearly")};
    default: return {};
    }
}

} // namespace proupsells::explorer
