// What the program writes while it plays a scenario.

#include <cstdlib>
#include <optional>

#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const std::string paywallTitle = "ProUpsell Phase 2: with Comparison List and Carousel Sept24";

Json scenario(const char* steps, const char* host = "{}") { return {{"host", Json::parse(host)}, {"steps", Json::parse(steps)}}; }

// The environment without a variable, for as long as this lives.
class WithoutVariable {
public:
    explicit WithoutVariable(const char* name) : m_name(name) {
        if (const char* value = getenv(name)) m_former = value;
        unsetenv(name);
    }
    ~WithoutVariable() {
        if (m_former) setenv(m_name, m_former->c_str(), 1);
    }
    WithoutVariable(const WithoutVariable&) = delete;

private:
    const char* m_name;
    std::optional<std::string> m_former;
};

// "event operation" of every line after the presentation.
std::vector<std::string> story(const Outcome& outcome) {
    std::vector<std::string> result;
    for (const Json& event : outcome.events()) {
        std::string line = event["event"];
        if (event.contains("operation")) line += " " + event["operation"].get<std::string>();
        if (event.contains("content")) line += " " + event["content"].get<std::string>();
        result.push_back(line);
    }
    return result;
}

} // namespace

TEST(Scenario, BeginsWithThePresentationAndTheViewedEvent) {
    const Outcome outcome = play(scenario("[]"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const auto events = outcome.events();
    ASSERT_THAT(events, SizeIs(2));
    EXPECT_EQ(events[0], Json::parse(R"({"time": 0, "event": "present", "controller": "VelaProUpsellViewController",
        "content": "VelaProUpsellViewController", "style": "formSheet", "size": [375, 800]})"));
    EXPECT_EQ(events[1], Json({{"time", 0.5},
                               {"event", "tracker"},
                               {"operation", "trackUpsellViewed"},
                               {"referrer", "Home - elementIDint(5)"},
                               {"screenTitle", paywallTitle},
                               {"entitlement", "VELA_PRO"}}));
}

TEST(Scenario, WritesKeysInTheirOrder) {
    const Outcome outcome = play(scenario("[]"));

    EXPECT_THAT(outcome.output, testing::StartsWith(R"({"time":0,"event":"present","controller":)"));
    EXPECT_THAT(outcome.output, HasSubstr(R"({"time":0.5,"event":"tracker","operation":"trackUpsellViewed","referrer":)"));
}

TEST(Scenario, SubscribingTellsTheDelegateThenTheTracker) {
    const Outcome outcome = play(scenario(R"([{"tap": {"identifier": "subscribe"}}])"));

    EXPECT_THAT(story(outcome), ElementsAre("present VelaProUpsellViewController", "tracker trackUpsellViewed",
                                            "delegate proUpsellViewController(_:didContinueWith:)",
                                            "tracker trackSubscriptionOptionSelected", "tracker trackPurchaseTapped"));
    EXPECT_EQ(outcome.events("delegate")[0]["option"], Json::parse(R"({"SKU": "pro.yearly", "type": "yearly", "price": "$99.99",
        "monthlyEffectivePrice": "$8.33", "introductoryPrice": null, "introductoryPeriodLength": "1 week", "hasUsedFreeTrial": false})"));
    EXPECT_EQ(outcome.events("tracker")[2]["option"]["SKU"], "pro.yearly");
}

TEST(Scenario, APickedPlanIsTheOneThatIsBought) {
    const Outcome outcome = play(scenario(R"([{"tap": {"identifier": "plan.pro.monthly"}},
        {"expect": {"identifier": "subscribe", "label": "Subscribe Now"}},
        {"expect": {"identifier": "plan.pro.monthly", "traits": ["button", "selected"]}},
        {"expect": {"identifier": "plan.pro.yearly", "traits": ["button"]}},
        {"expect": {"absent": "plan.pro.forever"}},
        {"tap": "Subscribe Now"}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.events("delegate")[0]["option"]["SKU"], "pro.monthly");
}

TEST(Scenario, KeysAloneBuyAPlan) {
    const Outcome outcome = play(scenario(R"([{"key": "tab"}, {"key": "tab"}, {"key": "tab"}, {"key": "tab"}, {"key": "down"},
        {"expect": {"identifier": "plan.pro.monthly", "traits": ["button", "selected"]}}, {"key": "tab"}, {"key": "return"}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.events("delegate")[0]["option"]["SKU"], "pro.monthly");
}

// At this size the row's centre comes to the window's edge, where rounding used to carry it out.
TEST(Scenario, TapsWhatHasScrolledAwayAtTheTop) {
    Json large = scenario(R"([{"drag": {"from": [187, 600], "to": [187, 100], "duration": 0.3}}, {"wait": 3},
        {"tap": {"identifier": "comparePlans"}}])");
    large["device"] = {{"textSize", "accessibilityExtraExtraExtraLarge"}};
    large["offers"] = sampleOffers();
    large["offers"]["annualSubscriptionPriceForComparisonWithPromotionalPrice"] = "$119.99";

    EXPECT_THAT(story(play(large)), testing::Contains("present ComparisonViewController"));
}

TEST(Scenario, EscapeLeavesThePaywall) {
    const Outcome outcome = play(scenario(R"([{"key": "escape"}])"));

    EXPECT_THAT(story(outcome), testing::Contains("tracker trackUpsellDismissed"));
    EXPECT_EQ(story(outcome).back(), "dismiss VelaProUpsellViewController");
}

TEST(Scenario, IdentifiersAreTheSameInEveryLanguage) {
    const Folder folder;
    folder.write("de.lproj/Localizable.strings", std::string_view("\"Creation Tools\" = \"Kreativwerkzeuge\";"));
    Json german = scenario(R"([{"tap": "Compare Plans: Free vs Pro"},
        {"expect": {"identifier": "comparison.category.Creation Tools", "label": "Kreativwerkzeuge"}}])");
    german["device"] = {{"locale", "de_AT"}, {"strings", folder.path().string()}};

    EXPECT_EQ(play(german).status, 0);
}

TEST(Scenario, EveryLinkTellsTheDelegateThenTheTracker) {
    const Outcome outcome =
        play(scenario(R"([{"tap": "Terms of Service"}, {"tap": "Privacy Policy"}, {"tap": "Restore Purchases"}])"));

    const auto lines = story(outcome);
    EXPECT_THAT(std::vector<std::string>(lines.begin() + 2, lines.end()),
                ElementsAre("delegate proUpsellViewControllerDidTapTermsOfService(_:)", "tracker trackTermsOfServiceTapped",
                            "delegate proUpsellViewControllerDidTapPrivacyPolicy(_:)", "tracker trackPrivacyPolicyTapped",
                            "delegate proUpsellViewControllerDidTapRestore(_:)", "tracker trackRestoreTapped"));
}

TEST(Scenario, ClosingIsTrackedAndDismisses) {
    const Outcome outcome = play(scenario(R"([{"tap": {"identifier": "close"}}, {"dump": "screen"}])"));

    EXPECT_THAT(story(outcome), ElementsAre("present VelaProUpsellViewController", "tracker trackUpsellViewed",
                                            "tracker trackUpsellDismissed", "dismiss VelaProUpsellViewController", "screen"));
    EXPECT_EQ(outcome.events("screen")[0]["controller"], "HostViewController");
}

TEST(Scenario, WithoutDelegateAndTrackerEveryTapIsSilent) {
    const Outcome outcome =
        play(scenario(R"([{"tap": {"identifier": "subscribe"}}, {"tap": "Terms of Service"}, {"send": "restorePurchases"},
        {"send": "cancel"}])",
                      R"({"tracker": false, "delegate": false})"));

    EXPECT_THAT(story(outcome), ElementsAre("present VelaProUpsellViewController", "dismiss VelaProUpsellViewController"));
}

