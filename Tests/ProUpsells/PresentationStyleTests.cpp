// Every screen of the module comes and goes with an animation.
#include <gmock/gmock.h>

#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProUpsellViewController.hpp"
#include "Tests/ProUpsells/StoreScreen.hpp"

namespace proupsells::tests {

using TapEvent = UpsellViewModel::TapEvent;

namespace {

class PresentationStyle : public StoreTest {
protected:
    PresentationStyle() {
        show(std::make_shared<uikit::UIViewController>());
        window->rootViewController()->present(entry, false);
        bed.settle();
    }

    void send(const TapEvent& event) {
        dynamic_cast<UpsellViewController&>(*entry->children().front()).upsellViewModel()->tapEventOccurred.send(event);
    }
    // What the entry controller presents once it has arrived.
    uikit::UIViewController* open(const TapEvent& event) {
        send(event);
        bed.runFor(1);
        return entry->presentedViewController();
    }

    std::shared_ptr<VelaProUpsellViewController> entry = VelaProUpsellViewController::create(
        twoPlans(), VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home"}, Entitlement::velaPRO, true);
};

} // namespace

TEST_F(PresentationStyle, LetsTheComparisonAndTheStorePageComeInByAnAnimation) {
    for (const TapEvent& event : {TapEvent{TapEvent::ComparePlans{}}, TapEvent{TapEvent::WhatIsPro{}}}) {
        send(event);
        bed.settle();
        uikit::UIViewController* const screen = entry->presentedViewController();
        ASSERT_TRUE(screen);
        EXPECT_TRUE(screen->isBeingPresented()) << screen->typeName();
        bed.runFor(0.25);
        EXPECT_TRUE(screen->isBeingPresented()) << screen->typeName();

        bed.runFor(0.5);
        EXPECT_FALSE(screen->isBeingPresented()) << screen->typeName();
        entry->dismiss(false);
        bed.settle();
    }
}

TEST_F(PresentationStyle, LetsEachButtonTakeItsScreenOutByAnAnimation) {
    const std::pair<TapEvent, const char*> ways[] = {{{TapEvent::ComparePlans{}}, "comparison.close"},
                                                     {{TapEvent::ComparePlans{}}, "comparison.choosePlan"},
                                                     {{TapEvent::WhatIsPro{}}, "store.close"},
                                                     {{TapEvent::WhatIsPro{}}, "store.choosePlan"}};
    for (const auto& [event, button] : ways) {
        SCOPED_TRACE(button);
        const uikit::UIViewController* const screen = open(event);
        ASSERT_TRUE(screen);

        find(button).activate();
        bed.settle();
        EXPECT_TRUE(screen->isBeingDismissed());
        EXPECT_EQ(entry->presentedViewController(), screen);
        bed.runFor(0.25);
        EXPECT_EQ(entry->presentedViewController(), screen);

        bed.runFor(0.5);
        EXPECT_FALSE(entry->presentedViewController());
    }
}

TEST_F(PresentationStyle, LetsThePaywallGoByAnAnimation) {
    find("close").activate();
    bed.settle();
    EXPECT_TRUE(entry->isBeingDismissed());
    bed.runFor(0.25);
    EXPECT_EQ(window->rootViewController()->presentedViewController(), entry.get());

    bed.runFor(0.5);

    EXPECT_FALSE(window->rootViewController()->presentedViewController());
}

} // namespace proupsells::tests
