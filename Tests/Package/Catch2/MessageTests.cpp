// Tests that fail, to see what Catch2 says then: check-messages reads it.

#if __has_include(<catch2/catch_all.hpp>)
#include <catch2/catch_all.hpp>
#else
#define CATCH_CONFIG_MAIN
#include <catch2/catch.hpp>
#endif

#include <ProUpsells/ScreenTest.hpp>

#include "Shop/Shop.hpp"

using namespace proupsells::screentest;

TEST_CASE("A matcher and a verdict that do not hold") {
    TestScreen screen;
    const auto purchases = std::make_shared<shop::Purchases>();
    screen.present(shop::newPaywall(purchases));

    CHECK_THAT(screen, shows("Buy"));
    CHECK_THAT(screen, isChecked("plan.pro.monthly"));
    CHECK(screen.tap("Buy"));
    CHECK_FALSE(screen.tap("close"));
}
