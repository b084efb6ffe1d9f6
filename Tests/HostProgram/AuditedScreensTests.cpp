// What `audit` comes across on its way through the screens, wherever a fault stands in them.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

// White as PNG, in the shape of the header's pictures.
constexpr char whiteBytes[] =
    "\x89\x50\x4E\x47\x0D\x0A\x1A\x0A\x00\x00\x00\x0D\x49\x48\x44\x52\x00\x00\x00\x76\x00\x00\x00\x32\x01\x00\x00\x00"
    "\x00\xA1\x15\x12\xC6\x00\x00\x00\x14\x49\x44\x41\x54\x78\xDA\x63\xF8\x8F\x0A\x18\x46\xF9\xA3\xFC\x51\x3E\x1C\x00"
    "\x00\x93\xA1\xEB\x31\xF5\x50\x45\x5A\x00\x00\x00\x00\x49\x45\x4E\x44\xAE\x42\x60\x82";
const std::string longWord = "Donaudampfschifffahrtsgesellschaftskapitän";

class AuditedScreens : public testing::Test {
protected:
    // In German with these texts, but for the design's small targets.
    Json findings(const Json& matrix, const Json& texts = Json::object(), const Json& theme = Json::object()) {
        Json whole{{"screens", {"paywall"}},
                   {"locales", {"de"}},
                   {"sizes", {{375, 667}, {320, 568}}},
                   {"textSizes", {"large"}},
                   {"appearances", {"light", "dark"}}};
        whole.update(matrix);
        const Json accepted{{"accepted", Json::array({{{"rule", "small target"}, {"reason", "The design has them."}}})}};
        std::string lines;
        for (const auto& [key, text] : texts.items()) lines += Json(key).dump() + " = " + text.dump() + ";\n";
        folder.write("strings/de.lproj/Localizable.strings", lines);
        folder.write("white.png", std::string(whiteBytes, sizeof whiteBytes - 1));
        const Outcome outcome =
            runProgram({"audit", "--matrix", folder.write("matrix.json", whole).string(), "--accept",
                        folder.write("accepted.json", accepted).string(), "--strings", (folder.path() / "strings").string(),
                        "--theme", folder.write("theme.json", theme).string(), "--format", "json"});
        EXPECT_THAT(outcome.errors, IsEmpty());
        const Json found = Json::parse(outcome.output)["findings"];
        EXPECT_EQ(outcome.status, found.empty() ? 0 : 1);
        return found;
    }
    // "rule identifier [first configuration] number of configurations" of each.
    static std::vector<std::string> toldOf(const Json& findings) {
        std::vector<std::string> told;
        for (const Json& finding : findings)
            told.push_back(finding["rule"].get<std::string>() + " " + finding["identifier"].get<std::string>() + " [" +
                           finding["configuration"].get<std::string>() + "] " + finding["configurations"].dump());
        return told;
    }

    Folder folder;
};

} // namespace

// --- On pictures ---

TEST_F(AuditedScreens, AreLookedAtOnEveryPageOfTheHeader) {
    for (const auto& [picture, words] : {std::pair("paywallHeaderA", "Endless"), std::pair("paywallHeaderB", "Thousands"),
                                         std::pair("paywallHeaderC", "Remove photo"), std::pair("paywallHeaderD", "Grow your")}) {
        const Json found = findings(Json::object(), Json::object(), {{"pictures", {{picture, "white.png"}}}});

        EXPECT_THAT(toldOf(found), ElementsAre("faint  [de large 320x568 light] 4")) << picture;
        EXPECT_THAT(found[0]["message"].get<std::string>(), HasSubstr("\"" + std::string(words))) << picture;
    }
}

TEST_F(AuditedScreens, AreLookedAtOnPicturesInEveryAppearance) {
    std::filesystem::copy(PROUPSELLS_SOURCES "/Examples/themes/evening.png", folder.path() / "evening.png");
    const Json theme{{"pictures", {{"paywallHeaderA", {{"light", "evening.png"}, {"dark", "white.png"}}}}}};

    EXPECT_THAT(toldOf(findings(Json::object(), Json::object(), theme)), ElementsAre("faint  [de large 320x568 dark] 2"));
    EXPECT_THAT(toldOf(findings({{"appearances", {"light"}}}, Json::object(), theme)), IsEmpty());
    EXPECT_THAT(toldOf(findings({{"appearances", {"dark", "light"}}}, Json::object(), theme)),
                ElementsAre("faint  [de large 320x568 dark] 2"));
}

// Steering leaves a page scrolled.
TEST_F(AuditedScreens, AreLookedAtFromTheTopAfterTheyWereSteered) {
    const Json matrix{
        {"sizes", {{320, 568}, {375, 667}}}, {"textSizes", {"large", "accessibilityLarge"}}, {"appearances", {"light"}}};

    EXPECT_THAT(toldOf(findings(matrix, Json::object(), {{"pictures", {{"paywallHeaderA", "white.png"}}}})),
                ElementsAre("faint  [de large 320x568 light] 4"));
    EXPECT_THAT(
        toldOf(findings({{"screens", {"comparison"}}, {"sizes", {{320, 568}}}, {"textSizes", {"large", "accessibilityLarge"}}})),
        IsEmpty());
}

