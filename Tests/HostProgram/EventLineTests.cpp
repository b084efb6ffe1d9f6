// Every event line, key by key: whoever reads them with a program relies on them.
#include <gmock/gmock.h>

#include <sstream>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

const std::string entry = "\"screenTitle\":\"ProUpsell Phase 2: with Comparison List and Carousel Sept24\"";
const std::string store = "\"screenTitle\":\"Vela Pro Store Page\"";
const std::string referrer = "\"referrer\":\"Home - elementIDint(5)\"";
const std::string entitlement = "\"entitlement\":\"VELA_PRO\"";

std::vector<std::string> linesOf(const Json& offers, const char* steps) {
    const Outcome outcome = play({{"offers", offers}, {"steps", Json::parse(steps)}});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    std::vector<std::string> lines;
    std::istringstream stream(outcome.output);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string presented(const char* time, const std::string& controller, const std::string& content, const std::string& style) {
    return "{\"time\":" + std::string(time) + R"(,"event":"present","controller":")" + controller + R"(","content":")" + content +
           R"(","style":")" + style + R"(","size":[375,800]})";
}
std::string dismissed(const char* time, const std::string& controller, const std::string& content) {
    return "{\"time\":" + std::string(time) + R"(,"event":"dismiss","controller":")" + controller + R"(","content":")" + content +
           "\"}";
}
std::string tracked(const char* time, const std::string& operation, const std::string& arguments) {
    return "{\"time\":" + std::string(time) + R"(,"event":"tracker","operation":")" + operation + "\"," + arguments + "}";
}
std::string delegated(const char* time, const std::string& operation, const std::string& arguments = {}) {
    return "{\"time\":" + std::string(time) + R"(,"event":"delegate","operation":")" + operation + "\"" + arguments + "}";
}

const std::string paywall = "VelaProUpsellViewController";

} // namespace

TEST(EventLines, TellOfEveryTapOnThePaywall) {
    EXPECT_THAT(linesOf(sampleOffers(), R"([{"send": "restorePurchases"}, {"send": "privacyPolicy"}, {"send": "termsOfService"},
                                            {"send": "cancel"}])"),
                ElementsAre(presented("0", paywall, paywall, "formSheet"),
                            tracked("0.5", "trackUpsellViewed", referrer + "," + entry + "," + entitlement),
                            delegated("0.5", "proUpsellViewControllerDidTapRestore(_:)"),
                            tracked("0.5", "trackRestoreTapped", referrer + "," + entry),
                            delegated("0.5", "proUpsellViewControllerDidTapPrivacyPolicy(_:)"),
                            tracked("0.5", "trackPrivacyPolicyTapped", referrer + "," + entry),
                            delegated("0.5", "proUpsellViewControllerDidTapTermsOfService(_:)"),
                            tracked("0.5", "trackTermsOfServiceTapped", referrer + "," + entry),
                            tracked("0.5", "trackUpsellDismissed", referrer + "," + entry + "," + entitlement),
                            dismissed("0.5", paywall, paywall)));
}

TEST(EventLines, TellOfTheOtherScreens) {
    const std::string comparison = "ComparisonViewController", page = "VelaProStorePageViewController";
    EXPECT_THAT(linesOf(sampleOffers(), R"([{"send": "comparePlans"}, {"tap": {"identifier": "comparison.choosePlan"}},
                                            {"send": "whatIsPro"}, {"tap": {"identifier": "store.choosePlan"}},
                                            {"send": "whatIsPro"}, {"tap": {"identifier": "store.close"}}])"),
                ElementsAre(presented("0", paywall, paywall, "formSheet"),
                            tracked("0.5", "trackUpsellViewed", referrer + "," + entry + "," + entitlement),
                            presented("0.5", "UINavigationController", comparison, "pageSheet"),
                            tracked("0.5", "trackComparePlansTapped", referrer + "," + entry),
                            dismissed("1", "UINavigationController", comparison), presented("1.5", page, page, "pageSheet"),
                            tracked("2", "trackUpsellViewed", referrer + "," + store + "," + entitlement),
                            tracked("2", "trackChoosePlanTapped", referrer + "," + store + "," + entitlement),
                            dismissed("2", page, page), presented("2.5", page, page, "pageSheet"),
                            tracked("3", "trackUpsellViewed", referrer + "," + store + "," + entitlement),
                            tracked("3", "trackUpsellDismissed", referrer + "," + store + "," + entitlement),
                            dismissed("3", page, page)));
}

TEST(EventLines, TellOfAPurchaseWithEveryKeyOfItsPlan) {
    const Json offers = Json::parse(R"({"referrer": "Shop", "options": [
        {"SKU": "y", "type": "yearly", "price": "$9", "monthlyEffectivePrice": "$1", "introductoryPrice": "$2",
         "introductoryPeriodLength": "1 week", "hasUsedFreeTrial": true},
        {"SKU": "m", "type": "monthly", "price": "$3"}]})");
    const std::string yearly =
        R"("option":{"SKU":"y","type":"yearly","price":"$9","monthlyEffectivePrice":"$1","introductoryPrice":"$2",)"
        R"("introductoryPeriodLength":"1 week","hasUsedFreeTrial":true})";
    const std::string monthly = R"("option":{"SKU":"m","type":"monthly","price":"$3","introductoryPrice":null,)"
                                R"("introductoryPeriodLength":null,"hasUsedFreeTrial":false})";
    const std::string shop = "\"referrer\":\"Shop\"";
    std::vector<std::string> expected{presented("0", paywall, paywall, "formSheet"),
                                      tracked("0.5", "trackUpsellViewed", shop + "," + entry + "," + entitlement)};
    for (const std::string& option : {yearly, monthly}) {
        expected.push_back(delegated("0.5", "proUpsellViewController(_:didContinueWith:)", "," + option));
        expected.push_back(tracked("0.5", "trackSubscriptionOptionSelected", option + "," + shop + "," + entry));
        expected.push_back(tracked("0.5", "trackPurchaseTapped", option + "," + shop + "," + entry + "," + entitlement));
    }

    EXPECT_THAT(linesOf(offers, R"([{"tap": {"identifier": "subscribe"}}, {"tap": {"identifier": "plan.m"}},
                                    {"tap": {"identifier": "subscribe"}}])"),
                ElementsAreArray(expected));
}

TEST(EventLines, TellOfTheLog) {
    const auto lines = linesOf({{"options", Json::array()}, {"referrer", "Home"}}, "[]");

    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], R"line({"time":0,"event":"log","severity":4,"message":"UpsellViewController - tried to init without )line"
                        R"line(monthly & yearly subscription option","function":"init(subscriptionOptions:variant:)"})line");
}

} // namespace proupsells::tests
