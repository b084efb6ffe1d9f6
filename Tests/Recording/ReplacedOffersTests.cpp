// Other offers in a session that is shown.
#include <gmock/gmock.h>

#include <algorithm>

#include <nlohmann/json.hpp>

#include "Platform/Accessibility/Search.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"
#include "ProUpsells/iCloudSyncShelf.hpp"
#include "Tests/Recording/RecordedSession.hpp"
#include "Tooling/Driver.hpp"

using namespace proupsells;
using namespace hostprogram;

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ReplacedOffers : public testing::Test {
protected:
    ReplacedOffers() {
        session.present();
        driver.finishTransitions();
    }

    static Offers offersOf(const char* options) {
        const Json json{{"options", Json::parse(options)}};
        return readOffers(JsonCursor{json, "offers"});
    }
    void tap(const std::string& identifier) {
        const auto tree = session.window().semanticTree();
        accessibility::findByIdentifier(tree, identifier)->activate();
        driver.wait(1);
    }
    std::vector<std::string> chosen() {
        driver.wait(1);
        const auto tree = session.window().semanticTree();
        std::vector<std::string> result;
        for (const auto* control : accessibility::controls(tree))
            if (contains(control->traits, accessibility::Traits::selected)) result.push_back(control->identifier);
        return result;
    }

    static constexpr const char* both = R"([
        { "SKU": "y", "type": "yearly", "price": "$99.99", "monthlyEffectivePrice": "$8.33" },
        { "SKU": "m", "type": "monthly", "price": "$14.99" } ])";

    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};
    std::ostringstream events;
    HostSession session{offersOf(both), {}, {}, ffmpegbackend::Pace::exact, std::make_shared<EventLog>(events)};
    tooling::Driver driver{loop, session.window()};
};

TEST_F(ReplacedOffers, KeepTheChosenPlan) {
    tap("plan.m");

    session.replaceOffers(offersOf(R"([
        { "SKU": "y", "type": "yearly", "price": "$88", "monthlyEffectivePrice": "$7" }, { "SKU": "m", "type": "monthly", "price": "$9" } ])"));

    EXPECT_THAT(chosen(), ElementsAre("plan.m"));
}

TEST_F(ReplacedOffers, KeepTheChosenPlanAtAnotherPlace) {
    tap("plan.m");

    session.replaceOffers(offersOf(R"([
        { "SKU": "m", "type": "monthly", "price": "$9" }, { "SKU": "n", "type": "monthly", "price": "$8" } ])"));

    EXPECT_THAT(chosen(), ElementsAre("plan.m"));
}

TEST_F(ReplacedOffers, ChooseTheFirstPlanInThePlaceOfOneThatIsGone) {
    tap("plan.m");

    session.replaceOffers(offersOf(R"([{ "SKU": "y", "type": "yearly", "price": "$88", "monthlyEffectivePrice": "$7" }])"));

    EXPECT_THAT(chosen(), ElementsAre("plan.y"));
}

TEST_F(ReplacedOffers, MayBeNoneForAWhile) {
    tap("plan.m");

    session.replaceOffers(offersOf("[]"));
    EXPECT_THAT(chosen(), IsEmpty());
    session.replaceOffers(offersOf(R"([{ "SKU": "y", "type": "yearly", "price": "$88", "monthlyEffectivePrice": "$7" }])"));

    EXPECT_THAT(chosen(), ElementsAre("plan.y"));
}

TEST_F(ReplacedOffers, ComeBelowAnotherScreen) {
    tap("plan.m");
    session.open(StartScreen::comparison);
    driver.finishTransitions();

    session.replaceOffers(offersOf(R"([{ "SKU": "y", "type": "yearly", "price": "$88", "monthlyEffectivePrice": "$7" }])"));
    driver.press(host::Key::escape);
    driver.finishTransitions();

    EXPECT_THAT(chosen(), ElementsAre("plan.y"));
}

TEST_F(ReplacedOffers, StayWhereThePageWasScrolledTo) {
    Device low;
    low.size = {375, 500};
    session.setDevice(low);
    driver.wait(1);
    session.window().scroll({187, 250}, {0, 120});
    driver.wait(1);
    const auto offset = [&] {
        const auto tree = session.window().semanticTree();
        std::vector<double> offsets;
        for (const auto* node : accessibility::findAllByType(tree, "ScrollView"))
            if (node->scroll) offsets.push_back(node->scroll->contentOffset.y);
        return offsets;
    };
    const auto before = offset();

    session.replaceOffers(offersOf(R"([
        { "SKU": "y", "type": "yearly", "price": "$88", "monthlyEffectivePrice": "$7" }, { "SKU": "m", "type": "monthly", "price": "$9" } ])"));
    driver.wait(1);

    EXPECT_THAT(before, testing::Contains(120));
    EXPECT_EQ(offset(), before);
}

