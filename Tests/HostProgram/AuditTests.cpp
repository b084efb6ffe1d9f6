// `audit`: what is wrong with the screens. Every fault is seeded into a screen that has none.
#include <gmock/gmock.h>

#include <set>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

// The design's small controls, which every audit finds.
const Json acceptedTargets{{"accepted", Json::array({{{"rule", "small target"}, {"reason", "The design has them."}}})}};

// White as PNG, in the shape of the header's pictures.
constexpr char whitePictureBytes[] = "\x89\x50\x4E\x47\x0D\x0A\x1A\x0A\x00\x00\x00\x0D\x49\x48\x44\x52"
                                     "\x00\x00\x00\x76\x00\x00\x00\x32\x01\x00\x00\x00\x00\xA1\x15\x12"
                                     "\xC6\x00\x00\x00\x14\x49\x44\x41\x54\x78\xDA\x63\xF8\x8F\x0A\x18"
                                     "\x46\xF9\xA3\xFC\x51\x3E\x1C\x00\x00\x93\xA1\xEB\x31\xF5\x50\x45"
                                     "\x5A\x00\x00\x00\x00\x49\x45\x4E\x44\xAE\x42\x60\x82";
const std::string whitePicture(whitePictureBytes, sizeof whitePictureBytes - 1);

class AuditCommand : public testing::Test {
protected:
    Outcome audit(const Json& matrix, std::vector<std::string> more = {}) {
        more.insert(more.begin(), {"audit", "--matrix", folder.write("matrix.json", matrix).string(), "--accept",
                                   folder.write("accepted.json", acceptedTargets).string()});
        return runProgram(more);
    }

    Json findings(const Json& matrix, std::vector<std::string> more = {}) {
        more.insert(more.end(), {"--format", "json"});
        return Json::parse(audit(matrix, more).output)["findings"];
    }

    // German in which one text is a fault, and English everywhere else.
    std::vector<std::string> strings(const std::string& key, const std::string& text) {
        folder.TemporaryFolder::write("de.lproj/Localizable.strings", Json(key).dump() + " = " + Json(text).dump() + ";\n");
        return {"--strings", folder.path().string()};
    }

    Json matrix(const char* screen, const char* locale) {
        return {{"screens", {screen}},
                {"locales", {locale}},
                {"sizes", {{375, 667}, {320, 568}}},
                {"textSizes", {"large"}},
                {"appearances", {"light"}}};
    }

    Folder folder;
};

std::set<std::string> rulesOf(const Json& findings) {
    std::set<std::string> rules;
    for (const Json& finding : findings) rules.insert(finding["rule"]);
    return rules;
}

} // namespace

TEST_F(AuditCommand, HasNothingToSayOfGoodScreens) {
    const Outcome outcome = audit({{"locales", {"en", "ar_XB"}}, {"sizes", {{375, 667}}}, {"textSizes", {"large", "extraLarge"}}});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errors, IsEmpty());
}

TEST_F(AuditCommand, FindsTargetsThatNobodyAccepted) {
    const auto file = folder.write("matrix.json", matrix("paywall", "en"));

    const Outcome outcome = runProgram({"audit", "--matrix", file.string()});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "paywall comparePlans 0.0.0.0.0.0.0.0.2.0: small target: Button comparePlans is 320 x 24 points and "
                              "can be touched in 320 x "
                              "38. Make the control 44 x 44 points; what is touched may be larger than what is seen. [en large "
                              "320x568 light, the smallest "
                              "width of 2 configurations]\n");
}

TEST_F(AuditCommand, FindsAWordThatIsBrokenInsideAndTheSmallestWidthForIt) {
    const Json found = findings(matrix("paywall", "de"), strings("Annually", "Donaudampfschifffahrtsgesellschaftskapitän"));

    EXPECT_THAT(rulesOf(found), ElementsAre("broken word"));
    EXPECT_EQ(found[0]["screen"], "paywall");
    EXPECT_EQ(found[0]["identifier"], "plan.pro.yearly");
    EXPECT_EQ(found[0]["smallestWidth"], 320);
    EXPECT_EQ(found[0]["configurations"], 2);
    EXPECT_THAT(found[0]["message"].get<std::string>(), HasSubstr("\"Donaudampfschifffahrtsgesellschaftskapitän\""));
}

