// `evidence`: what a customer was shown and agreed to.
#include <gmock/gmock.h>

#include <cstdlib>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

const Json purchaseSteps = {{{"tap", {{"identifier", "plan.pro.monthly"}}}}, {{"tap", "Subscribe Now"}}};

Json purchase() {
    return {{"offers",
             {{"options", sampleOffers()["options"]}, {"annualSubscriptionPriceForComparisonWithPromotionalPrice", "$119.99"}}},
            {"device", {{"scale", 1}}},
            {"steps", purchaseSteps}};
}

Outcome writeEvidence(const Folder& folder, const Json& scenario) {
    return runProgram(
        {"evidence", folder.write("scenario.json", scenario).string(), "--out", (folder.path() / "evidence.html").string()});
}

} // namespace

TEST(EvidenceCommand, ShowsWhatTheCustomerAgreedTo) {
    const Folder folder;
    const Outcome outcome = writeEvidence(folder, purchase());

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, IsEmpty());
    const std::string html = bytesOf(folder.path() / "evidence.html");
    EXPECT_THAT(html, AllOf(HasSubstr("<!-- SHA-256: " + outcome.output.substr(0, 64) + " -->\n"), HasSubstr("<s>$119.99</s>"),
                            HasSubstr(">Payment will be made immediately.<"), HasSubstr("didContinueWith"),
                            HasSubstr("<section class=\"moment agreed\">"), HasSubstr("data:image/png;base64,iVBOR")));
}

TEST(EvidenceCommand, NamesTheModuleAndTheWholeDevice) {
    const Folder folder;
    Json scenario = purchase();
    scenario["steps"] = Json::array();
    const auto rowsOf = [&](const Json& device) {
        scenario["device"] = device;
        writeEvidence(folder, scenario);
        const std::string html = bytesOf(folder.path() / "evidence.html"), begin = "<h2>Program and device</h2>\n<table>\n";
        const std::size_t at = html.find(begin) + begin.size();
        return html.substr(at, html.find("</table>", at) - at);
    };
    const std::string row = "<tr><th scope=\"row\">", between = "</th><td>", end = "</td></tr>\n";

    EXPECT_EQ(rowsOf({{"scale", 0.5},
                      {"size", {320.5, 600}},
                      {"safeArea", {20, 1, 34, 2}},
                      {"appearance", "dark"},
                      {"textSize", "extraLarge"},
                      {"reduceMotion", true},
                      {"locale", "en_GB"}}),
              row + "Module" + between + "@(#)PROGRAM:ProUpsells  PROJECT:ProUpsells-1" + end +              //
                  row + "Language" + between + "en_GB" + end +                                               //
                  row + "Window in points" + between + "320.5 x 600" + end +                                 //
                  row + "Pixels a point" + between + "0.5" + end +                                           //
                  row + "Covered by the system: top, left, bottom, right" + between + "20, 1, 34, 2" + end + //
                  row + "Appearance" + between + "dark" + end +                                              //
                  row + "Text size" + between + "extraLarge" + end +                                         //
                  row + "Reduced motion" + between + "yes" + end);
    EXPECT_THAT(rowsOf({{"scale", 1}}), AllOf(HasSubstr(row + "Appearance" + between + "light" + end),
                                              HasSubstr(row + "Reduced motion" + between + "no" + end)));
}

TEST(EvidenceCommand, NamesEveryKeyOfEveryPlan) {
    const Folder folder;
    writeEvidence(folder, purchase());

    const std::string row = "<tr><th scope=\"row\">", between = "</th><td>", end = "</td></tr>\n";
    EXPECT_THAT(bytesOf(folder.path() / "evidence.html"),
                AllOf(HasSubstr(row + "SKU" + between + "pro.yearly" + end + row + "type" + between + "yearly" + end + row +
                                "price" + between + "$99.99" + end + row + "monthlyEffectivePrice" + between + "$8.33" + end + row +
                                "introductoryPrice" + between + "null" + end + row + "introductoryPeriodLength" + between +
                                "1 week" + end + row + "hasUsedFreeTrial" + between + "false" + end),
                      HasSubstr(row + "SKU" + between + "pro.forever" + end + row + "type" + between + "lifetime" + end)));
}

TEST(EvidenceCommand, NamesEachTextWithItsControlPlaceSizeAndContrast) {
    const Folder folder;
    Json scenario = purchase();
    scenario["device"] = {{"scale", 1}, {"fonts", "fixed"}};
    writeEvidence(folder, scenario);
    const std::string html = bytesOf(folder.path() / "evidence.html");

    const auto row = [](const char* text, const char* control, const char* place, const char* size, const char* contrast) {
        const std::string number = "</td><td class=\"number\">";
        return "<tr><td>" + std::string(text) + "</td><td>" + control + number + place + number + size + number + contrast +
               "</td>";
    };
    // A character is half as wide as its size, a line 1.25 of it high.
    EXPECT_THAT(html,
                AllOf(HasSubstr("<h3>0.5 s: the screen stands</h3>\n"),
                      HasSubstr("<h3>0.5 s: <code>{&quot;tap&quot;:&quot;Subscribe Now&quot;}</code></h3>\n"),
                      HasSubstr("<img alt=\"Choose Your Plan\" width=\"375\" height=\"800\" src=\"data:image/png;base64,"),
                      HasSubstr(row("Endless premium templates, updated daily.", "", "10 181 234 45", "18", "16.1:1")),
                      HasSubstr(row("7 Day Free Trial", "trial.pro.yearly", "112 345 88 13.75", "11", "6.4:1")),
                      HasSubstr(row("Payment will be made immediately.", "disclaimer", "88.5 636.25 198 15", "12", "6.2:1"))));
}

