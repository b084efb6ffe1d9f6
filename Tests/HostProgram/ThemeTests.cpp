// A brand in a file: the key `theme` of a device, and the option `--theme` of `show`.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

const Json readable = {{"colours", {{"velaBackground", {{"light", "#FFF8EE"}}}, {"marwickContentAccent", {{"light", "#7A3E9D"}}}}}};

class ThemeOfTheHost : public testing::Test {
protected:
    // The pictures of a run that shows a paywall, sets some keys, and shows it again.
    struct Pictures {
        std::string before, after;
    };
    Pictures play(const Json& device, const Json& set) {
        const auto scenario = folder.write(
            "scenario.json",
            Json{{"offers", sampleOffers()},
                 {"device", device},
                 {"steps",
                  Json::array({{{"snapshot", "before.png"}}, {{"set", set}}, {{"snapshot", "after.png"}}, {{"dump", "screen"}}})}});
        outcome = runProgram({"run", scenario.string(), "--out", folder.path().string()});
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return {bytesOf(folder.path() / "before.png"), bytesOf(folder.path() / "after.png")};
    }

    Folder folder;
    Outcome outcome;
};

struct BadTheme {
    const char* name;
    std::string bytes;
    const char* pointer;
    const char* complaint;
};

void PrintTo(const BadTheme& theme, std::ostream* stream) { *stream << theme.name; }

// The folder above the working directory, or above this source, that has the examples.
std::filesystem::path exampleThemes() {
    for (auto start : {std::filesystem::current_path(), std::filesystem::absolute(__FILE__)})
        for (auto folder = start; folder != folder.parent_path(); folder = folder.parent_path())
            if (std::filesystem::exists(folder / "Examples/themes")) return folder / "Examples/themes";
    return {};
}

class BadThemeFile : public testing::TestWithParam<BadTheme> {};

} // namespace

TEST_F(ThemeOfTheHost, IsFollowedWhileAScreenIsShown) {
    folder.write("brand.json", readable);

    const Pictures set = play({{"size", {375, 800}}}, {{"theme", "brand.json"}});
    const Json themed = outcome.events("screen").at(0)["root"];
    const Pictures given = play({{"theme", "brand.json"}}, {{"appearance", "light"}});

    EXPECT_NE(set.before, set.after);
    EXPECT_EQ(set.after, given.before);
    EXPECT_EQ(themed, outcome.events("screen").at(0)["root"]);
}

TEST_F(ThemeOfTheHost, LeavesNoTraceWhenItIsTakenAway) {
    folder.write("brand.json", readable);

    const Pictures plain = play({{"size", {375, 800}}}, {{"appearance", "light"}});
    const Pictures themed = play({{"theme", "brand.json"}}, {{"theme", nullptr}});

    EXPECT_NE(themed.before, plain.before);
    EXPECT_EQ(themed.after, plain.after);
}

TEST_F(ThemeOfTheHost, IsShownWithoutAComplaintWhereItIsAnExample) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(exampleThemes())) {
        if (entry.path().extension() != ".json") continue;
        ++count;

        const Pictures pictures = play({{"theme", entry.path().string()}}, {{"theme", nullptr}});

        EXPECT_NE(pictures.before, pictures.after) << entry.path();
        EXPECT_THAT(outcome.events("log"), IsEmpty()) << entry.path();
    }
    EXPECT_GT(count, 0);
}

TEST_F(ThemeOfTheHost, TellsAMissingFileInTheLogAndGoesOn) {
    Json theme = readable;
    theme["pictures"] = {{"paywallHeaderA", "none.png"}};
    theme["faces"] = {{"headings", {{"family", "Brand"}, {"files", {{{"file", "none.otf"}, {"weight", 700}}}}}}};
    folder.write("brand.json", theme);

    play({{"theme", "brand.json"}}, {{"appearance", "light"}});

    std::vector<std::string> messages;
    for (const Json& event : outcome.events("log")) messages.push_back(event["message"]);
    EXPECT_THAT(messages, ElementsAre(AllOf(HasSubstr((folder.path() / "none.png").string()), HasSubstr("paywallHeaderA")),
                                      HasSubstr((folder.path() / "none.otf").string())));
}

