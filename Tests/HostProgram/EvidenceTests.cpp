// `evidence`: what a customer was shown and agreed to.
#include <gmock/gmock.h>

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

TEST(EvidenceCommand, SaysInOneLineThatItCannotWrite) {
    const Folder folder;
    const auto scenario = folder.write("scenario.json", purchase());
    const Outcome outcome =
        runProgram({"evidence", scenario.string(), "--out", (folder.path() / "nowhere" / "evidence.html").string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
}
