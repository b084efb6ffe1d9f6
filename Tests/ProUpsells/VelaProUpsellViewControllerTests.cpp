#include "ProUpsells/VelaProUpsellViewController.hpp"

#include <gmock/gmock.h>

#include "ProUpsells/ComparisonViewController.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using TapEvent = UpsellViewModel::TapEvent;

const std::string home = "Home - elementIDint(5)";
const std::string title = "ProUpsell Phase 2: with Comparison List and Carousel Sept24";

class EntryController : public ::testing::Test {
protected:
    EntryController() {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        entry = VelaProUpsellViewController::create({monthly(), lifetime(), yearly()},
                                                    VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5},
                                                    Entitlement::velaPRO, false);
    }

    void setHost() {
        entry->setTracker(tracker);
        entry->setDelegate(delegate);
    }
    void present() {
        window->rootViewController()->present(entry, false);
        bed.settle();
    }
    std::shared_ptr<UpsellViewController> paywall() const {
        return std::dynamic_pointer_cast<UpsellViewController>(entry->children().at(0));
    }
    void tap(geometry::Point where) {
        window->touch({host::TouchPhase::began, where, bed.now_s()});
        window->touch({host::TouchPhase::ended, where, bed.now_s()});
        bed.settle();
    }
    void send(TapEvent event) { paywall()->upsellViewModel()->tapEventOccurred.send(event); }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    Ledger ledger;
    std::shared_ptr<LedgerTracker> tracker = std::make_shared<LedgerTracker>(ledger);
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<LedgerObserver> observer = std::make_shared<LedgerObserver>(ledger);
    std::shared_ptr<VelaProUpsellViewController> entry;
};

TEST_F(EntryController, HandsOutWhatItWasMadeFrom) {
    EXPECT_EQ(entry->referrer(), (Referrer{"Home", 5}));
    EXPECT_EQ(entry->variant(), VelaProUpsellViewController::Variant::comparisonPaywall);
    EXPECT_EQ(entry->entitlement(), Entitlement::velaPRO);
    EXPECT_THAT(identifiers(entry->options()), ElementsAre("pro.monthly", "pro.forever", "pro.yearly"));
    EXPECT_EQ(entry->tracker(), nullptr);
    EXPECT_EQ(entry->delegate(), nullptr);
    EXPECT_FALSE(entry->annualSubscriptionPriceForComparisonWithPromotionalPrice().has_value());
    EXPECT_FALSE(entry->monthlySubscriptionPriceForComparisonWithPromotionalPrice().has_value());
    EXPECT_EQ(eventScreenTitle(entry->variant()), title);
}

TEST_F(EntryController, IsAFormSheetOf375By800) {
    EXPECT_EQ(entry->modalPresentationStyle(), uikit::UIModalPresentationStyle::formSheet);
    EXPECT_EQ(entry->preferredContentSize(), (geometry::Size{375, 800}));

    entry->setModalPresentationStyle(uikit::UIModalPresentationStyle::fullScreen);
    (void)entry->view();
    EXPECT_EQ(entry->modalPresentationStyle(), uikit::UIModalPresentationStyle::formSheet);
    EXPECT_EQ(entry->preferredContentSize(), (geometry::Size{375, 800}));
}

TEST_F(EntryController, EmbedsThePaywallWhenItsViewLoads) {
    EXPECT_THAT(entry->children(), IsEmpty());

    (void)entry->view();

    EXPECT_EQ(entry->children().size(), 1u);
    EXPECT_EQ(paywall()->delegate(), entry);
    EXPECT_THAT(identifiers(paywall()->upsellViewModel()->options.get()), ElementsAre("pro.yearly", "pro.monthly"));
}

TEST_F(EntryController, TracksThatItHasAppeared) {
    setHost();
    present();

    EXPECT_THAT(ledger, ElementsAre("viewed(" + home + ", " + title + ", VELA_PRO)"));
}