TEST(Scenario, WhoIsReleasedIsNotCalledAnyMore) {
    const Outcome outcome = play(scenario(R"([{"release": "delegate"}, {"tap": {"identifier": "subscribe"}}, {"release": "tracker"},
        {"tap": {"identifier": "subscribe"}}])"));

    EXPECT_THAT(story(outcome), ElementsAre("present VelaProUpsellViewController", "tracker trackUpsellViewed",
                                            "tracker trackSubscriptionOptionSelected", "tracker trackPurchaseTapped"));
}

TEST(Scenario, AnExpectationThatFailsIsNamedAndCounted) {
    const Outcome outcome =
        play(scenario(R"([{"expect": {"identifier": "subscribe", "label": "Buy"}}, {"tap": "Terms of Service"}])"));

    EXPECT_EQ(outcome.status, 1);
    ASSERT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(outcome.errors,
                HasSubstr("/steps/0/expect: \"subscribe\": its label is \"Start Your Free Trial\", expected \"Buy\""));
    EXPECT_THAT(outcome.events("delegate"), SizeIs(1));
}

TEST(Scenario, ATapThatMatchesNothingEndsTheRunAndListsTheControls) {
    const Outcome outcome = play(scenario(R"([{"tap": "Buy Everything"}, {"tap": "Terms of Service"}])"));

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines()[0], HasSubstr("/steps/0/tap: no control has the text \"Buy Everything\", expected"));
    EXPECT_THAT(outcome.errors, HasSubstr("\n  termsOfService (\"Terms of Service\")"));
    EXPECT_THAT(outcome.events("delegate"), IsEmpty());
}

