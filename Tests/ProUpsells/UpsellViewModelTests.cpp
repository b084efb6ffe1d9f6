#include "ProUpsells/UpsellViewModel.hpp"

#include <gmock/gmock.h>

#include "ProUpsells/SubscriptionOptionFormatter.hpp"
#include "ProUpsells/UpsellEnvironment.hpp"
#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using TapEvent = UpsellViewModel::TapEvent;

TEST(UpsellViewModel, StartsEmpty) {
    UpsellViewModel model;

    EXPECT_TRUE(model.options->empty());
    EXPECT_FALSE(model.annualSubscriptionPriceForComparisonWithPromotionalPrice.get().has_value());
    EXPECT_FALSE(model.monthlySubscriptionPriceForComparisonWithPromotionalPrice.get().has_value());
    EXPECT_EQ(SubscriptionOptionFormatter::savingsPercentage(model), 45);
}

TEST(UpsellViewModel, AnnouncesEachChangeBeforeItTakesEffect) {
    UpsellViewModel model;
    std::vector<std::size_t> countsAtAnnouncement;
    const auto token = model.objectWillChange.sink([&](auto&) { countsAtAnnouncement.push_back(model.options->size()); });

    model.options = std::vector{yearly()};
    model.annualSubscriptionPriceForComparisonWithPromotionalPrice = "$1";
    model.monthlySubscriptionPriceForComparisonWithPromotionalPrice = "$1";

    EXPECT_THAT(countsAtAnnouncement, ElementsAre(0, 1, 1));
}

TEST(UpsellViewModel, SendsThePlanAsItWasAtTheTap) {
    UpsellViewModel model;
    model.options = std::vector{yearly("$99"), monthly()};
    std::vector<TapEvent> events;
    const auto token = model.tapEventOccurred.sink([&](const TapEvent& event) {
        model.options = std::vector{monthly()};
        events.push_back(event);
    });

    model.tapEventOccurred.send({TapEvent::Purchase{model.options.get()[0]}});

    EXPECT_THAT(events, ElementsAre(TapEvent{TapEvent::Purchase{yearly("$99")}}));
}

TEST(UpsellViewModel, KeepsNoEventForLaterSubscribers) {
    UpsellViewModel model;
    std::vector<TapEvent> events;

    model.tapEventOccurred.send({TapEvent::Cancel{}});
    const auto token = model.tapEventOccurred.sink([&](const TapEvent& event) { events.push_back(event); });
    model.tapEventOccurred.send({TapEvent::WhatIsPro{}});

    EXPECT_THAT(events, ElementsAre(TapEvent{TapEvent::WhatIsPro{}}));
}

TEST(UpsellViewModel, ListsItsEventsInOrder) {
    EXPECT_EQ((TapEvent{TapEvent::Purchase{yearly()}}).kind.index(), 0u);
    EXPECT_EQ((TapEvent{TapEvent::Cancel{}}).kind.index(), 1u);
    EXPECT_EQ((TapEvent{TapEvent::RestorePurchases{}}).kind.index(), 2u);
    EXPECT_EQ((TapEvent{TapEvent::WhatIsPro{}}).kind.index(), 3u);
    EXPECT_EQ((TapEvent{TapEvent::PrivacyPolicy{}}).kind.index(), 4u);
    EXPECT_EQ((TapEvent{TapEvent::TermsOfService{}}).kind.index(), 5u);
    EXPECT_EQ((TapEvent{TapEvent::ComparePlans{}}).kind.index(), 6u);
}

TEST(UpsellEnvironment, IsTealAndAnnouncesChanges) {
    UpsellEnvironment environment;
    int announcements = 0;
    const auto token = environment.objectWillChange.sink([&](auto&) { ++announcements; });

    environment.environment = UpsellEnvironment::Environment::marwickTeal;

    EXPECT_EQ(environment.environment.get(), UpsellEnvironment::Environment::marwickTeal);
    EXPECT_EQ(announcements, 1);
}

} // namespace
} // namespace proupsells::tests
