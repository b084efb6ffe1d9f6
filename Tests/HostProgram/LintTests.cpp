// `lint`: what is wrong with offers and translations.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

Json option(const std::string& type, const std::string& SKU, const std::string& price) {
    Json made{{"SKU", SKU}, {"type", type}, {"price", price}};
    if (type == "yearly") made["monthlyEffectivePrice"] = "$8.33";
    return made;
}

const Json goodOptions{option("yearly", "y", "$99.99"), option("monthly", "m", "$14.99")};

class LintCommand : public testing::Test {
protected:
    Outcome lint(const Json& options, std::vector<std::string> more = {}) {
        more.insert(more.begin(), {"lint", folder.write("offers.json", Json{{"options", options}}).string()});
        return runProgram(more);
    }

    // What `texts` prints, in brackets as if in another language.
    std::string translated() {
        std::string lines;
        const Json all = Json::parse(runProgram({"texts", "--format", "json"}).output);
        for (const Json& text : all["texts"]) {
            const std::string key = text["key"];
            // The narrow column of the free plan has no room for more than it has.
            const std::string translation = key == "%@ free" ? "%@ frei" : "«" + key + "»";
            lines += Json(key).dump() + " = " + Json(translation).dump() + ";\n";
        }
        return lines;
    }

    void writeGerman(const std::string& lines) { folder.TemporaryFolder::write("de.lproj/Localizable.strings", lines); }

    Folder folder;
};

} // namespace

TEST_F(LintCommand, HasNothingToSayOfGoodOffersAndTranslations) {
    writeGerman(translated());

    const Outcome outcome = lint(goodOptions, {"--strings", folder.path().string()});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errors, IsEmpty());
}

TEST_F(LintCommand, SaysWhatIsWrongWithOffersAndWhere) {
    const Outcome outcome = lint({option("monthly", "m", "$14.99"), option("monthly", "m", "€9.99")});

    EXPECT_EQ(outcome.status, 1);
    const std::string file = (folder.path() / "offers.json").string();
    EXPECT_THAT(outcome.output, StartsWith(file + ": /options/1/SKU: doubled SKU: "));
    EXPECT_THAT(outcome.output, HasSubstr("\n" + file + ": /options/1/price: other currency: "));
}

TEST_F(LintCommand, SaysWhatIsWrongWithATranslationAndWhere) {
    writeGerman(translated() + "\"formerly %@\" = \"früher\";\n");

    const Outcome outcome = lint(goodOptions, {"--strings", folder.path().string()});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, (folder.path() / "de.lproj/Localizable.strings").string() +
                                  ": \"formerly %@\": lost placeholder: \"früher\" has lost %@; put it back\n");
}

TEST_F(LintCommand, FindsATranslationThatIsLongerThanItsPlace) {
    const std::string word = "Donaudampfschifffahrtsgesellschaftskapitän";
    writeGerman(translated() + "\"Annually\" = \"" + word + "\";\n");

    const Json found = Json::parse(lint(goodOptions, {"--strings", folder.path().string(), "--format", "json"}).output)["findings"];

    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0]["rule"], "too long");
    EXPECT_EQ(found[0]["place"], "Annually");
    EXPECT_EQ(found[0]["message"],
              "\"" + word + "\" is broken inside, in \"" + word + "\" on a screen 320 points wide; shorten it");
    EXPECT_EQ(found[0]["file"], (folder.path() / "de.lproj/Localizable.strings").string());
}

TEST_F(LintCommand, NamesThePlaceOfATextThatIsPutTogether) {
    writeGerman(translated());
    const std::string price = "99Donaudampfschifffahrtsgesellschaftskapit\u00e4n";

    const Json found =
        Json::parse(lint({goodOptions[1], option("monthly", "n", price)}, {"--strings", folder.path().string(), "--format", "json"})
                        .output)["findings"];

    std::vector<std::string> places;
    for (const Json& finding : found)
        if (finding["rule"] == "too long") places.push_back(finding["place"]);
    EXPECT_THAT(places, testing::ElementsAre("paywall plan.n"));
}