TEST_F(AuditCommand, FindsControlsThatSoundTheSame) {
    const Json found = findings(matrix("paywall", "de"), strings("Terms of Service", "Privacy Policy"));

    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0]["rule"], "doubled name");
    EXPECT_EQ(found[0]["identifier"], "privacyPolicy");
}

TEST_F(AuditCommand, FindsAFaintTextOverAPicture) {
    folder.TemporaryFolder::write("white.png", whitePicture);
    const auto theme = folder.write("theme.json", Json{{"pictures", {{"paywallHeaderB", "white.png"}}}});

    const Json found = findings(matrix("paywall", "en"), {"--theme", theme.string()});

    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0]["rule"], "faint");
    EXPECT_EQ(found[0]["configurations"], 2);
    EXPECT_THAT(found[0]["message"].get<std::string>(), HasSubstr("\"Thousands of"));
}

TEST_F(AuditCommand, FindsATextThatNoTranslationReaches) {
    // A price of words comes from the offers as it is, and stands outside of every sentence.
    Json offers = sampleOffers();
    offers["annualSubscriptionPriceForComparisonWithPromotionalPrice"] = "almost nothing";

    const Outcome outcome = runProgram({"audit", folder.write("offers.json", offers).string(), "--format", "json", "--matrix",
                                        folder.write("matrix.json", matrix("paywall", "ar_XB")).string()});

    EXPECT_THAT(rulesOf(Json::parse(outcome.output)["findings"]), ElementsAre("small target", "untranslated"));
}

TEST_F(AuditCommand, LooksAtAScenarioAfterEachStep) {
    const Json strings{{"de", {{"Compare Plans", "Donaudampfschifffahrtsgesellschaftskapitän"}}}};
    const Json scenario{{"offers", {{"options", sampleOffers()["options"]}}},
                        {"device", {{"locale", "de"}, {"strings", strings}}},
                        {"steps", {{{"send", "comparePlans"}}}}};

    const Outcome outcome = runProgram({"audit", folder.write("scenario.json", scenario).string(), "--format", "json"});

    const Json found = Json::parse(outcome.output)["findings"];
    std::set<std::string> screens;
    for (const Json& finding : found) screens.insert(finding["screen"]);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(rulesOf(found), ElementsAre("broken word", "small target"));
    EXPECT_THAT(screens, SizeIs(2));
}

class ScenarioMatrix : public AuditCommand {
protected:
    Outcome auditScenario(const Json& scenario, const Json& matrix) {
        return runProgram({"audit", folder.write("scenario.json", scenario).string(), "--format", "json", "--accept",
                           folder.write("accepted.json", acceptedTargets).string(), "--matrix",
                           folder.write("matrix.json", matrix).string()});
    }

    // German that does not fit.
    Json germanTexts{{"de", {{"Annually", "Donaudampfschifffahrtsgesellschaftsmütze"}}}};
    Json scenario{{"offers", {{"options", sampleOffers()["options"]}}},
                  {"device", {{"locale", "en_US"}, {"size", {900, 800}}, {"strings", germanTexts}}},
                  {"steps", {{{"tap", {{"identifier", "plan.pro.monthly"}}}}}}};
};

