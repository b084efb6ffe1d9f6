// The way to the comparison and to the store page and back, as the program tells it.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

using testing::ElementsAre;
using testing::SizeIs;

namespace {

const std::string paywall = "ProUpsell Phase 2: with Comparison List and Carousel Sept24", store = "Vela Pro Store Page";

// What a line says that comes after the paywall has been seen, without its time.
std::vector<Json> afterwards(const Outcome& outcome) {
    auto events = outcome.events();
    EXPECT_GE(events.size(), 2u) << outcome.errors;
    events.erase(events.begin(), events.begin() + 2);
    for (Json& event : events) event.erase("time");
    return events;
}

Json presented(const char* controller, const char* content, const char* style, const Json& size) {
    return {{"event", "present"}, {"controller", controller}, {"content", content}, {"style", style}, {"size", size}};
}
Json dismissed(const char* controller, const char* content) {
    return {{"event", "dismiss"}, {"controller", controller}, {"content", content}};
}
Json tracked(const char* operation, const std::string& title, bool hasEntitlement = true) {
    Json event{{"event", "tracker"}, {"operation", operation}, {"referrer", "Home - elementIDint(5)"}, {"screenTitle", title}};
    if (hasEntitlement) event["entitlement"] = "VELA_PRO";
    return event;
}
Json told(const char* operation) { return {{"event", "delegate"}, {"operation", operation}}; }

Json openedComparison() { return presented("UINavigationController", "ComparisonViewController", "pageSheet", {375, 800}); }
Json openedStore() {
    return presented("VelaProStorePageViewController", "VelaProStorePageViewController", "pageSheet", {375, 800});
}

std::vector<std::string> identifiersIn(const Json& node, const std::string& beginning) {
    std::vector<std::string> result;
    if (node.contains("identifier") && node["identifier"].get<std::string>().starts_with(beginning))
        result.push_back(node["identifier"]);
    if (node.contains("children"))
        for (const Json& child : node["children"])
            for (std::string& identifier : identifiersIn(child, beginning)) result.push_back(std::move(identifier));
    return result;
}

Json scripted(const char* text) { return {{"steps", Json::parse(text)}}; }

} // namespace