TEST(Scenario, ATapThatMatchesTwoControlsEndsTheRun) {
    Json twice = scenario(R"([{"tap": {"identifier": "plan.a"}}])");
    twice["offers"] = Json::parse(
        R"({"options": [{"SKU": "a", "type": "monthly", "price": "1"}, {"SKU": "a", "type": "monthly", "price": "2"}]})");

    const Outcome outcome = play(twice);

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("2 controls have the identifier \"plan.a\""));
}

TEST(Scenario, OffersWithoutAnyPlanAreLoggedAndShown) {
    Json empty = scenario(
        R"([{"expect": {"identifier": "subscribe", "traits": ["button", "disabled"]}}, {"expect": {"absent": "disclaimer"}}])");
    empty["offers"] = Json::parse(R"({"options": [{"SKU": "f", "type": "lifetime", "price": "1"}]})");

    const Outcome outcome = play(empty);

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const auto logs = outcome.events("log");
    ASSERT_THAT(logs, SizeIs(1));
    EXPECT_EQ(logs[0]["severity"], 4);
    EXPECT_EQ(logs[0]["message"], "UpsellViewController - tried to init without monthly & yearly subscription option");
    EXPECT_EQ(logs[0]["function"], "init(subscriptionOptions:variant:)");
}

TEST(Scenario, ChangedPricesAreShown) {
    const Outcome outcome = play(scenario(R"([
        {"set": {"annualSubscriptionPriceForComparisonWithPromotionalPrice": "$149.99"}},
        {"expect": {"identifier": "plan.pro.yearly", "label": "Annually, $149.99 $99.99 per year ($8.33/month)."}},
        {"dump": "screen"}])"));

    const Json plan = find(outcome.events("screen")[0]["root"], "plan.pro.yearly");
    EXPECT_THAT(texts(plan), testing::Contains("$149.99 $99.99 per year ($8.33/month)."));
}

TEST(Scenario, TranslationsComeFromTheHostsFolder) {
    const Folder folder;
    folder.write("de.lproj/Localizable.strings",
                 std::string("\"Annually\" = \"J\u00e4hrlich\";\n\"Subscribe Now\" = \"Jetzt abonnieren\";"));
    Json german = scenario(
        R"([{"tap": {"identifier": "plan.pro.monthly"}}, {"expect": {"identifier": "subscribe", "label": "Jetzt abonnieren"}},
        {"dump": "screen"}])");
    german["device"] = {{"locale", "de_AT"}, {"strings", folder.path().string()}};

    const Outcome outcome = play(german);

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const auto shown = texts(outcome.events("screen")[0]["root"]);
    EXPECT_THAT(shown, testing::Contains("J\u00e4hrlich"));
    EXPECT_THAT(shown, testing::Contains("Save 45\u00a0%"));
    EXPECT_THAT(shown, testing::Contains("Terms of Service"));
}

TEST(Scenario, TheOrderOfADevicesKeysDoesNotCount) {
    const Json sets[] = {Json::parse(R"({"size": [20000, 300], "scale": 1})"), Json::parse(R"({"scale": 1, "size": [20000, 300]})"),
                         Json::parse(R"({"size": [375, 60], "safeArea": [10, 0, 10, 0]})"),
                         Json::parse(R"({"safeArea": [10, 0, 10, 0], "size": [375, 60]})")};

    for (const Json& set : sets) {
        Json steps = Json::array({{{"set", set}}, {{"dump", "screen"}}});
        // Insets that the smaller window has no room for.
        const Json device{{"size", {375, 800}}, {"safeArea", {50, 0, 34, 0}}};
        const Outcome outcome = play({{"device", device}, {"steps", steps}});
        EXPECT_EQ(outcome.status, 0) << set << outcome.errors;
        EXPECT_EQ(outcome.events("screen").front()["size"], set["size"]);
        EXPECT_EQ(play({{"device", set}}).status, 0) << set;
    }
}

