#include <gmock/gmock.h>

#include "Tests/Support/TemporaryFolder.hpp"
#include "Tooling/TranslationsLint.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;
using tooling::TranslatableText;
using tooling::Translation;

namespace {

constexpr TranslatableText oneText[] = {{"Save", "", "Paywall"}};
constexpr TranslatableText sentence[] = {{"**%1$@** of %2$@ (%%)", "", "Paywall"}};
constexpr TranslatableText price[] = {{"formerly %@", "", "Paywall"}};

// "rule key: message" of a German translation.
std::vector<std::string> findings(std::span<const TranslatableText> texts, std::map<std::string, std::string> translated,
                                  const std::string& language = "de") {
    std::vector<std::string> lines;
    const Translation translation{
        .language = language, .file = language + ".lproj/Localizable.strings", .texts = std::move(translated)};
    for (const auto& finding : tooling::lint(translation, texts)) {
        EXPECT_EQ(finding.file, translation.file);
        lines.push_back(finding.rule + " " + finding.place + ": " + finding.message);
    }
    return lines;
}

std::vector<std::string> findingsOf(const std::string& text) { return findings(sentence, {{std::string(sentence[0].key), text}}); }

TEST(TranslationsLint, HasNothingToSayOfAGoodTranslation) {
    EXPECT_THAT(findings(oneText, {{"Save", "Sparen"}}), IsEmpty());
    EXPECT_THAT(findingsOf("Von %2$@ **%1$@** %%"), IsEmpty());
    EXPECT_THAT(findingsOf("%2$@, **%1$@**, 5 % von %2$@"), IsEmpty());
    EXPECT_THAT(findings(price, {{"formerly %@", "früher %1$@"}}), IsEmpty());
}

TEST(TranslationsLint, FindsWhatIsMissingUnusedOrStillInEnglish) {
    EXPECT_THAT(findings(oneText, {}), ElementsAre("missing translation Save: is missing and shows in English; translate it"));
    EXPECT_THAT(findings(oneText, {{"Save", ""}}), ElementsAre(testing::StartsWith("missing translation Save")));
    EXPECT_THAT(findings(oneText, {{"Save", "Sparen"}, {"Safe", "x"}}),
                ElementsAre("unused translation Safe: is a text of no screen; take it out, or correct its key"));
    EXPECT_THAT(findings(oneText, {{"Save", "Save"}}), ElementsAre("untranslated Save: is the same as in English; translate it"));
    EXPECT_THAT(findings(oneText, {{"Save", "Save"}}, "en-GB"), IsEmpty());
}

TEST(TranslationsLint, FindsLostPlaceholders) {
    EXPECT_THAT(findingsOf("**%1$@** %%"),
                ElementsAre("lost placeholder **%1$@** of %2$@ (%%): \"**%1$@** %%\" has lost %2$@; put it back"));
    EXPECT_THAT(findingsOf("**%1$@** von %2$@"), ElementsAre(testing::HasSubstr("has lost %%; put it back")));
    EXPECT_THAT(findings(price, {{"formerly %@", "früher % @"}}), ElementsAre(testing::HasSubstr("has lost %@; put it back")));
}

TEST(TranslationsLint, FindsAddedPlaceholders) {
    EXPECT_THAT(findingsOf("**%1$@** %2$@ %3$@ %%"), ElementsAre(testing::StartsWith("added placeholder")));
    EXPECT_THAT(findings(price, {{"formerly %@", "%@ %@"}}), ElementsAre(testing::HasSubstr("has one %@ more")));
    EXPECT_THAT(findings(oneText, {{"Save", "Sparen: %@"}}), ElementsAre(testing::StartsWith("added placeholder")));
}

TEST(TranslationsLint, FindsPlaceholdersInAnOrderWithoutNumbers) {
    EXPECT_THAT(findingsOf("%@ **%@** %%"), ElementsAre(testing::StartsWith("placeholders without numbers")));
}

TEST(TranslationsLint, FindsLostBoldMarks) {
    EXPECT_THAT(findingsOf("**%1$@ von %2$@ %%"), ElementsAre(testing::HasSubstr("has 1 of the 2 marks **")));
}

TEST(TranslationsLint, ReadsAFolderByName) {
    const tests::TemporaryFolder folder;
    for (const char* language : {"fr.lproj", "de.lproj", "notes"}) std::filesystem::create_directories(folder.path() / language);
    folder.write("fr.lproj/Localizable.strings", std::string_view("\"Save\" = \"Économisez\";"));
    folder.write("de.lproj/Localizable.strings", std::string_view("\"Save\" = "));

    const auto translations = tooling::readTranslations(folder.path());

    ASSERT_THAT(translations, testing::SizeIs(2));
    EXPECT_EQ(translations[0].language, "de");
    EXPECT_THAT(translations[0].error, testing::StartsWith("line 1: "));
    EXPECT_THAT(translations[1].texts, ElementsAre(testing::Pair("Save", "Économisez")));
    EXPECT_EQ(translations[1].file, "fr.lproj/Localizable.strings");
}

} // namespace