// As the document says that anybody can.
TEST(EvidenceCommand, HasTheDigestOfAllThatFollowsIt) {
    const Folder folder;
    const Outcome outcome = writeEvidence(folder, purchase());
    const std::string command = "tail -n +3 '" + (folder.path() / "evidence.html").string() + "' | sha256sum > '" +
                                (folder.path() / "digest").string() + "'";

    ASSERT_EQ(std::system(command.c_str()), 0);

    EXPECT_EQ(bytesOf(folder.path() / "digest"), outcome.output.substr(0, 64) + "  -\n");
    EXPECT_EQ(outcome.output.size(), 65u);
}

TEST(EvidenceCommand, SaysTheSameEveryTimeAndAnotherDigestOfAnotherPrice) {
    const Folder folder;
    Json scenario = purchase();
    const Outcome first = writeEvidence(folder, scenario);
    const std::string html = bytesOf(folder.path() / "evidence.html");
    EXPECT_EQ(writeEvidence(folder, scenario).output, first.output);
    EXPECT_EQ(bytesOf(folder.path() / "evidence.html"), html);

    scenario["offers"]["options"][1]["price"] = "$14.98";
    EXPECT_NE(writeEvidence(folder, scenario).output, first.output);
}

TEST(EvidenceCommand, WritesNothingAboutAScenarioThatCannotBePlayed) {
    const Folder folder;
    Json scenario = purchase();
    scenario["steps"].push_back({{"tap", "Buy"}});
    const Outcome outcome = writeEvidence(folder, scenario);

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "evidence.html"));
}

TEST(EvidenceCommand, ShowsTheScreenWhereItHasChangedAndTheAgreementWhereItWasMade) {
    const Folder folder;
    Json scenario = purchase();
    const Json theme{{"colours", {{"velaBackground", {{"light", "#FFF8EE"}}}, {"marwickContentAccent", {{"light", "#7A3E9D"}}}}}};
    scenario["steps"] = {{{"tap", "Subscribe Now"}}, {{"wait", 0}}, {{"set", {{"theme", theme}}}}, {{"send", "cancel"}}};
    scenario["offers"]["options"].erase(0);
    writeEvidence(folder, scenario);
    const std::string html = bytesOf(folder.path() / "evidence.html");
    std::vector<std::string> moments;
    for (std::size_t at = html.find("<section"); at != std::string::npos; at = html.find("<section", at + 1)) {
        const std::string moment = html.substr(at, html.find("</section>", at) - at);
        const auto has = [&](const char* words) { return moment.find(words) != std::string::npos; };
        moments.push_back(std::string(has("moment agreed") ? "agreed " : "") + (has("didContinueWith") ? "told " : "") +
                          (has("<img")                          ? "shown"
                           : has("The screen has not changed.") ? "unchanged"
                           : has("The screen has gone.")        ? "gone"
                                                                : ""));
    }

    // A theme changes pixels and nothing in the tree.
    EXPECT_THAT(moments, testing::ElementsAre("shown", "agreed told unchanged", "unchanged", "shown", "gone"));
}

TEST(EvidenceCommand, IsWrittenWhereAnExpectationDoesNotHoldToo) {
    const Folder folder;
    Json scenario = purchase();
    scenario["steps"] = {{{"expect", {{"absent", "close"}}}}};

    const Outcome outcome = writeEvidence(folder, scenario);

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(bytesOf(folder.path() / "evidence.html"), HasSubstr(outcome.output.substr(0, 64)));
}

TEST(EvidenceCommand, SaysThatItCannotWriteBeforeItPlays) {
    const Folder folder;
    Json scenario = purchase();
    scenario["steps"].push_back({{"tap", "Buy"}});
    const std::string file = (folder.path() / "nowhere" / "evidence.html").string();

    EXPECT_EQ(runProgram({"evidence", folder.write("scenario.json", scenario).string(), "--out", file}).errors,
              file + ": /: the file cannot be written, expected a place where one can be\n");
}

TEST(EvidenceCommand, SaysInOneLineThatItCannotWrite) {
    const Folder folder;
    const auto scenario = folder.write("scenario.json", purchase());
    const Outcome outcome =
        runProgram({"evidence", scenario.string(), "--out", (folder.path() / "nowhere" / "evidence.html").string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
}
