// Which configurations of a screen are steered. Hardly anything else takes time where a comparison is whole in sight.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/AuditTour.hpp"
#include "Tests/Recording/RecordedSession.hpp"

namespace proupsells::hostprogram {

using graphics::ContentSizeCategory;

namespace {

AuditTour tourOf(StartScreen screen, AuditLedger& ledger) {
    const Json json = Json::parse(tests::sampleOffersText());
    return {screen, readOffers(JsonCursor{json, "offers"}), {.fonts = FontChoice::fixed}, ledger};
}

// On the clock of the tour.
double steeringTimeIn(const std::vector<geometry::Size>& sizes, const std::vector<ContentSizeCategory>& textSizes) {
    AuditLedger ledger;
    AuditTour tour = tourOf(StartScreen::comparison, ledger);
    const double begin_s = runloop::MainRunLoop::main().now_s();
    tour.run({.screens = {}, .locales = {}, .sizes = sizes, .textSizes = textSizes, .appearances = {graphics::ColorScheme::light}});
    return runloop::MainRunLoop::main().now_s() - begin_s;
}

} // namespace

TEST(TourOfAnAudit, SteersAtTheUsualAndTheLastTextSizeInTheFirstSize) {
    constexpr geometry::Size phone{375, 2000}, tablet{768, 2000};
    using enum ContentSizeCategory;
    const double once_s = steeringTimeIn({phone}, {large});
    constexpr double precision_s = 5; // for what is opened and closed
    ASSERT_GT(once_s, 2.5 * precision_s);

    EXPECT_NEAR(steeringTimeIn({phone}, {small}), once_s, precision_s);
    EXPECT_NEAR(steeringTimeIn({phone}, {medium, small}), once_s, precision_s);
    EXPECT_NEAR(steeringTimeIn({phone}, {large, small}), 2 * once_s, precision_s);
    EXPECT_NEAR(steeringTimeIn({phone}, {small, large, medium, extraLarge}), 2 * once_s, precision_s);
    EXPECT_NEAR(steeringTimeIn({phone, tablet}, {large}), once_s, precision_s);
    EXPECT_NEAR(steeringTimeIn({tablet, phone}, {small, large}), once_s, precision_s);
}

TEST(TourOfAnAudit, KnowsTheControlsByTheirIdentifiers) {
    AuditLedger ledger;

    EXPECT_THAT(tourOf(StartScreen::paywall, ledger).identifiers(),
                testing::IsSupersetOf({"close", "subscribe", "plan.pro.yearly", "plan.pro.monthly", "termsOfService"}));
    EXPECT_THAT(tourOf(StartScreen::store, ledger).identifiers(), testing::IsSupersetOf({"store.close", "store.choosePlan"}));
    EXPECT_THAT(tourOf(StartScreen::paywall, ledger).identifiers(), testing::Not(testing::Contains("disclaimer")));
}

} // namespace proupsells::hostprogram
