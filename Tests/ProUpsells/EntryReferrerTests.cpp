// A controller that is presented again, from elsewhere.
#include <gmock/gmock.h>

#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using TapEvent = UpsellViewModel::TapEvent;

const std::string homeScreen = "Home - elementIDint(5)";
const std::string screenTitle = "ProUpsell Phase 2: with Comparison List and Carousel Sept24";

class EntryReferrer : public ::testing::Test {
protected:
    EntryReferrer() {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        entry->setTracker(tracker);
        entry->setDelegate(delegate);
        window->rootViewController()->present(entry, false);
        bed.settle();
        ledger.clear();
    }

    void send(TapEvent event) {
        dynamic_cast<UpsellViewController&>(*entry->children().at(0)).upsellViewModel()->tapEventOccurred.send(event);
    }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    Ledger ledger;
    std::shared_ptr<LedgerTracker> tracker = std::make_shared<LedgerTracker>(ledger);
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<VelaProUpsellViewController> entry =
        VelaProUpsellViewController::create({monthly(), yearly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{"Home", 5}, Entitlement::velaPRO, false);
};

TEST_F(EntryReferrer, TellsOfTheReferrerThatWasSetLast) {
    entry->setReferrer(Referrer{"Feed"});
    entry->setEntitlement(Entitlement::velaPRO);
    send({TapEvent::RestorePurchases{}});
    send({TapEvent::Cancel{}});

    EXPECT_EQ(entry->referrer(), Referrer{"Feed"});
    EXPECT_THAT(ledger, ElementsAre("delegate.didTapRestore()", "restoreTapped(Feed, " + screenTitle + ")",
                                    "dismissed(Feed, " + screenTitle + ", VELA_PRO)"));
    bed.runFor(2);
}

// The tracker may be told of a referrer that the host replaces from inside the call.
TEST_F(EntryReferrer, MayGetAnotherReferrerFromInsideATrackersCall) {
    struct Restless final : LedgerTracker {
        using LedgerTracker::LedgerTracker;
        void trackRestoreTapped(const Referrer& referrer, const std::string& title) override {
            LedgerTracker::trackRestoreTapped(referrer, title);
            entry->setReferrer(Referrer{std::string(100, 'x')});
            LedgerTracker::trackRestoreTapped(referrer, title);
        }
        VelaProUpsellViewController* entry = nullptr;
    };
    const auto restless = std::make_shared<Restless>(ledger);
    restless->entry = entry.get();
    entry->setTracker(restless);

    send({TapEvent::RestorePurchases{}});

    EXPECT_EQ(entry->referrer(), Referrer{std::string(100, 'x')});
    EXPECT_THAT(ledger, ElementsAre("delegate.didTapRestore()", "restoreTapped(" + homeScreen + ", " + screenTitle + ")",
                                    "restoreTapped(" + homeScreen + ", " + screenTitle + ")"));
}

} // namespace
} // namespace proupsells::tests
