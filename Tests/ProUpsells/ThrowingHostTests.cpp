// A delegate or tracker that throws: the exception reaches whoever runs the loop or hands in the touch, and everything goes on.
#include <gmock/gmock.h>

#include <stdexcept>

#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

class ThrowingParty : public ::testing::Test {
protected:
    ThrowingParty() {
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        entry = VelaProUpsellViewController::create({monthly(), yearly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                                    Referrer{"Home"}, Entitlement::velaPRO, false);
        entry->setTracker(tracker);
        entry->setDelegate(delegate);
    }
    ~ThrowingParty() override { window->setRootViewController(nullptr); }

    // Every call throws.
    void throwFromNowOn() {
        tracker->duringCall = [] { throw std::runtime_error("the tracker's"); };
        delegate->duringCall = [](VelaProUpsellViewController&) { throw std::runtime_error("the delegate's"); };
    }
    void behave() {
        tracker->duringCall = nullptr;
        delegate->duringCall = nullptr;
    }
    // What is thrown is counted and let go.
    void swallowing(const std::function<void()>& action) {
        try {
            action();
        } catch (const std::runtime_error&) {
            ++thrownCount;
        }
    }
    void wait(double duration_s) {
        const double end_s = bed.now_s() + duration_s;
        while (bed.now_s() < end_s) swallowing([&] { bed.runUntil(end_s); });
    }
    void present() {
        swallowing([&] { window->rootViewController()->present(entry, true); });
        wait(1);
    }
    void tap(std::string_view identifier) {
        const geometry::Point place = find(window->semanticTree(), identifier).frame.center();
        swallowing([&] { window->touch({host::TouchPhase::began, place, bed.now_s()}); });
        swallowing([&] { window->touch({host::TouchPhase::ended, place, bed.now_s()}); });
        wait(1);
    }
    bool has(std::string_view identifier) { return tests::has(window->semanticTree(), identifier); }

    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    Ledger ledger;
    std::shared_ptr<LedgerTracker> tracker = std::make_shared<LedgerTracker>(ledger);
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<VelaProUpsellViewController> entry;
    int thrownCount = 0;
};

// Calls by their names alone.
std::vector<std::string> names(const Ledger& ledger) {
    std::vector<std::string> result;
    for (const std::string& call : ledger) result.push_back(call.substr(0, call.find('(')));
    return result;
}

TEST_F(ThrowingParty, WhereThePaywallAppearsLeavesItThere) {
    throwFromNowOn();
    present();
    behave();

    EXPECT_EQ(thrownCount, 1);
    EXPECT_EQ(window->frontMostViewController(), entry.get());
    EXPECT_FALSE(window->isTransitioning());
    tap("close");
    EXPECT_EQ(window->frontMostViewController(), window->rootViewController());
}

TEST_F(ThrowingParty, IsAskedAgainByTheNextTap) {
    present();
    for (const char* button : {"subscribe", "restorePurchases", "privacyPolicy", "termsOfService"}) {
        SCOPED_TRACE(button);
        throwFromNowOn();
        thrownCount = 0;
        ledger.clear();
        tap(button);
        EXPECT_EQ(thrownCount, 1);
        EXPECT_THAT(ledger, ::testing::SizeIs(1));
        const Ledger thrown = std::exchange(ledger, {});

        behave();
        tap(button);
        ASSERT_THAT(ledger, ::testing::Not(::testing::IsEmpty()));
        EXPECT_EQ(ledger.front(), thrown.front());
        EXPECT_GE(ledger.size(), 2u);
    }
}

TEST_F(ThrowingParty, DoesNotStopTheComparisonOrTheStorePage) {
    present();
    throwFromNowOn();
    tap("comparePlans");
    ASSERT_TRUE(has("comparison.close"));
    tap("comparison.close");
    ASSERT_TRUE(has("subscribe"));
    const auto paywall = std::dynamic_pointer_cast<UpsellViewController>(entry->children().at(0));
    paywall->upsellViewModel()->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
    wait(1);
    ASSERT_TRUE(has("store.close"));
    behave();
    tap("store.close");

    EXPECT_TRUE(has("subscribe"));
    EXPECT_FALSE(has("store.close"));
}

TEST_F(ThrowingParty, CanCloseThePaywallByTheSecondTap) {
    present();
    throwFromNowOn();
    tap("close");
    behave();
    if (has("close")) tap("close");

    EXPECT_EQ(window->frontMostViewController(), window->rootViewController());
    EXPECT_EQ(names(ledger).back(), "dismissed");
}

TEST_F(ThrowingParty, LeavesTheCarouselTurning) {
    present();
    throwFromNowOn();
    tap("subscribe");
    const auto before = find(window->semanticTree(), "carousel.pageControl").value;
    wait(5);

    EXPECT_NE(find(window->semanticTree(), "carousel.pageControl").value, before);
}

} // namespace
} // namespace proupsells::tests
