// What a dumped screen says of its views.
#include <functional>

#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

using testing::IsEmpty;
using testing::Not;

namespace {

void visit(const Json& node, const std::function<void(const Json&)>& visitor) {
    visitor(node);
    if (node.contains("children"))
        for (const Json& child : node["children"]) visit(child, visitor);
}

// The nodes, in the tree's order, of which this is true.
std::vector<Json> nodesWhere(const Json& root, const std::function<bool(const Json&)>& isWanted) {
    std::vector<Json> result;
    visit(root, [&](const Json& node) {
        if (isWanted(node)) result.push_back(node);
    });
    return result;
}

std::vector<Json> nodesOfType(const Json& root, const char* type) {
    return nodesWhere(root, [&](const Json& node) { return node["type"] == type; });
}

Json dumped(Json scenario) {
    scenario["steps"].push_back({{"dump", "screen"}});
    const Outcome outcome = play(scenario);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    return outcome.events("screen").at(0)["root"];
}

Json dumpedAfter(const char* stepsText, Json offers = sampleOffers()) {
    return dumped({{"offers", std::move(offers)}, {"steps", Json::parse(stepsText)}});
}

} // namespace

TEST(ScreenDump, SaysOfEveryViewWhatItIsWhereItIsAndWhetherItIsSeen) {
    int seen = 0, unseen = 0;
    visit(dumpedAfter("[]"), [&](const Json& node) {
        EXPECT_TRUE(node.contains("type") && !node["type"].get<std::string>().empty());
        EXPECT_EQ(node["frame"].size(), 4u) << node["type"];
        ++(node["onScreen"].get<bool>() ? seen : unseen);
        // What a view has none of is left out.
        for (const char* key : {"identifier", "label", "value", "image"})
            if (node.contains(key)) {
                EXPECT_THAT(node[key].get<std::string>(), Not(IsEmpty()));
            }
        if (node.contains("children")) {
            EXPECT_THAT(node["children"], Not(IsEmpty()));
        }
    });
    EXPECT_GT(seen, 50);
    EXPECT_GT(unseen, 5); // the other pages of the header, and what is below the window
}

TEST(ScreenDump, SetsOutATextAndItsRuns) {
    Json offers = sampleOffers();
    offers["annualSubscriptionPriceForComparisonWithPromotionalPrice"] = "$119.99";
    const Json plan = find(dumpedAfter("[]", offers), "plan.pro.yearly");
    const auto found = nodesOfType(plan, "Text");
    ASSERT_EQ(found.size(), 3u);

    const Json title = found[0], price = found[2];
    EXPECT_EQ(title["text"], "Annually");
    EXPECT_EQ(title["font"], "bodyLarge");
    EXPECT_EQ(title["size"], 17);
    EXPECT_EQ(title["colour"], "ContentColor.primary");
    EXPECT_EQ(title["lines"], 1);
    EXPECT_EQ(title["truncated"], false);
    EXPECT_FALSE(title.contains("runs"));
    EXPECT_EQ(price["text"], "$119.99 $99.99 per year ($8.33/month).");
    EXPECT_EQ(price["runs"], Json::parse(R"([
        {"text": "$119.99", "font": "velaDefaultFont", "size": 18, "weight": 2, "colour": "velaLabel", "strikethrough": true},
        {"text": " ", "font": "velaDefaultFont", "size": 16, "weight": 1, "colour": "velaSecondaryLabel", "strikethrough": false},
        {"text": "$99.99", "font": "velaDefaultFont", "size": 18, "weight": 2, "colour": "velaLabel", "strikethrough": false},
        {"text": " per year ($8.33/month).", "font": "velaDefaultFont", "size": 16, "weight": 1, "colour": "velaSecondaryLabel",
         "strikethrough": false}])"));
}

