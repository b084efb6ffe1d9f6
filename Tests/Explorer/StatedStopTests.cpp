// Exactly when plans that a host sets stop the program.
#include <gtest/gtest.h>

#include "Tests/Explorer/Attempt.hpp"
#include "Tests/Support/NoDeathTests.hpp"

namespace proupsells::explorer {
namespace {

// The plan at the place is chosen, then the host offers others.
struct Change {
    Deed before;
    int chosen;
    Deed after;
};

std::vector<SubscriptionOption> plansShown(Deed offer) {
    std::vector<SubscriptionOption> plans;
    for (const SubscriptionOption& plan : plansOf(offer))
        if (plan.isYearly()) plans.push_back(plan);
    for (const SubscriptionOption& plan : plansOf(offer))
        if (plan.isMonthly()) plans.push_back(plan);
    return plans;
}

std::vector<Change> allChanges() {
    constexpr std::array offers{Deed::offerNone,    Deed::offerLifetime, Deed::offerYearly,
                                Deed::offerMonthly, Deed::offerBoth,     Deed::offerSeveral};
    std::vector<Change> changes;
    for (const Deed before : offers)
        for (int chosen = 0; chosen == 0 || chosen < int(plansShown(before).size()); ++chosen)
            for (const Deed after : offers) changes.push_back({before, chosen, after});
    return changes;
}

std::string nameOf(const Change& change) {
    return std::string(nameOf(change.before)) + std::to_string(change.chosen) + std::string(nameOf(change.after));
}

// Paywalls that stop are looked at from outside.
void make(const Change& change) {
    World world({.name = "stop", .offer = change.before});
    if (change.chosen > 0)
        world.perform({Action::Kind::tap, "plan." + plansShown(change.before)[std::size_t(change.chosen)].SKU()});
    world.perform({Action::Kind::host, std::string(nameOf(change.after))});
    world.perform({Action::Kind::tap, "subscribe"});
    world.perform({Action::Kind::wait, "6"});
}

class StatedStop : public ::testing::TestWithParam<Change> {};

INSTANTIATE_TEST_SUITE_P(All, StatedStop, ::testing::ValuesIn(allChanges()), [](const auto& info) { return nameOf(info.param); });

TEST_P(StatedStop, ComesWhereTheListEndsBeforeTheChosenPlanAndNowhereElse) {
    const Change& change = GetParam();
    const std::size_t count = plansShown(change.after).size();

    if (count > 0 && std::size_t(change.chosen) >= count)
        EXPECT_DEATH(make(change), "^Index out of range: the selected option is number " + std::to_string(change.chosen) + " of " +
                                       std::to_string(count) + "\n$");
    else
        make(change);
}

} // namespace
} // namespace proupsells::explorer