// --- Words ---

// What comes into sight is as it was at first: closed, but for the first category.
TEST_F(AuditedScreens, AreLookedAtInWhatOpensAndWhatIsOpen) {
    const Json matrix{{"screens", {"comparison"}}, {"sizes", {{320, 568}}}};
    for (const auto& [text, category] :
         {std::pair("Upload Custom Fonts", "Content And Assets"), std::pair("Remove Background", "Creation Tools"),
          std::pair("Manage Domains", "Business Growth Tools"), std::pair("Logo Generation", "Automation (AI Features)")})
        EXPECT_THAT(toldOf(findings(matrix, {{text, longWord + longWord}})),
                    ElementsAre("broken word comparison.category." + std::string(category) + " [de large 320x568 light] 1"));
}

TEST_F(AuditedScreens, HaveAnEndWhereOpeningOneThingHidesAnother) {
    Json texts = Json::object();
    for (const char* const text : {"Upload Custom Fonts", "Remove Background", "Manage Domains", "Logo Generation"})
        texts[text] = longWord + longWord + longWord;

    EXPECT_THAT(findings({{"screens", {"comparison"}}, {"sizes", {{320, 200}}}}, texts), testing::Not(IsEmpty()));
}

TEST_F(AuditedScreens, AreLookedAtToTheirEndsAtEachSize) {
    const Json matrix{{"screens", {"store"}}};

    EXPECT_THAT(toldOf(findings(matrix, {{"Upload brand assets", longWord + longWord}})),
                ElementsAre("broken word store.shelf.BrandAssetsShelf [de large 375x667 light] 1",
                            "broken word store.shelf.BrandAssetsShelf [de large 320x568 light] 1"));
    EXPECT_THAT(toldOf(findings(matrix, {{"Get inspired with videos and images", longWord + longWord}})),
                ElementsAre("broken word store.shelf.VideoImageLibrariesShelf [de large 320x568 light] 2"));
}

// --- What is heard ---

TEST_F(AuditedScreens, AreListenedToOnceForAllAppearances) {
    EXPECT_THAT(toldOf(findings(Json::object(), {{"Terms of Service", "Privacy Policy"}})),
                ElementsAre("doubled name privacyPolicy [de large 320x568 light] 2"));
    EXPECT_THAT(toldOf(findings({{"appearances", {"dark", "light"}}}, {{"Terms of Service", "Privacy Policy"}})),
                ElementsAre("doubled name privacyPolicy [de large 320x568 dark] 2"));
}

// --- Text sizes ---

TEST_F(AuditedScreens, HaveTextsThatGrowInEachSize) {
    const Json texts{{"choose your plan", longWord + " " + longWord + " " + longWord}};
    const auto fixed = [&](const Json& sizes, const Json& textSizes) {
        Json found = Json::array();
        for (const Json& finding :
             findings({{"screens", {"store"}}, {"sizes", sizes}, {"textSizes", textSizes}, {"appearances", {"light"}}}, texts))
            if (finding["rule"] == "fixed size") found.push_back(finding);
        return found;
    };
    const Json phone = Json::array({{320, 568}});
    const std::string largest = "accessibilityExtraExtraExtraLarge";

    const Json found = fixed(phone, {"large", largest});
    EXPECT_THAT(toldOf(found), ElementsAre("fixed size store.choosePlan [de " + largest + " 320x568 light] 1"));
    EXPECT_EQ(found[0]["message"],
              "Text \"" + texts["choose your plan"].get<std::string>() + "\" is never larger than at the usual text size");
    EXPECT_THAT(fixed(phone, {"small", "large"}), IsEmpty());
    EXPECT_THAT(fixed(phone, {"extraLarge", largest}), IsEmpty());
}

// A title that has room on a tablet does not grow on a telephone.
TEST_F(AuditedScreens, AreHeldToTheTextSizesOfEachSizeByItself) {
    const Json texts{{"Endless premium templates, updated daily.", longWord + " " + longWord}};
    const std::string largest = "accessibilityExtraExtraExtraLarge";
    for (const Json& sizes : {Json::array({{768, 1024}, {320, 568}}), Json::array({{320, 568}, {768, 1024}})}) {
        std::vector<std::string> fixed;
        for (const std::string& told :
             toldOf(findings({{"sizes", sizes}, {"textSizes", {"large", largest}}, {"appearances", {"light"}}}, texts)))
            if (told.starts_with("fixed size")) fixed.push_back(told);
        EXPECT_THAT(fixed, ElementsAre("fixed size  [de " + largest + " 320x568 light] 1")) << sizes;
    }
}

