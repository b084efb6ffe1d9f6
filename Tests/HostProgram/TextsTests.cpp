// `texts`: every text for translators.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

Json listedTexts() { return Json::parse(runProgram({"texts", "--format", "json"}).output)["texts"]; }

} // namespace

TEST(TextsCommand, ListsKeysWithCommentsAndScreens) {
    const Json texts = listedTexts();

    EXPECT_THAT(runProgram({"texts", "--format", "json"}).output, StartsWith("{\n  \"texts\": [\n    {\n      \"key\": \""));
    EXPECT_THAT(texts, Contains(Json({{"key", "Pro"},
                                      {"comment", "Header denoting offerings from the Pro subscription"},
                                      {"screen", "Comparison"}})));
    EXPECT_THAT(texts, Contains(Json({{"key", "Subscribe Now"}, {"comment", nullptr}, {"screen", "Paywall"}})));
}

TEST(TextsCommand, PrintsTranslationsToBeginWithUnlessAskedForAnotherFormat) {
    const Outcome outcome = runProgram({"texts"});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.errors, IsEmpty());
    EXPECT_EQ(outcome.output, runProgram({"texts", "--format", "strings"}).output);
    EXPECT_THAT(outcome.output, HasSubstr("\"Subscribe Now\" = \"Subscribe Now\";\n"));
}

TEST(TextsCommand, PrintsATemplateForGettext) {
    EXPECT_THAT(runProgram({"texts", "--format", "pot"}).output, HasSubstr("msgid \"Subscribe Now\"\nmsgstr \"\"\n"));
}

TEST(TextsCommand, RefusesOtherFormats) {
    const Outcome outcome = runProgram({"texts", "--format", "xliff"});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(outcome.errors, StartsWith("command line: /format: "));
}