TEST(OtherScreens, ComparisonIsOpenedByATapAndClosedByBothOfItsButtons) {
    const Outcome outcome = play(scripted(R"([{"tap": {"identifier": "comparePlans"}}, {"tap": {"identifier": "comparison.close"}},
        {"tap": "Compare Plans: Free vs Pro"}, {"tap": "Choose Your Plan"}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const Json opened = openedComparison(), closed = dismissed("UINavigationController", "ComparisonViewController"),
               tap = tracked("trackComparePlansTapped", paywall, false);
    EXPECT_THAT(afterwards(outcome), ElementsAre(opened, tap, closed, opened, tap, closed));
}

TEST(OtherScreens, ComparisonShowsWhatIsOpenAndOpensAndClosesByTaps) {
    const Outcome outcome = play(scripted(R"([{"send": "comparePlans"}, {"dump": "screen"},
        {"tap": {"identifier": "comparison.category.Content And Assets"}}, {"wait": 1},
        {"tap": {"identifier": "comparison.category.Creation Tools"}}, {"wait": 1}, {"dump": "screen"}])"));

    const auto screens = outcome.events("screen");
    ASSERT_THAT(screens, SizeIs(2)) << outcome.errors;
    EXPECT_EQ(screens[0]["controller"], "UINavigationController");
    const Json &before = screens[0]["root"], &after = screens[1]["root"];
    EXPECT_THAT(identifiersIn(before, "comparison."),
                testing::UnorderedElementsAre("comparison.close", "comparison.choosePlan", "comparison.category.Content And Assets",
                                              "comparison.category.Creation Tools", "comparison.category.Business Growth Tools",
                                              "comparison.category.Automation (AI Features)"));
    EXPECT_THAT(texts(find(before, "comparison.category.Content And Assets")), SizeIs(8));
    EXPECT_THAT(texts(find(before, "comparison.category.Creation Tools")), ElementsAre("Creation Tools"));
    EXPECT_THAT(texts(find(after, "comparison.category.Content And Assets")), ElementsAre("Content And Assets"));
    EXPECT_THAT(texts(find(after, "comparison.category.Creation Tools")),
                ElementsAre("Creation Tools", "Video Creation", "Remove Background", "3 free", "Image Filters", "Shape Picker",
                            "Upload Custom Logo", "Custom Color Palette"));
    EXPECT_EQ(find(before, "comparison.choosePlan")["frame"], Json({16, 716, 343, 64}));
}

TEST(OtherScreens, StorePageIsOpenedAndClosedByBothOfItsButtons) {
    const Outcome outcome = play(scripted(R"([{"send": "whatIsPro"}, {"tap": {"identifier": "store.close"}},
        {"send": "whatIsPro"}, {"tap": "Choose Your Plan"}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const Json opened = openedStore(), closed = dismissed("VelaProStorePageViewController", "VelaProStorePageViewController"),
               viewed = tracked("trackUpsellViewed", store);
    EXPECT_THAT(afterwards(outcome), ElementsAre(opened, viewed, tracked("trackUpsellDismissed", store), closed, opened, viewed,
                                                 tracked("trackChoosePlanTapped", store), closed));
}

TEST(OtherScreens, StorePageNamesItsShelvesAndStrips) {
    const Outcome outcome = play({{"device", {{"size", {375, 3200}}}},
                                  {"steps", Json::parse(R"([{"send": "whatIsPro"}, {"wait": 2}, {"dump": "screen"}])")}});

    const Json root = outcome.events("screen").at(0)["root"];
    EXPECT_THAT(identifiersIn(root, "store."),
                testing::IsSupersetOf({"store.close", "store.choosePlan", "store.shelf.ProIntroHeaderViewShelf",
                                       "store.shelf.BrandAssetsShelf", "store.shelf.VideoImageLibrariesShelf",
                                       "store.strip.PremiumFontsShelf.0", "store.strip.PremiumFontsShelf.1",
                                       "store.strip.VideoImageLibrariesShelf.1"}));
    EXPECT_EQ(find(root, "store.shelf.BrandAssetsShelf")["frame"], Json({0, 220, 375, 315}));
    EXPECT_EQ(find(root, "store.close")["frame"], Json({23, 37, 30, 30}));
    // Two seconds after it appeared, and one step less.
    EXPECT_EQ(find(root, "store.strip.ShapesShelf.0")["contentOffset"], Json({120, 0}));
}

TEST(OtherScreens, StorePageMentionsSynchronisationWhereTheOffersOrTheHostSaySo) {
    const auto shelves = [](Json scenario) {
        scenario["device"] = {{"size", {375, 3400}}};
        return identifiersIn(play(scenario).events("screen").at(0)["root"], "store.shelf.").size();
    };
    Json mentioned = scripted(R"([{"send": "whatIsPro"}, {"dump": "screen"}])");
    EXPECT_EQ(shelves(mentioned), 8u);
    mentioned["offers"] = sampleOffers();
    mentioned["offers"]["shouldMentioniCloudSync"] = true;

    EXPECT_EQ(shelves(mentioned), 9u);
    EXPECT_EQ(shelves(scripted(R"([{"set": {"shouldMentioniCloudSync": true}}, {"send": "whatIsPro"}, {"dump": "screen"}])")), 9u);
    EXPECT_EQ(shelves(scripted(R"([{"send": "whatIsPro"}, {"set": {"shouldMentioniCloudSync": true}}, {"dump": "screen"}])")), 8u);
}

TEST(OtherScreens, EachEventThatIsSentIsPassedOn) {
    const std::map<std::string, std::vector<Json>> expected{
        {"cancel",
         {tracked("trackUpsellDismissed", paywall), dismissed("VelaProUpsellViewController", "VelaProUpsellViewController")}},
        {"restorePurchases", {told("proUpsellViewControllerDidTapRestore(_:)"), tracked("trackRestoreTapped", paywall, false)}},
        {"whatIsPro", {openedStore(), tracked("trackUpsellViewed", store)}},
        {"privacyPolicy",
         {told("proUpsellViewControllerDidTapPrivacyPolicy(_:)"), tracked("trackPrivacyPolicyTapped", paywall, false)}},
        {"termsOfService",
         {told("proUpsellViewControllerDidTapTermsOfService(_:)"), tracked("trackTermsOfServiceTapped", paywall, false)}},
        {"comparePlans", {openedComparison(), tracked("trackComparePlansTapped", paywall, false)}},
    };
    for (const auto& [event, lines] : expected) {
        const Outcome outcome = play({{"steps", {{{"send", event}}}}});

        EXPECT_EQ(outcome.status, 0) << event << outcome.errors;
        EXPECT_EQ(afterwards(outcome), lines) << event;
    }
}

} // namespace proupsells::tests
