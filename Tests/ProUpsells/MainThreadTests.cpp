// Every call of a host's that counts on the main thread says so, by its name, where it comes from another one.
#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Backends/Headless/TestBed.hpp"
#include "ProUpsells/SubscriptionOptionFormatter.hpp"
#include "ProUpsells/Theme.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::tests {
namespace {

std::shared_ptr<VelaProUpsellViewController> entryController() {
    return VelaProUpsellViewController::create({yearly(), monthly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                               Referrer{"Home"}, Entitlement::velaPRO, true);
}

void onAnotherThread(const std::function<void()>& call) { std::thread(call).join(); }

TEST(MainThreadDeathTest, IsWantedByEveryCallOfAHost) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    const headless::TestBed bed;
    const auto entry = entryController();
    const UpsellViewModel model;
    const std::vector<std::pair<std::string, std::function<void()>>> calls = {
        {"setTheme", [] { setTheme({}); }},
        {"UpsellViewController::create",
         [] { UpsellViewController::create({yearly()}, UpsellViewController::Variant::comparisonPaywall); }},
        {"VelaProStorePageViewController::create",
         [] { VelaProStorePageViewController::create({yearly()}, Referrer{"Home"}, Entitlement::velaPRO); }},
        {"VelaProUpsellViewController::create", [] { entryController(); }},
        {"VelaProUpsellViewController::setReferrer", [&] { entry->setReferrer(Referrer{"Feed"}); }},
        {"VelaProUpsellViewController::setEntitlement", [&] { entry->setEntitlement(Entitlement::velaPRO); }},
        {"VelaProUpsellViewController::setTracker", [&] { entry->setTracker({}); }},
        {"VelaProUpsellViewController::setDelegate", [&] { entry->setDelegate({}); }},
        {"VelaProUpsellViewController::setOptions", [&] { entry->setOptions({monthly()}); }},
        {"SubscriptionOptionFormatter::makePickerRow", [&] { SubscriptionOptionFormatter::makePickerRow(yearly(), model); }},
        {"SubscriptionOptionFormatter::makePickerRows", [&] { SubscriptionOptionFormatter::makePickerRows(model); }},
        {"SubscriptionOptionFormatter::titleAndSubtitle",
         [] { SubscriptionOptionFormatter::titleAndSubtitle(yearly(), std::nullopt); }},
    };
    for (const auto& [name, call] : calls) EXPECT_DEATH(onAnotherThread(call), name + " must be called on the main thread");
}

} // namespace
} // namespace proupsells::tests