// --- Findings that are known ---

TEST_F(AuditedScreens, MayHaveFindingsThatAreKnownByAnyOfTheirKeys) {
    const auto matrix = folder.write("matrix.json", Json{{"screens", {"paywall"}},
                                                         {"locales", {"en"}},
                                                         {"sizes", {{320, 568}}},
                                                         {"textSizes", {"large"}},
                                                         {"appearances", {"light"}}});
    const auto statusWith = [&](const Json& keys) {
        Json entry = keys;
        entry["reason"] = "It is known.";
        const auto accepted = folder.write("accepted.json", Json{{"accepted", Json::array({entry})}});
        return runProgram({"audit", "--matrix", matrix.string(), "--accept", accepted.string()}).status;
    };

    const std::string path = "0.0.0.0.0.0.0.0.2.0";
    EXPECT_EQ(statusWith({{"rule", "small target"}}), 0);
    EXPECT_EQ(statusWith({{"screen", "paywall"}}), 0);
    EXPECT_EQ(statusWith({{"identifier", "comparePlans"}}), 0);
    EXPECT_EQ(statusWith({{"path", path}}), 0);
    EXPECT_EQ(statusWith({{"screen", "paywall"}, {"identifier", "comparePlans"}, {"path", path}}), 0);
    EXPECT_EQ(statusWith({{"screen", "store"}}), 1);
    EXPECT_EQ(statusWith({{"identifier", "close"}}), 1);
    EXPECT_EQ(statusWith({{"path", path + ".0"}}), 1);
    EXPECT_EQ(statusWith({{"screen", "paywall"}, {"identifier", "close"}}), 1);
    EXPECT_EQ(statusWith({{"file", "offers.json"}}), 1) << "findings of screens have no file";
}

// --- Scenarios ---

class AuditedScenarios : public AuditedScreens {
protected:
    std::vector<std::string> rulesIn(const Json& scenario, const Json& variations = nullptr) {
        Json whole = scenario;
        whole["offers"] = {{"options", sampleOffers()["options"]}};
        std::vector<std::string> arguments{"audit", folder.write("scenario.json", whole).string(), "--format", "json"};
        if (!variations.is_null())
            arguments.insert(arguments.end(), {"--matrix", folder.write("variations.json", variations).string()});
        const Outcome outcome = runProgram(arguments);
        EXPECT_THAT(outcome.errors, IsEmpty());
        std::vector<std::string> told;
        const Json found = Json::parse(outcome.output)["findings"];
        for (const Json& finding : found)
            if (finding["rule"] != "small target")
                told.push_back(finding["screen"].get<std::string>() + " " + finding["rule"].get<std::string>() + " [" +
                               finding["configuration"].get<std::string>() + "] " + finding["configurations"].dump());
        return told;
    }
};

TEST_F(AuditedScenarios, AreListenedTo) {
    const Json device{{"locale", "de"}, {"strings", {{"de", {{"Terms of Service", "Privacy Policy"}}}}}};

    EXPECT_THAT(rulesIn({{"device", device}}), ElementsAre("VelaProUpsellViewController doubled name [de large 375x800 light] 1"));
}

TEST_F(AuditedScenarios, AreLookedAtAsTheyArePainted) {
    folder.write("white.png", std::string(whiteBytes, sizeof whiteBytes - 1));
    const auto theme = folder.write("theme.json", Json{{"pictures", {{"paywallHeaderB", "white.png"}}}});

    EXPECT_THAT(rulesIn({{"device", {{"theme", theme.string()}, {"appearance", "dark"}}}, {"steps", {{{"wait", 7}}}}}),
                ElementsAre("VelaProUpsellViewController faint [en_US large 375x800 dark] 1"));
}

TEST_F(AuditedScenarios, AreOverWhenNothingIsShown) {
    const Json scenario{{"steps", {{{"send", "cancel"}}}}};

    EXPECT_THAT(rulesIn(scenario), IsEmpty());
    EXPECT_THAT(rulesIn(scenario, {{"sizes", {{320, 568}}}}), IsEmpty());
}

TEST_F(AuditedScenarios, StayInALanguageWhereTheirInputsSetSomethingElse) {
    Json scenario{{"device", {{"locale", "en_US"}, {"strings", {{"de", {{"Annually", longWord}}}}}}},
                  {"inputs", {{{"time", 1}, {"set", {{"size", {320, 568}}}}}}}};
    const std::string broken = "VelaProUpsellViewController broken word [de large 320x568 light] 1";

    EXPECT_THAT(rulesIn(scenario, {{"locales", {"de"}}}), ElementsAre(broken));
    // What is set itself is kept.
    scenario["inputs"][0]["set"]["locale"] = "fr";
    EXPECT_THAT(rulesIn(scenario, {{"locales", {"de"}}}), IsEmpty());
}

} // namespace proupsells::tests
