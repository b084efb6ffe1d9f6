// `read`: what a screen reader says.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

Outcome readSteps(const Json& steps) {
    const Folder folder;
    const Json scenario{{"offers", {{"options", sampleOffers()["options"]}}}, {"device", {{"fonts", "fixed"}}}, {"steps", steps}};
    return runProgram({"read", folder.write("scenario.json", scenario).string()});
}

} // namespace

TEST(ReadCommand, SaysAScreenInOrder) {
    const Outcome outcome = runProgram({"read", "comparison"});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, IsEmpty());
    EXPECT_THAT(outcome.output, AllOf(StartsWith("dialog \"Compare Plans\"\n  button \"Close\"\n"),
                                      HasSubstr("  disclosure \"Content And Assets\", expanded\n"),
                                      HasSubstr("  disclosure \"Creation Tools\", collapsed\n")));
}

TEST(ReadCommand, SaysEachScreen) {
    EXPECT_THAT(runProgram({"read", "paywall"}).output, StartsWith("dialog \"Choose Your Plan\"\n"));
    EXPECT_THAT(runProgram({"read", "store"}).output, StartsWith("dialog \"Marwick Folio Pro\"\n"));
}

TEST(ReadCommand, SaysTheSameAgain) { EXPECT_EQ(runProgram({"read", "store"}).output, runProgram({"read", "store"}).output); }

TEST(ReadCommand, SaysAScreenOfOtherOffersAndLanguages) {
    const Folder folder;
    const auto offers = folder.write("offers.json", Json{{"options", {{{"SKU", "m"}, {"type", "monthly"}, {"price", "€7"}}}}});

    const std::string output = runProgram({"read", "paywall", "--offers", offers.string(), "--locale", "en_XA"}).output;

    EXPECT_THAT(output, AllOf(HasSubstr("€7"), Not(HasSubstr("Subscribe Now"))));
}

TEST(ReadCommand, SaysWhatEachStepChanges) {
    const Outcome outcome = readSteps({{{"tap", {{"identifier", "plan.pro.monthly"}}}}, {{"wait", 0}}});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, AllOf(StartsWith("dialog \"Choose Your Plan\"\n"),
                                      HasSubstr("\n> {\"tap\":{\"identifier\":\"plan.pro.monthly\"}}\n"),
                                      HasSubstr("per month\": checked\n"), testing::EndsWith("\n> {\"wait\":0}\n")));
}

TEST(ReadCommand, SaysAnotherScreenWhole) {
    EXPECT_THAT(readSteps({{{"send", "comparePlans"}}}).output,
                HasSubstr("> {\"send\":\"comparePlans\"}\n  screen: dialog \"Compare Plans\"\n    button \"Close\"\n"));
}

TEST(ReadCommand, SaysWhereTheFocusGoes) {
    EXPECT_THAT(readSteps({{{"key", "tab"}}}).output, HasSubstr("> {\"key\":\"tab\"}\n  focus: button \"Close\"\n"));
}

TEST(ReadCommand, TakesNoPictures) {
    const Folder folder;
    const auto file = folder.write("scenario.json", Json{{"offers", {{"options", sampleOffers()["options"]}}},
                                                         {"steps", {{{"snapshot", "read-takes-no-pictures.png"}}}}});

    EXPECT_EQ(runProgram({"read", file.string()}).status, 0);
    EXPECT_FALSE(std::filesystem::exists("read-takes-no-pictures.png"));
}

TEST(ReadCommand, RefusesWhatIsNeitherAScreenNorAFile) {
    const Outcome outcome = runProgram({"read", "shop"});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
}

TEST(ReadCommand, SaysNothingWhenAStepCannotBeDone) {
    const Outcome outcome = readSteps({{{"tap", "Nothing of the kind"}}});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
}

TEST(ReadCommand, ReportsAnExpectationThatDoesNotHold) {
    EXPECT_EQ(readSteps({{{"expect", {{"identifier", "subscribe"}, {"label", "Other"}}}}}).status, 1);
}
