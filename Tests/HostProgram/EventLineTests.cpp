// Every event line, key by key: whoever reads them with a program relies on them.
#include <gmock/gmock.h>

#include <sstream>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

const std::string entryTitle = "\"screenTitle\":\"ProUpsell Phase 2: with Comparison List and Carousel Sept24\"";
const std::string storeTitle = "\"screenTitle\":\"Vela Pro Store Page\"";
const std::string homeReferrer = "\"referrer\":\"Home - elementIDint(5)\"";
const std::string proEntitlement = "\"entitlement\":\"VELA_PRO\"";

std::vector<std::string> eventLinesOf(const Json& offers, const char* steps) {
    const Outcome outcome = play({{"offers", offers}, {"steps", Json::parse(steps)}});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    std::vector<std::string> lines;
    std::istringstream stream(outcome.output);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string presentLine(const char* time, const std::string& controller, const std::string& content, const std::string& style) {
    return "{\"time\":" + std::string(time) + R"(,"event":"present","controller":")" + controller + R"(","content":")" + content +
           R"(","style":")" + style + R"(","size":[375,800]})";
}
std::string dismissLine(const char* time, const std::string& controller, const std::string& content) {
    return "{\"time\":" + std::string(time) + R"(,"event":"dismiss","controller":")" + controller + R"(","content":")" + content +
           "\"}";
}
std::string trackerLine(const char* time, const std::string& operation, const std::string& arguments) {
    return "{\"time\":" + std::string(time) + R"(,"event":"tracker","operation":")" + operation + "\"," + arguments + "}";
}
std::string delegateLine(const char* time, const std::string& operation, const std::string& arguments = {}) {
    return "{\"time\":" + std::string(time) + R"(,"event":"delegate","operation":")" + operation + "\"" + arguments + "}";
}

const std::string entryName = "VelaProUpsellViewController";

} // namespace

TEST(EventLines, TellOfEveryTapOnThePaywall) {
    EXPECT_THAT(
        eventLinesOf(sampleOffers(), R"([{"send": "restorePurchases"}, {"send": "privacyPolicy"}, {"send": "termsOfService"},
                                            {"send": "cancel"}])"),
        ElementsAre(presentLine("0", entryName, entryName, "formSheet"),
                    trackerLine("0.5", "trackUpsellViewed", homeReferrer + "," + entryTitle + "," + proEntitlement),
                    delegateLine("0.5", "proUpsellViewControllerDidTapRestore(_:)"),
                    trackerLine("0.5", "trackRestoreTapped", homeReferrer + "," + entryTitle),
                    delegateLine("0.5", "proUpsellViewControllerDidTapPrivacyPolicy(_:)"),
                    trackerLine("0.5", "trackPrivacyPolicyTapped", homeReferrer + "," + entryTitle),
                    delegateLine("0.5", "proUpsellViewControllerDidTapTermsOfService(_:)"),
                    trackerLine("0.5", "trackTermsOfServiceTapped", homeReferrer + "," + entryTitle),
                    trackerLine("0.5", "trackUpsellDismissed", homeReferrer + "," + entryTitle + "," + proEntitlement),
                    dismissLine("0.5", entryName, entryName)));
}

TEST(EventLines, TellOfTheOtherScreens) {
    const std::string comparison = "ComparisonViewController", page = "VelaProStorePageViewController";
    EXPECT_THAT(eventLinesOf(sampleOffers(), R"([{"send": "comparePlans"}, {"tap": {"identifier": "comparison.choosePlan"}},
                                            {"send": "whatIsPro"}, {"tap": {"identifier": "store.choosePlan"}},
                                            {"send": "whatIsPro"}, {"tap": {"identifier": "store.close"}}])"),
                ElementsAre(presentLine("0", entryName, entryName, "formSheet"),
                            trackerLine("0.5", "trackUpsellViewed", homeReferrer + "," + entryTitle + "," + proEntitlement),
                            presentLine("0.5", "UINavigationController", comparison, "pageSheet"),
                            trackerLine("0.5", "trackComparePlansTapped", homeReferrer + "," + entryTitle),
                            dismissLine("1", "UINavigationController", comparison), presentLine("1.5", page, page, "pageSheet"),
                            trackerLine("2", "trackUpsellViewed", homeReferrer + "," + storeTitle + "," + proEntitlement),
                            trackerLine("2", "trackChoosePlanTapped", homeReferrer + "," + storeTitle + "," + proEntitlement),
                            dismissLine("2", page, page), presentLine("2.5", page, page, "pageSheet"),
                            trackerLine("3", "trackUpsellViewed", homeReferrer + "," + storeTitle + "," + proEntitlement),
                            trackerLine("3", "trackUpsellDismissed", homeReferrer + "," + storeTitle + "," + proEntitlement),
                            dismissLine("3", page, page)));
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
    std::vector<std::string> expected{presentLine("0", entryName, entryName, "formSheet"),
                                      trackerLine("0.5", "trackUpsellViewed", shop + "," + entryTitle + "," + proEntitlement)};
    for (const std::string& option : {yearly, monthly}) {
        expected.push_back(delegateLine("0.5", "proUpsellViewController(_:didContinueWith:)", "," + option));
        expected.push_back(trackerLine("0.5", "trackSubscriptionOptionSelected", option + "," + shop + "," + entryTitle));
        expected.push_back(
            trackerLine("0.5", "trackPurchaseTapped", option + "," + shop + "," + entryTitle + "," + proEntitlement));
    }

    EXPECT_THAT(eventLinesOf(offers, R"([{"tap": {"identifier": "subscribe"}}, {"tap": {"identifier": "plan.m"}},
                                    {"tap": {"identifier": "subscribe"}}])"),
                ElementsAreArray(expected));
}

TEST(EventLines, TellOfTheLog) {
    const auto lines = eventLinesOf({{"options", Json::array()}, {"referrer", "Home"}}, "[]");

    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[1], R"line({"time":0,"event":"log","severity":4,"message":"UpsellViewController - tried to init without )line"
                        R"line(monthly & yearly subscription option","function":"init(subscriptionOptions:variant:)"})line");
}

} // namespace proupsells::tests