TEST(ScreenDump, KeepsTheWholeTextBeforeAnyChangeOfCase) {
    const Json badge = find(dumpedAfter("[]"), "badge.pro.yearly");

    EXPECT_THAT(texts(badge), testing::ElementsAre("Save 45%"));
}

TEST(ScreenDump, DescribesShapesByTheNamesOfTheirColours) {
    const Json root = dumpedAfter("[]");
    const auto border =
        nodesWhere(root, [](const Json& node) { return node.contains("stroke") && node["type"] == "RoundedRectangle"; });
    const Json card = nodesOfType(find(root, "plan.pro.yearly"), "RoundedRectangle").at(0);

    EXPECT_EQ(card["fill"], "velaSecondaryAppBackground");
    EXPECT_EQ(card["cornerRadius"], 6);
    EXPECT_FALSE(card.contains("stroke") || card.contains("lineWidth"));
    ASSERT_EQ(border.size(), 2u);
    EXPECT_EQ(border[0]["stroke"], "marwickContentAccent");
    EXPECT_EQ(border[0]["lineWidth"], 2);
    EXPECT_FALSE(border[0].contains("fill") || border[0].contains("opacity"));
    EXPECT_EQ(border[1]["opacity"], 0);
    EXPECT_EQ(border[1]["onScreen"], false);
}

TEST(ScreenDump, HasTheEffectsOfTheMoment) {
    // A second into the slide from the first page to the second: half of it, by its curve; the old title has faded.
    const Json root = dumpedAfter(R"([{"wait": 5.6}])");
    const auto pages = nodesOfType(find(root, "carousel"), "Color");
    ASSERT_EQ(pages.size(), 4u);
    EXPECT_NEAR(pages[0]["frame"][0].get<double>(), -187.5, 40);
    EXPECT_NEAR(pages[1]["frame"][0].get<double>() - pages[0]["frame"][0].get<double>(), 375, 1e-5);
    EXPECT_EQ(pages[1]["clip"], pages[1]["frame"]);
    const auto titles = nodesWhere(root, [](const Json& node) { return node.contains("font") && node["font"] == "headline"; });
    ASSERT_EQ(titles.size(), 1u);
    EXPECT_GT(titles[0]["opacity"], 0);
    EXPECT_LT(titles[0]["opacity"], 1);

    const auto circles = nodesOfType(find(root, "plan.pro.monthly"), "Circle");
    ASSERT_EQ(circles.size(), 4u);
    EXPECT_EQ(circles[2]["scale"], 0.9);
    EXPECT_EQ(circles[3]["opacity"], 0);
}

TEST(ScreenDump, TurnsTheArrowsOfOpenAndClosedCategories) {
    const Json root = dumpedAfter(R"([{"send": "comparePlans"}])");
    const auto arrowIn = [&](const char* category) {
        return nodesWhere(find(root, category), [](const Json& node) { return node.contains("rotation"); }).at(0);
    };

    EXPECT_EQ(arrowIn("comparison.category.Content And Assets")["rotation"], -90);
    EXPECT_EQ(arrowIn("comparison.category.Creation Tools")["rotation"], 90);
    EXPECT_EQ(arrowIn("comparison.category.Creation Tools")["image"], "chevron.right");
}

TEST(ScreenDump, SaysHowFarAListIsScrolledAndHowMuchThereIs) {
    const Json device{{"size", {375, 800}}, {"safeArea", {20, 0, 34, 0}}};
    const Json root = dumped({{"device", device}, {"steps", Json::parse(R"([{"send": "whatIsPro"},
        {"drag": {"from": [187, 500], "to": [187, 390], "duration": 1.5}}])")}});
    const Json list = nodesOfType(root, "UICollectionView").at(0);

    EXPECT_EQ(list["contentOffset"], Json({0, 100}));
    EXPECT_EQ(list["contentSize"], Json({375, 2708}));
    EXPECT_EQ(list["contentInset"], Json({0, 0, 136, 0}));
}

} // namespace proupsells::tests
