// The same tests as in ScreenTest, with Catch2.

#if __has_include(<catch2/catch_all.hpp>)
#include <catch2/catch_all.hpp>
#else
#define CATCH_CONFIG_MAIN
#include <catch2/catch.hpp>
#endif

#include <ProUpsells/ScreenTest.hpp>

#include "Shop/Shop.hpp"

using namespace proupsells::screentest;

TEST_CASE("The paywall sells the plan that is chosen") {
    TestScreen screen;
    const auto purchases = std::make_shared<shop::Purchases>();
    screen.present(shop::newPaywall(purchases));

    CHECK_THAT(screen, isChecked("plan.pro.yearly"));
    CHECK(screen.tap("plan.pro.monthly"));
    CHECK(screen.tap("Subscribe Now"));
    CHECK_FALSE(screen.isShowing());
}

TEST_CASE("The paywall can be read and heard by everybody") {
    TestScreen screen({.size = {320, 568}, .appearance = proupsells::graphics::ColorScheme::dark});
    const auto purchases = std::make_shared<shop::Purchases>();
    screen.present(shop::newPaywall(purchases));

    CHECK_THAT(screen, passesAudit());
    CHECK_THAT(screen, says("radio button \"Monthly, $14.99 per month\", not checked, 2 of 2"));
    CHECK_THAT(screen, hides("Buy Now"));
}