TEST_F(ThemeOfTheHost, TellsEveryFaintContrastAndShowsNothing) {
    const auto theme = folder.write("brand.json", Json{{"colours", {{"velaBorder", "#CCCCCC"}}}});
    const auto scenario = folder.write("scenario.json", Json{{"offers", sampleOffers()}, {"device", {{"theme", "brand.json"}}}});

    const Outcome refused = runProgram({"run", scenario.string()});

    EXPECT_EQ(refused.status, 2);
    EXPECT_THAT(refused.output, IsEmpty());
    EXPECT_THAT(refused.errorLines(),
                ElementsAre(StartsWith(theme.string() + ": /colours: colours do not stand out"),
                            "  velaBorder on velaBackground in light: 1.6:1, at least 3.0:1 is needed",
                            "  velaBorder on velaSecondaryAppBackground in light: 1.4:1, at least 3.0:1 is needed"));
}

TEST_F(ThemeOfTheHost, IsCheckedBeforeAWindowIsShown) {
    const auto theme = folder.write("brand.json", Json{{"colors", Json::object()}});

    const Outcome refused = runProgram({"show", "--theme", theme.string()});

    EXPECT_EQ(refused.status, 2);
    EXPECT_THAT(refused.errorLines(), ElementsAre(StartsWith(theme.string() + ": /colors: unknown key")));
}

TEST_P(BadThemeFile, IsRefusedInOneLine) {
    const Folder folder;
    const auto theme = folder.write("theme.json", GetParam().bytes);
    const auto scenario = folder.write("scenario.json", Json{{"offers", sampleOffers()}, {"device", {{"theme", "theme.json"}}}});

    const Outcome outcome = runProgram({"run", scenario.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    EXPECT_THAT(outcome.errorLines(), ElementsAre(AllOf(StartsWith(theme.string() + ": " + GetParam().pointer + ": "),
                                                        HasSubstr(GetParam().complaint), HasSubstr("expected"))));
}

INSTANTIATE_TEST_SUITE_P(
    HostProgram, BadThemeFile,
    testing::Values(BadTheme{"Malformed", "{", "/", "malformed JSON"}, BadTheme{"NoObject", "[]", "/", "an array"},
                    BadTheme{"UnknownKey", R"({"fonts": {}})", "/fonts", "unknown key \"fonts\""},
                    BadTheme{"UnknownColour", R"({"colours": {"velaBackgroud": "#FFFFFF"}})", "/colours/velaBackgroud",
                             "unknown key \"velaBackgroud\""},
                    BadTheme{"NoColour", R"({"colours": {"velaLabel": "teal"}})", "/colours/velaLabel", "\"teal\" is no colour"},
                    BadTheme{"ShortColour", R"({"colours": {"velaLabel": {"dark": "#FFF"}}})", "/colours/velaLabel/dark",
                             "\"#FFF\" is no colour"},
                    BadTheme{"OtherCharacters", R"({"colours": {"velaLabel": "#12345G"}})", "/colours/velaLabel", "is no colour"},
                    BadTheme{"UnknownAppearance", R"({"colours": {"velaLabel": {"night": "#FFFFFF"}}})", "/colours/velaLabel/night",
                             "unknown key"},
                    BadTheme{"UnknownFace", R"({"faces": {"body": "Inter"}})", "/faces/body", "unknown key"},
                    BadTheme{"NoFamily", R"({"faces": {"text": {"files": []}}})", "/faces/text", "\"family\" is missing"},
                    BadTheme{"EmptyFamily", R"({"faces": {"text": ""}})", "/faces/text", "empty"},
                    BadTheme{"WeightOutOfRange", R"({"faces": {"text": {"family": "A", "files": [{"file": "a", "weight": 0}]}}})",
                             "/faces/text/files/0/weight", "out of range"},
                    BadTheme{"UnknownPicture", R"({"pictures": {"paywallHeaderE": "e.png"}})", "/pictures/paywallHeaderE",
                             "unknown key \"paywallHeaderE\""},
                    BadTheme{"DarkPictureAlone", R"({"pictures": {"paywallHeaderA": {"dark": "e.png"}}})",
                             "/pictures/paywallHeaderA", "\"light\" is missing"},
                    BadTheme{"EmptyFileName", R"({"pictures": {"paywallHeaderA": ""}})", "/pictures/paywallHeaderA", "empty"}),
    [](const auto& info) { return std::string(info.param.name); });
