// What each kind of step does, what it expects, and how long it takes.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

Json steps(const char* text) { return {{"steps", Json::parse(text)}}; }

Json screenAfter(Json scenario) {
    scenario["steps"].push_back({{"dump", "screen"}});
    const Outcome outcome = play(scenario);
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    return outcome.events("screen").at(0);
}

Json frameOf(const Json& screen, const char* identifier) { return find(screen["root"], identifier)["frame"]; }

// The node that shows an asset; null when there is none.
Json withImage(const Json& node, const std::string& name) {
    if (node.contains("image") && node["image"] == name) return node;
    if (node.contains("children"))
        for (const Json& child : node["children"])
            if (Json found = withImage(child, name); !found.is_null()) return found;
    return nullptr;
}

// The complaint about one expectation; empty where it holds.
std::string complaintAbout(const Json& expectation) {
    const Outcome outcome = play({{"steps", {{{"expect", expectation}}}}});
    EXPECT_EQ(outcome.status, outcome.errors.empty() ? 0 : 1);
    EXPECT_LE(outcome.errorLines().size(), 1u);
    const auto start = outcome.errors.find("/steps/0/expect: ");
    return start == std::string::npos ? outcome.errors : outcome.errors.substr(start + 17);
}

} // namespace

// --- Fingers ---

TEST(PressStep, RestsAsLongAsItSaysAndThenLifts) {
    const Outcome outcome = play(steps(R"([{"press": {"at": [187, 475], "duration": 1.25}}, {"dump": "screen"}])"));

    const Json screen = outcome.events("screen").at(0);
    EXPECT_EQ(screen["time"], 1.75);
    const Json plan = find(screen["root"], "plan.pro.monthly");
    const auto frame = plan["frame"].get<std::vector<double>>();
    ASSERT_TRUE(frame[1] < 475 && 475 < frame[1] + frame[3]);
    EXPECT_EQ(plan["traits"], Json({"button", "selected"}));
}

TEST(PressStep, LetsItsControlActWhenItLifts) {
    Json pressed = steps("[]");
    const auto frame = frameOf(screenAfter(steps("[]")), "subscribe").get<std::vector<double>>();
    pressed["steps"].push_back({{"press", {{"at", {frame[0] + 5, frame[1] + 5}}, {"duration", 0.8}}}});

    const auto told = play(pressed).events("delegate");

    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0]["time"], 1.3);
}

TEST(PressStep, HoldsAStripThatDrifts) {
    const auto offsetAfter = [](const Json& step) {
        Json scenario{{"device", {{"size", {375, 3200}}}}, {"steps", {{{"send", "whatIsPro"}}, step}}};
        return find(screenAfter(scenario)["root"], "store.strip.ShapesShelf.0")["contentOffset"][0].get<double>();
    };

    EXPECT_EQ(offsetAfter({{"wait", 4}}) - offsetAfter({{"wait", 0}}), 200);
    EXPECT_LT(offsetAfter({{"press", {{"at", {180, 2000}}, {"duration", 4}}}}) - offsetAfter({{"wait", 0}}), 10);
}

TEST(TapStep, TakesAPointWhereNoControlNeedBe) {
    const Outcome outcome = play(steps(R"([{"tap": [353, 22]}, {"dump": "screen"}])"));

    EXPECT_EQ(outcome.events("tracker").back()["operation"], "trackUpsellDismissed");
    EXPECT_EQ(play(steps(R"([{"tap": [5, 5]}])")).events("tracker").size(), 1u);
}

TEST(TapStep, TakesNoTimeWhereItsControlIsFurtherDownEither) {
    Json low = steps(R"([{"tap": {"identifier": "restorePurchases"}}])");
    low["device"] = {{"size", {320, 300}}};

    EXPECT_EQ(play(low).events("delegate").at(0)["time"], 0.5);
}

TEST(TapStep, TakesNoTime) { EXPECT_EQ(screenAfter(steps(R"([{"tap": {"identifier": "plan.pro.monthly"}}])"))["time"], 0.5); }

