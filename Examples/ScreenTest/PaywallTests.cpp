// A host's tests of its paywall: what a customer sees, taps and hears, without a window.

#include <ProUpsells/ScreenTest.hpp>
#include <gmock/gmock.h>

#include "Shop/Shop.hpp"

using namespace proupsells::screentest;

TEST(Paywall, SellsThePlanThatIsChosen) {
    TestScreen screen;
    const auto purchases = std::make_shared<shop::Purchases>();
    screen.present(shop::newPaywall(purchases));

    EXPECT_THAT(screen, isChecked("plan.pro.yearly"));
    EXPECT_TRUE(screen.tap("plan.pro.monthly"));
    EXPECT_TRUE(screen.tap("Subscribe Now"));
    EXPECT_FALSE(screen.isShowing());
}

TEST(Paywall, CanBeReadAndHeardByEverybody) {
    TestScreen screen({.size = {320, 568}, .appearance = proupsells::graphics::ColorScheme::dark});
    const auto purchases = std::make_shared<shop::Purchases>();
    screen.present(shop::newPaywall(purchases));

    EXPECT_THAT(screen, passesAudit());
    EXPECT_THAT(screen, says("radio button \"Monthly, $14.99 per month\", not checked, 2 of 2"));
}
