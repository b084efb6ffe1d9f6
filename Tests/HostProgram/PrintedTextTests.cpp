// What the program prints about itself, word for word. After a change that is meant, the files in Printed/ are printed anew.
#include <gmock/gmock.h>

#include <algorithm>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

namespace {

struct PrintedText {
    std::vector<std::string> arguments;
    const char* file;
};

class PrintedTexts : public testing::TestWithParam<PrintedText> {};

} // namespace

TEST_P(PrintedTexts, AreAsTheyWere) {
    const std::string printed = bytesOf(std::filesystem::path(PROUPSELLS_SOURCES) / "Tests/HostProgram/Printed" / GetParam().file);
    ASSERT_FALSE(printed.empty());

    const Outcome outcome = runProgram(GetParam().arguments);

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, printed);
}

INSTANTIATE_TEST_SUITE_P(HostProgram, PrintedTexts,
                         testing::Values(PrintedText{{"--help"}, "help.txt"}, PrintedText{{"manual"}, "manual.1"},
                                         PrintedText{{"completion", "bash"}, "completion.bash"},
                                         PrintedText{{"completion", "zsh"}, "completion.zsh"},
                                         PrintedText{{"completion", "fish"}, "completion.fish"},
                                         PrintedText{{"texts"}, "texts.strings"},
                                         PrintedText{{"texts", "--format", "pot"}, "texts.pot"},
                                         PrintedText{{"texts", "--format", "json"}, "texts.json"}),
                         [](const auto& text) {
                             std::string name = text.param.file;
                             std::replace(name.begin(), name.end(), '.', '_');
                             return name;
                         });

TEST(WrongArguments, AreComplainedAboutInOneLine) {
    struct Wrong {
        std::vector<std::string> arguments;
        std::string line;
    };
    for (const auto& [arguments, complaint] : std::vector<Wrong>{
             {{"texts", "--format", "x"}, R"(/format: "x" is not known, expected one of "strings", "pot", "json")"},
             {{"lint", "a.json", "--format", "x"}, R"(/format: "x" is not known, expected one of "text", "json")"},
             {{"audit", "--format", "x"}, R"(/format: "x" is not known, expected one of "text", "json", "sarif")"},
             {{"completion", "x"}, R"(/shell: "x" is not known, expected one of "bash", "zsh", "fish")"},
             {{"show", "--start", "x"}, R"(/start: "x" is not known, expected one of "paywall", "comparison", "store")"},
             {{"show", "--size", "375"}, "/device/size: 1 elements stand here, expected a width and a height in points"},
             {{"show", "--size", "375x8oo"}, "/device/size: a text stands here, expected a width and a height in points"},
             {{"show", "--size", "375,800"}, "/device/size: a text stands here, expected a width and a height in points"},
             {{"show", "--scale", "two"}, "/device/scale: a text stands here, expected pixels a point, from 0.25 to 8"},
             {{"show", "--scale", "9"}, "/device/scale: the number 9.0 is out of range, expected pixels a point, from 0.25 to 8"},
             {{"show", "--safe-area", "1,2,3"},
              "/device/safeArea: 3 elements stand here, expected the insets top, left, bottom, right in points, not negative"},
             {{"show", "--safe-area", "1x2x3x4"},
              "/device/safeArea: a text stands here, expected the insets top, left, bottom, right in points, not negative"},
             {{"show", "--locale", "?"}, R"(/device/locale: "?" is no locale, expected one such as "de_AT")"},
             {{"show", "--scale", "2x"}, "/device/scale: a text stands here, expected pixels a point, from 0.25 to 8"},
             {{"show", "--strings", "nowhere"},
              R"(/device/strings: there is no folder "nowhere", expected one with <language>.lproj folders)"},
             {{"read", "paywall", "--text-size", "huge", "--appearance", "blue"},
              R"(/device/appearance: "blue" is not known, expected one of "light", "dark")"},
         }) {
        const Outcome outcome = runProgram(arguments);

        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors.substr(outcome.errors.find(": ") + 2), complaint + "\n") << testing::PrintToString(arguments);
    }
}

TEST(WrongArguments, AreThoseThatNoCommandTakes) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{{"fly"}, {"run"}, {"texts", "--fast"}}) {
        const std::string line = runProgram(arguments).errors;

        EXPECT_THAT(line, testing::StartsWith("command line: /: ")) << arguments.front();
        EXPECT_THAT(line, testing::EndsWith(", expected arguments as `proupsells --help` lists them\n")) << arguments.front();
    }
}

TEST(WrongArguments, AreWhatCannotGoTogether) {
    const Folder folder;
    const std::string scenario = folder.write("scenario.json", Json{{"offers", sampleOffers()}}).string();
    const std::string gallery = (folder.path() / "gallery").string();

    EXPECT_THAT(runProgram({"audit", scenario, "--theme", PROUPSELLS_SOURCES "/Examples/themes/evening.json"}).errors,
                testing::EndsWith(": /: a scenario has a device of its own, expected no --strings or --theme\n"));
    EXPECT_THAT(runProgram({"audit", scenario, "--strings", PROUPSELLS_SOURCES "/Examples/Translations"}).errors,
                testing::EndsWith(": /: a scenario has a device of its own, expected no --strings or --theme\n"));
    EXPECT_EQ(runProgram({"evidence", scenario, "--out", folder.path().string()}).errors,
              folder.path().string() + ": /: the file cannot be written, expected a place where one can be\n");
    EXPECT_EQ(runProgram({"gallery", "--out", folder.path().string()}).errors,
              folder.path().string() +
                  ": /: the folder holds other things than a gallery, expected a folder to write a gallery into\n");
    EXPECT_EQ(runProgram({"gallery", "--out", scenario}).errors,
              scenario + ": /: the folder cannot be made, expected a folder to write a gallery into\n");
    EXPECT_THAT(runProgram({"gallery", "--out", gallery, "--compare", folder.path().string()}).errors,
                testing::EndsWith(", expected the page of a gallery\n"));
    EXPECT_FALSE(std::filesystem::exists(gallery));
}

} // namespace proupsells::tests