TEST_F(LintCommand, ShowsNoPlansThatWouldStopTheProgram) {
    writeGerman(translated());

    const Outcome outcome =
        lint({option("yearly", "y", "99.99"), option("monthly", "m", "0")}, {"--strings", folder.path().string()});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("/options/1/price: monthly price of 0: "));
}

TEST_F(LintCommand, PrintsJson) {
    const Json findings = Json::parse(lint(Json::array({option("lifetime", "l", "$9")}), {"--format", "json"}).output)["findings"];

    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_THAT(lint(Json::array({option("lifetime", "l", "$9")}), {"--format", "json"}).output,
                StartsWith("{\n  \"findings\": [\n    {\n      \"rule\": \"plan never shown\",\n"));
    EXPECT_EQ(findings[0]["rule"], "plan never shown");
    EXPECT_EQ(findings[0]["place"], "/options/0/type");
    EXPECT_EQ(findings[0]["file"], (folder.path() / "offers.json").string());
}

TEST_F(LintCommand, LeavesOutWhatIsAcceptedForAReason) {
    const Json accepted{
        {"accepted", Json::array({{{"rule", "plan never shown"}, {"place", "/options/0/type"}, {"reason", "a test"}}})}};
    const Json options = Json::array({option("lifetime", "l", "$9"), option("lifetime", "k", "$9")});

    const Outcome outcome = lint(options, {"--accept", folder.write("accepted.json", accepted).string()});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, testing::Not(HasSubstr("/options/0/type")));
    EXPECT_THAT(outcome.output, HasSubstr("/options/1/type"));
}

TEST_F(LintCommand, LeavesOutWhatIsAcceptedInAFile) {
    const Json options = Json::array({option("lifetime", "l", "$9")});
    const auto statusWith = [&](const std::string& file) {
        const Json accepted{{"accepted", Json::array({{{"file", file}, {"reason", "a test"}}})}};
        return lint(options, {"--accept", folder.write("accepted.json", accepted).string()}).status;
    };

    EXPECT_EQ(statusWith((folder.path() / "offers.json").string()), 0);
    EXPECT_EQ(statusWith("offers.json"), 1);
}

TEST_F(LintCommand, SaysWhyTranslationsCannotBeUsed) {
    EXPECT_EQ(lint(goodOptions, {"--strings", folder.path().string()}).errors,
              folder.path().string() +
                  ": /: there are no translations, expected a folder of <language>.lproj/Localizable.strings\n");
    writeGerman("\"Save\" = ");
    EXPECT_THAT(lint(goodOptions, {"--strings", folder.path().string()}).errors,
                testing::AllOf(StartsWith((folder.path() / "de.lproj/Localizable.strings").string() + ": /: "),
                               testing::EndsWith(", expected lines of \"key\" = \"text\";\n")));
}

TEST_F(LintCommand, AcceptsNothingWithoutAReason) {
    const Json accepted{{"accepted", Json::array({{{"rule", "plan never shown"}}})}};

    const Outcome outcome = lint(goodOptions, {"--accept", folder.write("accepted.json", accepted).string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("accepted.json: /accepted/0: the key \"reason\" is missing"));
}

TEST_F(LintCommand, RefusesUnusableInputWithOneLine) {
    std::filesystem::create_directories(folder.path() / "fr.lproj");
    folder.TemporaryFolder::write("fr.lproj/Localizable.strings", "\"Save\" = ");
    for (const auto& arguments : {std::vector<std::string>{"--format", "xml"},
                                  {"--strings", folder.path().string()},
                                  {"--strings", (folder.path() / "nowhere").string()}}) {
        const Outcome outcome = lint(goodOptions, arguments);

        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.output, IsEmpty());
        EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    }
}