// --- Who the offers are from, and what for ---

TEST_F(ReplacedOffers, TellWhereThePersonCameFromFromThenOn) {
    Offers offers = offersOf(both);
    offers.referrer = Referrer{"Feed", "A1"};
    offers.showLoginOnSuccess = false;
    session.replaceOffers(offers);
    events.str("");

    tap("termsOfService");

    EXPECT_THAT(events.str(),
                testing::HasSubstr(R"--("operation":"trackTermsOfServiceTapped","referrer":"Feed - elementIDuuid(\"A1\")")--"));
    EXPECT_FALSE(session.entry().showLoginOnSuccess());
}

class ReplacedStorePage : public ReplacedOffers {
protected:
    ReplacedStorePage() {
        session.open(StartScreen::store);
        driver.finishTransitions();
        driver.wait(1);
        events.str("");
    }

    bool hasShelf() {
        const auto& page = dynamic_cast<VelaProStorePageViewController&>(*session.entry().presentedViewController());
        return std::any_of(page.shelves().begin(), page.shelves().end(),
                           [](const auto& shelf) { return dynamic_cast<const iCloudSyncShelf*>(shelf.get()); });
    }
    double offset() {
        driver.wait(1);
        const auto tree = session.window().semanticTree();
        for (const auto* node : accessibility::findAllByType(tree, "UICollectionView"))
            if (node->scroll) return node->scroll->contentOffset.y;
        return -1;
    }
    void scroll(double distance) {
        session.window().scroll({187, 400}, {0, distance});
        driver.wait(1);
    }
};

TEST_F(ReplacedStorePage, GetsAndLosesTheShelfAboutSynchronisation) {
    Offers offers = offersOf(both);
    ASSERT_FALSE(hasShelf());

    offers.shouldMentioniCloudSync = true;
    session.replaceOffers(offers);
    EXPECT_TRUE(hasShelf());

    offers.shouldMentioniCloudSync = false;
    session.replaceOffers(offers);
    EXPECT_FALSE(hasShelf());
}

TEST_F(ReplacedStorePage, StaysWhereItWasScrolledTo) {
    scroll(700);
    ASSERT_EQ(offset(), 700);
    Offers offers = offersOf(both);
    offers.shouldMentioniCloudSync = true;

    session.replaceOffers(offers);

    EXPECT_EQ(offset(), 700);
}

TEST_F(ReplacedStorePage, StaysAtItsEndWhereItGetsShorter) {
    Offers offers = offersOf(both);
    scroll(100'000);
    const double end = offset();
    offers.shouldMentioniCloudSync = true;
    session.replaceOffers(offers);
    scroll(100'000);
    ASSERT_GT(offset(), end);

    offers.shouldMentioniCloudSync = false;
    session.replaceOffers(offers);

    EXPECT_NEAR(offset(), end, 0.01);
}

TEST_F(ReplacedStorePage, TellsWhereThePersonCameFrom) {
    Offers offers = offersOf(both);
    offers.referrer = Referrer{"Feed"};
    session.replaceOffers(offers);
    tap("store.choosePlan");

    EXPECT_THAT(events.str(), testing::HasSubstr(R"("operation":"trackChoosePlanTapped","referrer":"Feed")"));
}

TEST_F(ReplacedStorePage, LeadsBackToThePaywall) {
    Offers offers = offersOf(both);
    offers.referrer = Referrer{"Feed"};
    session.replaceOffers(offers);

    const auto tree = session.window().semanticTree();
    accessibility::findByIdentifier(tree, "store.choosePlan")->activate();

    EXPECT_TRUE(session.window().isTransitioning()) << "it goes at once";
    driver.finishTransitions();
    EXPECT_THAT(chosen(), ElementsAre("plan.y"));
}

TEST_F(ReplacedStorePage, IsTheSamePageWhereOnlyPricesChange) {
    const auto* const page = session.entry().presentedViewController();
    session.replaceOffers(offersOf(R"([{ "SKU": "m", "type": "monthly", "price": "$9" }])"));

    EXPECT_EQ(events.str(), "");
    EXPECT_EQ(session.entry().presentedViewController(), page);
    const auto& options = dynamic_cast<const VelaProStorePageViewController&>(*page).subscriptionsOptions();
    ASSERT_EQ(options.size(), 1u);
    EXPECT_EQ(options[0].price(), "$9");
}

TEST_F(ReplacedOffers, LetAStorePageArriveFirst) {
    session.open(StartScreen::store);
    driver.wait(0.1);
    Offers offers = offersOf(both);
    offers.shouldMentioniCloudSync = true;

    session.replaceOffers(offers);
    driver.finishTransitions();

    const auto tree = session.window().semanticTree();
    EXPECT_TRUE(accessibility::findByIdentifier(tree, "store.choosePlan"));
}

} // namespace
