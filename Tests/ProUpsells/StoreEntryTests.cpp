// The way from the paywall to the store page and back.
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class StoreEntry : public StoreTest {
protected:
    StoreEntry() : tracker(std::make_shared<LedgerTracker>(calls)) {
        show(std::make_shared<uikit::UIViewController>());
        entry = VelaProUpsellViewController::create(twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall,
                                                    Referrer{"Home"}, Entitlement::velaPRO, true);
        entry->setTracker(tracker);
        window->rootViewController()->present(entry, true);
        bed.runFor(1);
        calls.clear();
    }

    std::shared_ptr<VelaProStorePageViewController> openStorePage() {
        auto& paywall = dynamic_cast<UpsellViewController&>(*entry->children().front());
        paywall.upsellViewModel()->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
        bed.runFor(1);
        auto* const page = dynamic_cast<VelaProStorePageViewController*>(entry->presentedViewController());
        return page ? uikit::strongReference(*page) : nullptr;
    }

    Ledger calls;
    std::shared_ptr<LedgerTracker> tracker;
    std::shared_ptr<VelaProUpsellViewController> entry;
};

} // namespace

TEST_F(StoreEntry, OpensThePageWithWhatItHas) {
    const auto page = openStorePage();

    ASSERT_TRUE(page);
    EXPECT_THAT(identifiers(page->subscriptionsOptions()), ElementsAre("pro.yearly", "pro.monthly"));
    EXPECT_EQ(page->selectedIndex(), 0);
    EXPECT_EQ(page->referrer().description(), "Home");
    EXPECT_EQ(page->tracker(), tracker);
    EXPECT_EQ(page->view()->frame().size, (geometry::Size{375, 800}));
    EXPECT_THAT(calls, ElementsAre("viewed(Home, Vela Pro Store Page, VELA_PRO)"));
}

TEST_F(StoreEntry, ComesBackThroughThePlanButton) {
    const auto page = openStorePage();
    calls.clear();

    tap("store.choosePlan");
    EXPECT_TRUE(page->isBeingDismissed());
    bed.runFor(1);

    EXPECT_FALSE(entry->presentedViewController());
    EXPECT_TRUE(entry->presentingViewController());
    EXPECT_THAT(calls, ElementsAre("choosePlanTapped(Home, Vela Pro Store Page, VELA_PRO)")); // the paywall does not appear anew
}

TEST_F(StoreEntry, LetsGoOfThePageOnceItIsClosed) {
    std::weak_ptr<VelaProStorePageViewController> weak = openStorePage();
    ASSERT_FALSE(weak.expired());

    tap("store.close");
    bed.runFor(1);

    EXPECT_TRUE(weak.expired());
    EXPECT_TRUE(entry->presentingViewController());
}

TEST_F(StoreEntry, OpensThePageWithoutATrackerToo) {
    tracker.reset();

    EXPECT_TRUE(openStorePage());
    EXPECT_THAT(calls, IsEmpty());
}

} // namespace proupsells::tests