TEST(Scenario, SnapshotsHaveThePixelsOfTheDevice) {
    Json odd = scenario(R"([{"snapshot": "a.png"}, {"set": {"scale": 1}}, {"snapshot": "b.png"}])");
    odd["device"] = {{"size", {375, 667}}, {"scale", 1.5}};

    const auto events = play(odd).events("snapshot");

    ASSERT_THAT(events, SizeIs(2));
    EXPECT_EQ(events[0]["pixels"], Json({563, 1001}));
    EXPECT_EQ(events[1]["pixels"], Json({375, 667}));
}

TEST(Scenario, SnapshotsThatCannotBeWrittenEndTheRun) {
    const Folder folder;
    const auto file =
        folder.write("scenario.json", Json{{"offers", sampleOffers()}, {"steps", {{{"wait", 0}}, {{"snapshot", "a.png"}}}}});
    const auto taken = folder.write("taken", std::string("no folder"));

    const Outcome outcome = runProgram({"run", file.string(), "--out", taken.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, file.string() + ": /steps/1/snapshot: \"" + (taken / "a.png").string() +
                                  "\" cannot be written, expected a folder that can be written to\n");
}

TEST(Scenario, FileNamesAreUtf8) {
    const Folder folder;
    folder.write("Angebote \u00FC.json", sampleOffers());
    folder.write("\u00DCbersetzungen/de.lproj/Localizable.strings", std::string("\"Annually\" = \"J\u00E4hrlich\";"));
    Json named = scenario(R"([{"snapshot": "\u56F3.png"}, {"dump": "screen"}])");
    named["offers"] = "Angebote \u00FC.json";
    named["device"] = {{"locale", "de"}, {"strings", "\u00DCbersetzungen"}, {"fonts", "fixed"}};

    const Outcome outcome =
        runProgram({"run", folder.write("Szene \u00E9.json", named).string(), "--out", (folder.path() / "Bilder \u00E4").string()});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.events("snapshot")[0]["file"], "\u56F3.png");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / u8"Bilder \u00E4" / u8"\u56F3.png"));
    EXPECT_THAT(texts(outcome.events("screen")[0]["root"]), testing::Contains("J\u00E4hrlich"));
}

TEST(Scenario, ComplaintsNameFilesInUtf8) {
    const Folder folder;
    Json named = scenario("[]");
    named["offers"] = "Angebote \u00FC.json";

    const Outcome outcome = runProgram({"run", folder.write("Szene \u00E9.json", named).string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("/Angebote \u00FC.json: /: there is no such file"));
}

TEST(Scenario, TheSameRunPrintsTheSameBytes) {
    const Json once =
        scenario(R"([{"wait": 7.3}, {"dump": "screen"}, {"drag": {"from": [187, 600], "to": [187, 200], "duration": 0.2}},
        {"wait": 0.1}, {"dump": "screen"}])");

    EXPECT_EQ(play(once).output, play(once).output);
}

TEST(Scenario, TenThousandOptionsStayUsable) {
    Json many = scenario(R"([{"tap": {"identifier": "plan.9999"}}, {"tap": {"identifier": "subscribe"}}])");
    for (int i = 0; i < 10'000; ++i)
        many["offers"]["options"].push_back({{"SKU", std::to_string(i)}, {"type", "monthly"}, {"price", "$" + std::to_string(i)}});

    const Outcome outcome = play(many);

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.events("delegate")[0]["option"]["SKU"], "9999");
}

TEST(HostProgram, ShowNeedsTheProgramThatHasWindowsBesideIt) {
    const Folder folder;
    const auto alone = folder.path() / "proupsells";
    std::filesystem::copy(builtProgram, alone);

    const Outcome outcome = runProgram({"show"}, alone);

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, (folder.path() / "proupsells-window").string() +
                                  ": /: " + std::make_error_code(std::errc::no_such_file_or_directory).message() +
                                  ", expected the program that has windows\n");
}

TEST(HostProgram, ShowSaysWhereThereIsNoDisplay) {
    const WithoutVariable display("DISPLAY"), wayland("WAYLAND_DISPLAY"), platform("QT_QPA_PLATFORM");

    const Outcome outcome = runProgram({"show"});

    EXPECT_EQ(outcome.status, 3);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errors, HasSubstr("proupsells run"));
}