TEST(TapStep, FindsAControlByTheTextThatItShows) {
    const Outcome outcome =
        play(steps(R"([{"tap": "Monthly"}, {"expect": {"identifier": "plan.pro.monthly", "traits": ["selected", "button"]}}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST(DragStep, MovesTheContentAndTakesItsTime) {
    Json dragged = steps(R"([{"drag": {"from": [187, 450], "to": [187, 350], "duration": 2.5}}])");
    dragged["device"] = {{"size", {375, 500}}};
    const Json screen = screenAfter(dragged);

    EXPECT_EQ(screen["time"], 3);
    dragged["steps"] = Json::array();
    // A finger begins to pull after ten points.
    EXPECT_NEAR(frameOf(screen, "comparePlans")[1].get<double>(),
                frameOf(screenAfter(dragged), "comparePlans")[1].get<double>() - 90, 0.5);
}

TEST(WaitStep, LetsTimePass) {
    const Json screen = screenAfter(steps(R"([{"wait": 5.25}])"));

    EXPECT_EQ(screen["time"], 5.75);
    EXPECT_EQ(find(screen["root"], "carousel.pageControl")["value"], "page 2 of 4");
}

// --- Expectations ---

TEST(ExpectStep, ComparesFramesToAHundredthOfAPoint) {
    EXPECT_THAT(complaintAbout({{"identifier", "close"}, {"frame", {331, 0, 44, 44}}}), IsEmpty());
    EXPECT_THAT(complaintAbout({{"identifier", "close"}, {"frame", {331.01, 0.01, 43.99, 44}}}), IsEmpty());
    for (int number = 0; number < 4; ++number) {
        Json frame{331, 0, 44, 44};
        frame[std::size_t(number)] = frame[std::size_t(number)].get<double>() + 0.012;
        EXPECT_EQ(complaintAbout({{"identifier", "close"}, {"frame", frame}}),
                  "\"close\": its frame is [331,0,44,44], expected " + frame.dump() + "\n");
    }
}

TEST(ExpectStep, ComparesTheTextsOfEverythingInside) {
    EXPECT_THAT(complaintAbout({{"identifier", "subscribe"}, {"text", "Start Your Free Trial"}}), IsEmpty());
    EXPECT_THAT(complaintAbout({{"identifier", "plan.pro.monthly"}, {"text", "Monthly  $14.99 per month"}}), IsEmpty());
    EXPECT_EQ(complaintAbout({{"identifier", "subscribe"}, {"text", "Start"}}),
              "\"subscribe\": its text is \"Start Your Free Trial\", expected \"Start\"\n");
}

TEST(ExpectStep, ComparesValuesTraitsAndWhetherSomethingIsSeen) {
    EXPECT_THAT(complaintAbout({{"identifier", "carousel.pageControl"}, {"value", "page 1 of 4"}}), IsEmpty());
    EXPECT_EQ(complaintAbout({{"identifier", "carousel.pageControl"}, {"value", "page 2 of 4"}}),
              "\"carousel.pageControl\": its value is \"page 1 of 4\", expected \"page 2 of 4\"\n");
    EXPECT_THAT(complaintAbout({{"identifier", "plan.pro.yearly"}, {"traits", {"selected", "button"}}}), IsEmpty());
    EXPECT_EQ(complaintAbout({{"identifier", "plan.pro.yearly"}, {"traits", {"button"}}}),
              "\"plan.pro.yearly\": its traits is [\"button\",\"selected\"], expected [\"button\"]\n");
    EXPECT_THAT(complaintAbout({{"identifier", "close"}, {"onScreen", true}}), IsEmpty());
    EXPECT_EQ(complaintAbout({{"identifier", "close"}, {"onScreen", false}}), "\"close\": its onScreen is true, expected false\n");
}

TEST(ExpectStep, TellsWhatIsThereAndWhatIsNot) {
    EXPECT_THAT(complaintAbout({{"absent", "plan.pro.forever"}}), IsEmpty());
    EXPECT_EQ(complaintAbout({{"absent", "close"}}), "\"close\" is there, expected it to be absent\n");
    EXPECT_EQ(complaintAbout({{"identifier", "nothing"}}), "\"nothing\" is not there, expected it on the screen\n");
}

TEST(ExpectStep, GoesOnAfterEachOneThatDoesNotHold) {
    const Outcome outcome = play(steps(R"([{"expect": {"absent": "close"}}, {"expect": {"identifier": "close", "label": "Shut"}},
        {"expect": {"identifier": "close", "label": "Close"}}, {"tap": {"identifier": "subscribe"}}])"));

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errorLines(), ElementsAre(HasSubstr("/steps/0/expect: "), HasSubstr("/steps/1/expect: ")));
    EXPECT_THAT(outcome.events("delegate"), SizeIs(1));
}

// --- Settings ---

TEST(SetStep, GivesTheEntryControllerOtherOptions) {
    const Outcome outcome = play(steps(R"([{"set": {"options": [{"SKU": "new", "type": "monthly", "price": "$1"}]}},
        {"expect": {"absent": "plan.pro.yearly"}}, {"tap": {"identifier": "subscribe"}}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.events("delegate").at(0)["option"]["SKU"], "new");
}

TEST(SetStep, SetsAndTakesBackBothPrices) {
    const Outcome outcome = play(steps(R"([{"set": {"monthlySubscriptionPriceForComparisonWithPromotionalPrice": "$19.99"}},
        {"expect": {"identifier": "plan.pro.monthly", "label": "Monthly, $19.99 $14.99 per month"}},
        {"set": {"monthlySubscriptionPriceForComparisonWithPromotionalPrice": null}},
        {"expect": {"identifier": "plan.pro.monthly", "label": "Monthly, $14.99 per month"}}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
}

TEST(SetStep, ChangesTheAppearanceTheSizeAndTheUnsafeEdges) {
    const Json screen =
        screenAfter(steps(R"([{"set": {"appearance": "dark"}}, {"set": {"size": [320, 600], "safeArea": [20, 0, 34, 0]}}])"));

    EXPECT_EQ(screen["size"], Json({320, 600}));
    EXPECT_EQ(frameOf(screen, "close"), Json({276, 20, 44, 44}));
    EXPECT_EQ(withImage(screen["root"], "TermsGradient")["opacity"], 0);
}

TEST(DirectionOfTheDevice, MayBeForcedAgainstTheLanguage) {
    const auto closeAt = [](const Json& device, const Json& set = nullptr) {
        Json scenario{{"device", device}, {"steps", Json::array()}};
        if (!set.is_null()) scenario["steps"].push_back({{"set", set}});
        return frameOf(screenAfter(scenario), "close")[0].get<double>();
    };

    EXPECT_EQ(closeAt({{"locale", "en_US"}}), 331);
    EXPECT_EQ(closeAt({{"locale", "en_US"}, {"layoutDirection", "rtl"}}), 0);
    EXPECT_EQ(closeAt({{"locale", "ar_EG"}}), 0);
    EXPECT_EQ(closeAt({{"locale", "ar_EG"}, {"layoutDirection", "ltr"}}), 331);
    EXPECT_EQ(closeAt({{"locale", "ar_EG"}, {"layoutDirection", "auto"}}), 0);
    EXPECT_EQ(closeAt({{"locale", "en_US"}}, {{"layoutDirection", "rtl"}}), 0);
    EXPECT_EQ(closeAt({{"locale", "en_US"}, {"layoutDirection", "rtl"}}, {{"locale", "ar_EG"}, {"layoutDirection", "ltr"}}), 331);
}

TEST(ReleaseStep, LetsGoOfOnePartAlone) {
    const auto parties = [](const char* part) {
        const Outcome outcome = play({{"steps", {{{"release", part}}, {{"send", "restorePurchases"}}}}});
        return std::pair(outcome.events("delegate").size(), outcome.events("tracker").size());
    };

    EXPECT_EQ(parties("delegate"), std::pair(std::size_t(0), std::size_t(2)));
    EXPECT_EQ(parties("tracker"), std::pair(std::size_t(1), std::size_t(1)));
}

} // namespace proupsells::tests