TEST_F(ScenarioMatrix, LooksAtTheLastScreenInEveryLanguageAndSize) {
    const Outcome outcome = auditScenario(scenario, {{"locales", {"en_US", "de"}}, {"sizes", {{900, 800}, {320, 568}}}});

    const Json found = Json::parse(outcome.output)["findings"];
    ASSERT_THAT(found, SizeIs(1)) << outcome.output;
    EXPECT_EQ(found[0]["rule"], "broken word");
    EXPECT_EQ(found[0]["identifier"], "plan.pro.yearly");
    EXPECT_EQ(found[0]["smallestWidth"], 320);
    EXPECT_EQ(found[0]["configurations"], 2);
    EXPECT_EQ(found[0]["configuration"], "de large 320x568 light");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(ScenarioMatrix, KeepsTheScenariosDeviceWhereItSaysNothing) {
    scenario["device"]["locale"] = "de";
    scenario["device"]["size"] = {320, 568};

    const Json found = Json::parse(
        auditScenario(scenario, {{"textSizes", {"large", "small"}}, {"appearances", {"light", "dark"}}}).output)["findings"];

    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0]["configurations"], 4);
}

TEST_F(ScenarioMatrix, FindsNothingWhereThereIsNothing) {
    const Outcome outcome =
        auditScenario(scenario, {{"sizes", {{320, 568}, {1024, 768}}}, {"textSizes", {"large", "accessibilityLarge"}}});

    EXPECT_EQ(outcome.status, 0) << outcome.output;
}

TEST_F(ScenarioMatrix, StaysInItsLanguageWhenSomethingElseIsSet) {
    scenario["steps"].push_back({{"set", {{"size", {320, 568}}}}});

    const Json found = Json::parse(auditScenario(scenario, {{"locales", {"de"}}}).output)["findings"];

    EXPECT_THAT(rulesOf(found), ElementsAre("broken word"));
}

TEST_F(ScenarioMatrix, ExpectsTextsInTheScenariosOwnLanguageOnly) {
    scenario["device"]["strings"]["de"]["Subscribe Now"] = "Jetzt abonnieren";
    scenario["steps"].push_back({{"expect", {{"identifier", "subscribe"}, {"label", "Subscribe Now"}}}});

    EXPECT_THAT(auditScenario(scenario, {{"locales", {"de"}}}).errors, IsEmpty());
}

TEST_F(ScenarioMatrix, RefusesAStepThatCannotBeDoneInALanguage) {
    scenario["device"]["strings"]["de"]["Monthly"] = "Monatlich";
    scenario["steps"].push_back({{"tap", "Subscribe Now"}});
    scenario["device"]["strings"]["de"]["Subscribe Now"] = "Jetzt abonnieren";

    const Outcome outcome = auditScenario(scenario, {{"locales", {"en_US", "de"}}});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errors, HasSubstr("scenario.json: /steps/1/tap: "));
}

TEST_F(ScenarioMatrix, HasNoScreensToChooseFrom) {
    const Outcome outcome = auditScenario(scenario, {{"screens", {"paywall"}}});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(outcome.errors, HasSubstr("matrix.json: /screens: "));
}

TEST_F(AuditCommand, PrintsSarif) {
    const auto file = folder.write("matrix.json", matrix("paywall", "en"));

    const Json report = Json::parse(runProgram({"audit", "--matrix", file.string(), "--format", "sarif"}).output);

    EXPECT_EQ(report["version"], "2.1.0");
    ASSERT_THAT(report["runs"][0]["results"], SizeIs(1));
    const Json result = report["runs"][0]["results"][0];
    EXPECT_EQ(result["ruleId"], "small target");
    EXPECT_EQ(result["locations"][0]["logicalLocations"][0]["fullyQualifiedName"], "paywall comparePlans 0.0.0.0.0.0.0.0.2.0");
}

TEST_F(AuditCommand, RefusesUnusableInputWithOneLine) {
    for (const Json& wrong : {Json{{"sizes", Json::array()}}, Json{{"screens", {"shop"}}}, Json{{"colours", {"red"}}}}) {
        const Outcome outcome = audit(wrong);

        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.output, IsEmpty());
        EXPECT_THAT(outcome.errorLines(), SizeIs(1));
        EXPECT_THAT(outcome.errors, HasSubstr("matrix.json: /"));
    }
}