TEST_F(EntryController, ForwardsAndTracksEachEventInOrder) {
    setHost();
    present();
    ledger.clear();

    send({TapEvent::Purchase{yearly()}});
    send({TapEvent::RestorePurchases{}});
    send({TapEvent::PrivacyPolicy{}});
    send({TapEvent::TermsOfService{}});
    send({TapEvent::Cancel{}});

    const std::string arguments = "(" + home + ", " + title + ")";
    EXPECT_THAT(ledger,
                ElementsAre("delegate.didContinueWith(pro.yearly)", "optionSelected(pro.yearly, " + home + ", " + title + ")",
                            "purchaseTapped(pro.yearly, " + home + ", " + title + ", VELA_PRO)", "delegate.didTapRestore()",
                            "restoreTapped" + arguments, "delegate.didTapPrivacyPolicy()", "privacyPolicyTapped" + arguments,
                            "delegate.didTapTermsOfService()", "termsOfServiceTapped" + arguments,
                            "dismissed(" + home + ", " + title + ", VELA_PRO)"));
    bed.runFor(2);
    EXPECT_EQ(window->rootViewController()->presentedViewController(), nullptr);
}

TEST_F(EntryController, AnswersTheShorterTermsOperationAlike) {
    setHost();
    present();
    ledger.clear();

    entry->upsellViewControllerDidTapTermsOfService(*paywall());

    EXPECT_THAT(ledger, ElementsAre("delegate.didTapTermsOfService()", "termsOfServiceTapped(" + home + ", " + title + ")"));
}

TEST_F(EntryController, TracksPurchasesWithoutADelegate) {
    entry->setTracker(tracker);
    present();
    ledger.clear();

    send({TapEvent::Purchase{monthly()}});

    EXPECT_THAT(ledger, ElementsAre("optionSelected(pro.monthly, " + home + ", " + title + ")",
                                    "purchaseTapped(pro.monthly, " + home + ", " + title + ", VELA_PRO)"));
}

TEST_F(EntryController, TellsTheDelegateWithoutATracker) {
    entry->setDelegate(delegate);
    present();

    send({TapEvent::Purchase{monthly()}});
    send({TapEvent::RestorePurchases{}});
    send({TapEvent::PrivacyPolicy{}});
    send({TapEvent::TermsOfService{}});

    EXPECT_THAT(ledger, ElementsAre("delegate.didContinueWith(pro.monthly)", "delegate.didTapRestore()",
                                    "delegate.didTapPrivacyPolicy()", "delegate.didTapTermsOfService()"));
}

TEST_F(EntryController, IsSilentWithoutDelegateAndTracker) {
    present();

    for (const TapEvent& event : {TapEvent{TapEvent::Purchase{yearly()}}, TapEvent{TapEvent::RestorePurchases{}},
                                  TapEvent{TapEvent::PrivacyPolicy{}}, TapEvent{TapEvent::TermsOfService{}}})
        send(event);
    EXPECT_TRUE(!entry->presentedViewController() && !entry->isBeingDismissed());

    send({TapEvent::ComparePlans{}});
    EXPECT_NE(entry->presentedViewController(), nullptr);
    bed.runFor(2);
}

TEST_F(EntryController, HoldsDelegateAndTrackerWeakly) {
    setHost();
    present();
    ledger.clear();

    delegate.reset();
    send({TapEvent::RestorePurchases{}});
    tracker.reset();
    send({TapEvent::RestorePurchases{}});

    EXPECT_THAT(ledger, ElementsAre("restoreTapped(" + home + ", " + title + ")"));
    EXPECT_EQ(entry->tracker(), nullptr);
}

TEST_F(EntryController, PassesComparisonPricesOnBeforeAndAfterLoading) {
    entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119");
    (void)entry->view();
    EXPECT_EQ(paywall()->annualSubscriptionPriceForComparisonWithPromotionalPrice(), "$119");
    EXPECT_FALSE(paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice().has_value());

    entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice("$19");
    entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::nullopt);
    EXPECT_EQ(paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$19");
    EXPECT_FALSE(paywall()->annualSubscriptionPriceForComparisonWithPromotionalPrice().has_value());
}

TEST_F(EntryController, PassesTheMonthlyComparisonPriceOnWhenItLoads) {
    entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice("$19");
    (void)entry->view();

    EXPECT_EQ(paywall()->monthlySubscriptionPriceForComparisonWithPromotionalPrice(), "$19");
}

TEST_F(EntryController, IsASheetOf375By800WhateverItWasBeforeItLoads) {
    entry->setModalPresentationStyle(uikit::UIModalPresentationStyle::fullScreen);
    entry->setPreferredContentSize({100, 100});
    (void)entry->view();

    EXPECT_EQ(entry->modalPresentationStyle(), uikit::UIModalPresentationStyle::formSheet);
    EXPECT_EQ(entry->preferredContentSize(), (geometry::Size{375, 800}));
}

