// The three screens by keys alone: nobody buys by accident.
#include <gmock/gmock.h>

#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/Ledger.hpp"
#include "Tests/ProUpsells/Offers.hpp"
#include "Tests/ProUpsells/Screen.hpp"

namespace proupsells::tests {
namespace {

using host::Key;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Keyboard : public ::testing::Test {
protected:
    Keyboard() {
        entry->setDelegate(delegate);
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        window->rootViewController()->present(entry, true);
        bed.runFor(1);
    }
    ~Keyboard() override { window->setRootViewController(nullptr); }

    // The identifier of the control in focus; empty for none.
    std::string inFocus() {
        const accessibility::ReadingElement reading = window->reading();
        for (const accessibility::ReadingElement* element : accessibility::elementsOf(reading))
            if (element->isFocused) return element->identifier;
        return {};
    }
    void tabTo(const std::string& identifier) {
        for (int step = 0; step < 50 && inFocus() != identifier; ++step) window->key(Key::tab);
        ASSERT_EQ(inFocus(), identifier);
    }
    void press(Key key) {
        window->key(key);
        bed.runFor(1);
    }

    headless::TestBed bed;
    Ledger ledger;
    std::shared_ptr<LedgerDelegate> delegate = std::make_shared<LedgerDelegate>(ledger);
    std::shared_ptr<uikit::UIWindow> window = uikit::UIWindow::create({375, 800});
    std::shared_ptr<VelaProUpsellViewController> entry =
        VelaProUpsellViewController::create({yearly(), monthly()}, VelaProUpsellViewController::Variant::comparisonPaywall,
                                            Referrer{"Home"}, Entitlement::velaPRO, true);
};

TEST_F(Keyboard, BuysOnceWhileReturnIsHeld) {
    tabTo("subscribe");

    window->key(Key::activate);
    for (int repetition = 0; repetition < 24; ++repetition) window->key(Key::activate, true);
    bed.runFor(2);

    EXPECT_THAT(ledger, ElementsAre(::testing::StartsWith("delegate.didContinueWith(")));
}

// The control that has the focus when another screen comes, and one on that screen that leads back. The host opens the store page.
struct Way {
    const char* opener;
    const char* back;
    bool isToStore = false;
};

class KeyboardWays : public Keyboard, public ::testing::WithParamInterface<Way> {
protected:
    void go() {
        tabTo(GetParam().opener);
        if (GetParam().isToStore)
            dynamic_cast<UpsellViewController&>(*entry->children().front())
                .upsellViewModel()
                ->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
        else
            window->key(Key::activate);
        bed.runFor(1);
        ASSERT_NE(window->frontMostViewController(), entry.get());
    }
    void expectToBeBack() {
        EXPECT_EQ(window->frontMostViewController(), entry.get());
        EXPECT_EQ(inFocus(), GetParam().opener);
        EXPECT_THAT(ledger, IsEmpty());
    }
};

INSTANTIATE_TEST_SUITE_P(All, KeyboardWays,
                         ::testing::Values(Way{"comparePlans", "comparison.choosePlan"}, Way{"comparePlans", "comparison.close"},
                                           Way{"plan.pro.monthly", "store.choosePlan", true},
                                           Way{"subscribe", "store.close", true}));

TEST_P(KeyboardWays, LeadBackToTheControlThatHadTheFocus) {
    go();
    tabTo(GetParam().back);
    press(Key::activate);

    expectToBeBack();
}

// The person has not let go of the key yet.
TEST_P(KeyboardWays, DoNothingMoreWhileTheKeyIsHeld) {
    go();
    tabTo(GetParam().back);
    window->key(Key::activate);
    for (int repetition = 0; repetition < 40; ++repetition) {
        bed.runFor(0.04);
        window->key(Key::activate, true);
    }

    expectToBeBack();
}

TEST_P(KeyboardWays, LeadBackByEscape) {
    go();
    press(Key::escape);

    expectToBeBack();
}

TEST_P(KeyboardWays, BeginAtAControlOfTheScreenThatHasCome) {
    go();

    EXPECT_NE(inFocus(), "");
    EXPECT_NE(inFocus(), GetParam().opener);
}

} // namespace
} // namespace proupsells::tests
