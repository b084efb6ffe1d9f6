// What a host is told when a screen has gone, and how a person leaves one without a button.
#include <gmock/gmock.h>

#include <thread>

#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Property;
using ::testing::SizeIs;
using TapEvent = UpsellViewModel::TapEvent;

// Writes down each closing, and buys, which ends with the host dismissing the screen.
class Shop final : public VelaProUpsellViewControllerDelegate {
public:
    void proUpsellViewControllerDidContinueWith(VelaProUpsellViewController& sender, const SubscriptionOption&) override {
        sender.dismiss(true);
    }
    void proUpsellViewControllerDidTapRestore(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapPrivacyPolicy(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidTapTermsOfService(VelaProUpsellViewController&) override {}
    void proUpsellViewControllerDidClose(VelaProUpsellViewController& sender, ClosingReason reason) override {
        reasons.push_back(reason);
        if (whenClosed) whenClosed(sender);
    }

    std::vector<ClosingReason> reasons;
    std::function<void(VelaProUpsellViewController&)> whenClosed;
};

std::shared_ptr<VelaProUpsellViewController> newEntry() {
    return VelaProUpsellViewController::create({yearly(), monthly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                               Referrer{"Home"}, Entitlement::velaPRO, true);
}

class Closing : public ::testing::Test {
protected:
    Closing() {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        entry->setDelegate(shop);
    }

    void present() {
        window->rootViewController()->present(entry, true);
        bed.runFor(1);
    }
    void embed() { window->setRootViewController(entry); }
    void send(TapEvent event) {
        dynamic_cast<UpsellViewController&>(*entry->children().at(0)).upsellViewModel()->tapEventOccurred.send(event);
    }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<Shop> shop = std::make_shared<Shop>();
    std::shared_ptr<VelaProUpsellViewController> entry = newEntry();
};

TEST_F(Closing, IsToldAfterTheAnimation) {
    present();
    send({TapEvent::Cancel{}});
    bed.runFor(0.4);
    EXPECT_THAT(shop->reasons, IsEmpty());
    bed.runFor(0.2);

    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Closing, SaysThatThePersonHasContinuedWithAPlan) {
    present();
    send({TapEvent::Purchase{yearly()}});
    bed.runFor(1);

    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::purchased));
}

TEST_F(Closing, SaysThatTheHostHasTakenItAway) {
    present();
    entry->dismiss(false);
    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::dismissed));

    present();
    window->setRootViewController(nullptr);
    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::dismissed, ClosingReason::dismissed));
}

TEST_F(Closing, ForgetsTheReasonOnceItWasTold) {
    present();
    send({TapEvent::Purchase{yearly()}});
    bed.runFor(1);
    present();
    entry->dismiss(false);

    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::purchased, ClosingReason::dismissed));
}

TEST_F(Closing, IsNotToldOfAScreenThatIsOnlyCovered) {
    present();
    for (const auto& event : {TapEvent{TapEvent::ComparePlans{}}, TapEvent{TapEvent::WhatIsPro{}}}) {
        send(event);
        bed.runFor(1);
        entry->dismiss(true); // the screen over it
        bed.runFor(1);
    }

    EXPECT_THAT(shop->reasons, IsEmpty());
}

TEST_F(Closing, MayLetGoOfEverythingFromInsideTheCall) {
    present();
    shop->whenClosed = [this](VelaProUpsellViewController&) {
        entry.reset();
        window.reset();
    };
    entry->dismiss(true);
    bed.runFor(1);

    EXPECT_EQ(window, nullptr);
}

// --- An embedded screen ---

TEST_F(Closing, OfAnEmbeddedScreenIsAskedOfItsContainer) {
    embed();
    int asked = 0;
    window->setRootDismissalHandler([&] {
        ++asked;
        window->setRootViewController(nullptr);
    });
    find(window->semanticTree(), "close").activate();
    bed.settle();

    EXPECT_EQ(asked, 1);
    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Closing, OfAnEmbeddedScreenDoesNothingWithoutAContainerThatListens) {
    embed();
    send({TapEvent::Cancel{}});
    bed.runFor(1);

    EXPECT_EQ(window->rootViewController(), entry.get());
    EXPECT_THAT(shop->reasons, IsEmpty());
}

// --- Escape ---

TEST_F(Closing, EscapeDoesWhatTheCloseButtonDoes) {
    Ledger ledger;
    const auto tracker = std::make_shared<LedgerTracker>(ledger);
    entry->setTracker(tracker);
    present();
    ledger.clear();

    EXPECT_TRUE(window->key(host::Key::escape));
    bed.runFor(1);

    EXPECT_THAT(ledger, ElementsAre(::testing::StartsWith("dismissed(")));
    EXPECT_THAT(shop->reasons, ElementsAre(ClosingReason::cancelled));
}

TEST_F(Closing, EscapeLeavesOnlyTheScreenInFront) {
    present();
    for (const auto& event : {TapEvent{TapEvent::ComparePlans{}}, TapEvent{TapEvent::WhatIsPro{}}}) {
        send(event);
        bed.runFor(1);
        ASSERT_NE(window->frontMostViewController(), entry.get());

        EXPECT_TRUE(window->key(host::Key::escape));
        bed.runFor(1);
        EXPECT_EQ(window->frontMostViewController(), entry.get());
    }
    EXPECT_THAT(shop->reasons, IsEmpty());
}

// --- What a host gets wrong ---

TEST_F(Closing, ADelegateThatNobodyHoldsIsReported) {
    entry->setDelegate(std::make_shared<Shop>());
    present();

    const auto records = bed.takeLogRecords();
    ASSERT_THAT(records, SizeIs(1));
    EXPECT_EQ(records[0].message,
              "VelaProUpsellViewController - the delegate is gone already: it is held weakly, so the host must keep it");
    EXPECT_EQ(records[0].function, "viewDidLoad()");
}

TEST_F(Closing, ATrackerThatNobodyHoldsIsReported) {
    Ledger ledger;
    entry->setTracker(std::make_shared<LedgerTracker>(ledger));
    present();

    const auto records = bed.takeLogRecords();
    ASSERT_THAT(records, SizeIs(1));
    EXPECT_EQ(records[0].message,
              "VelaProUpsellViewController - the tracker is gone already: it is held weakly, so the host must keep it");
}

TEST_F(Closing, ADelegateThatWasNeverSetOrGoesLaterIsNoMistake) {
    entry->setDelegate({});
    present();
    entry->dismiss(false);
    entry = newEntry();
    entry->setDelegate(shop);
    present();
    shop.reset();
    send({TapEvent::RestorePurchases{}});

    EXPECT_THAT(bed.takeLogRecords(), IsEmpty());
}

using ClosingDeathTest = Closing;

TEST_F(ClosingDeathTest, CallsFromAnotherThreadAreNamed) {
    EXPECT_DEATH(std::thread([this] { entry->setOptions({}); }).join(),
                 "VelaProUpsellViewController::setOptions must be called on the main thread");
    EXPECT_DEATH(std::thread([this] { entry->setDelegate({}); }).join(), "VelaProUpsellViewController::setDelegate must be called");
    EXPECT_DEATH(std::thread([] { newEntry(); }).join(), "VelaProUpsellViewController::create must be called");
    EXPECT_DEATH(std::thread([this] { entry->present(nullptr, true); }).join(), "UIViewController::present must be called");
}

} // namespace
} // namespace proupsells::tests