TEST_F(EntryController, PassesOptionsOnBeforeAndAfterLoading) {
    entry->setOptions({lifetime(), monthly("$1", {}, "first")});
    (void)entry->view();
    EXPECT_THAT(identifiers(paywall()->upsellViewModel()->options.get()), ElementsAre("first"));

    entry->setOptions({monthly("$1", {}, "m"), yearly("$1", {}, "y")});
    EXPECT_THAT(identifiers(paywall()->upsellViewModel()->options.get()), ElementsAre("y", "m"));
    EXPECT_THAT(identifiers(entry->options()), ElementsAre("m", "y"));
}

// Only the first child counts, so a paywall behind another one keeps what it was made from.
TEST_F(EntryController, LooksForThePaywallInItsFirstChildAlone) {
    entry->addChild(std::make_shared<uikit::UIViewController>());
    entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice("$19");
    (void)entry->view();
    const auto second = std::dynamic_pointer_cast<UpsellViewController>(entry->children().at(1));
    ASSERT_TRUE(second);

    entry->setOptions({yearly()});
    entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$1");

    EXPECT_THAT(identifiers(second->upsellViewModel()->options.get()), ElementsAre("pro.yearly", "pro.monthly"));
    EXPECT_FALSE(second->annualSubscriptionPriceForComparisonWithPromotionalPrice().has_value());
    EXPECT_FALSE(second->monthlySubscriptionPriceForComparisonWithPromotionalPrice().has_value());
}

TEST_F(EntryController, OpensTheComparisonBeforeItTracksTheTap) {
    setHost();
    window->setPresentationObserver(observer);
    present();
    ledger.clear();

    send({TapEvent::ComparePlans{}});
    bed.runFor(2);

    EXPECT_THAT(ledger, ElementsAre("present ComparisonViewController", "comparePlansTapped(" + home + ", " + title + ")"));
    EXPECT_EQ(window->frontMostViewController()->typeName(), "UINavigationController");
    EXPECT_TRUE(has(window->semanticTree(), "comparison.choosePlan"));
}

TEST_F(EntryController, ClosesTheComparisonByBothOfItsButtons) {
    setHost();
    window->setPresentationObserver(observer);
    present();

    for (const char* button : {"comparison.close", "comparison.choosePlan"}) {
        send({TapEvent::ComparePlans{}});
        bed.runFor(2);
        ledger.clear();
        find(window->semanticTree(), button).activate();
        bed.runFor(2);
        EXPECT_THAT(ledger, ElementsAre("dismiss ComparisonViewController")) << button;
        EXPECT_EQ(window->frontMostViewController(), entry.get()) << button;
    }
}

TEST_F(EntryController, GetsNoAppearanceCallsFromTheComparison) {
    setHost();
    present();
    ledger.clear();

    send({TapEvent::ComparePlans{}});
    bed.runFor(2);
    find(window->semanticTree(), "comparison.close").activate();
    bed.runFor(2);

    EXPECT_THAT(ledger, ElementsAre("comparePlansTapped(" + home + ", " + title + ")"));
}

TEST_F(EntryController, KeepsTheCarouselsTimeUnderTheComparison) {
    present();
    send({TapEvent::ComparePlans{}});
    bed.runUntil(16);
    find(window->semanticTree(), "comparison.close").activate();
    bed.runUntil(19);

    EXPECT_THAT(texts(firstOfType(window->semanticTree(), "HeaderCarousel")),
                Contains("Grow your business with Custom Domains and Link in Bio."));
}

TEST_F(EntryController, SurvivesADelegateThatReleasesEverythingFromInsideACall) {
    setHost();
    present();
    ledger.clear();
    delegate->duringCall = [&](VelaProUpsellViewController&) {
        window->setRootViewController(nullptr);
        entry.reset();
    };
    const auto model = paywall()->upsellViewModel();

    model->tapEventOccurred.send({TapEvent::Purchase{yearly()}});
    bed.settle();

    // The calls that belong to the tap are still made.
    EXPECT_EQ(ledger.size(), 3u);
    model->tapEventOccurred.send({TapEvent::Purchase{yearly()}});
    EXPECT_EQ(ledger.size(), 3u);
}

TEST_F(EntryController, SurvivesARealTapThatReleasesEverything) {
    setHost();
    present();
    delegate->duringCall = [&](VelaProUpsellViewController&) {
        window->setRootViewController(nullptr);
        entry.reset();
    };
    const auto where = find(window->semanticTree(), "subscribe").frame.center();
    ledger.clear();

    tap(where);

    EXPECT_EQ(ledger.size(), 3u);
}

TEST_F(EntryController, SurvivesADelegateThatChangesOptionsOrDismissesFromInsideACall) {
    setHost();
    present();
    ledger.clear();
    delegate->duringCall = [](VelaProUpsellViewController& sender) {
        sender.setOptions({monthly("$1", {}, "new")});
        sender.dismiss(true);
    };

    send({TapEvent::Purchase{paywall()->upsellViewModel()->options.get()[0]}});
    bed.runFor(2);

    EXPECT_THAT(ledger,
                ElementsAre("delegate.didContinueWith(pro.yearly)", "optionSelected(pro.yearly, " + home + ", " + title + ")",
                            "purchaseTapped(pro.yearly, " + home + ", " + title + ", VELA_PRO)"));
    EXPECT_EQ(window->rootViewController()->presentedViewController(), nullptr);
}

TEST_F(EntryController, SellsNothingMoreOnceADelegateHasEmptiedTheOptionsFromInsideACall) {
    setHost();
    present();
    ledger.clear();
    delegate->duringCall = [](VelaProUpsellViewController& sender) { sender.setOptions({}); };
    const auto subscribe = find(window->semanticTree(), "subscribe");

    tap(subscribe.frame.center());
    tap(find(window->semanticTree(), "subscribe").frame.center());
    subscribe.activate();

    EXPECT_THAT(ledger,
                ElementsAre("delegate.didContinueWith(pro.yearly)", "optionSelected(pro.yearly, " + home + ", " + title + ")",
                            "purchaseTapped(pro.yearly, " + home + ", " + title + ", VELA_PRO)"));
}

TEST_F(EntryController, SellsThePlanThatADelegateHasPutInPlaceFromInsideACall) {
    setHost();
    present();
    delegate->duringCall = [](VelaProUpsellViewController& sender) { sender.setOptions({monthly("$1", {}, "new")}); };
    tap(find(window->semanticTree(), "subscribe").frame.center());
    ledger.clear();

    tap(find(window->semanticTree(), "subscribe").frame.center());

    EXPECT_THAT(ledger, ElementsAre("delegate.didContinueWith(new)", "optionSelected(new, " + home + ", " + title + ")",
                                    "purchaseTapped(new, " + home + ", " + title + ", VELA_PRO)"));
}

TEST_F(EntryController, LeavesNothingBehindWhenItIsClosed) {
    setHost();
    present();
    const std::weak_ptr<VelaProUpsellViewController> watchedEntry = entry;
    const std::weak_ptr<UpsellViewController> watchedPaywall = paywall();
    entry.reset();

    watchedPaywall.lock()->upsellViewModel()->tapEventOccurred.send({TapEvent::Cancel{}});
    bed.runFor(3);

    EXPECT_TRUE(watchedEntry.expired());
    EXPECT_TRUE(watchedPaywall.expired());
    EXPECT_FALSE(bed.loop().nextDueTime_s().has_value());
}

TEST_F(EntryController, CarriesPromotionAndPersonalizedInfoForTheHost) {
    const Promotion promotion{"name", "title", "subtitle", "https://example.com/image"};
    const PersonalizedInfo info{nullptr, "tagline"};

    EXPECT_EQ(promotion.name() + promotion.upsellTitle() + promotion.upsellSubtitle() + promotion.upsellImageURL(),
              "nametitlesubtitlehttps://example.com/image");
    EXPECT_EQ(info.tagline(), "tagline");
    EXPECT_EQ(info.image(), nullptr);
}

TEST(EntryControllerDeathTest, CannotBeMadeFromAnArchive) {
    EXPECT_DEATH((void)VelaProUpsellViewController::create(foundation::Coder{}), "init\\(coder:\\) has not been implemented");
}

} // namespace
} // namespace proupsells::tests
