// Scenarios with inputs at exact times, and with all that they need inside.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

Json dumpOf(const Json& scenario) { return play(scenario).events("screen").at(0)["root"]; }

std::vector<double> timesOf(const std::vector<Json>& events) {
    std::vector<double> times_s;
    for (const Json& event : events) times_s.push_back(event["time"]);
    return times_s;
}

} // namespace

TEST(RecordedScenario, TouchesAtTheTimesThatAreWritten) {
    const Json close = find(dumpOf({{"steps", {{{"dump", "screen"}}}}}), "close")["frame"];
    const Json at{close[0].get<double>() + 22, close[1].get<double>() + 22};
    const auto touch = [&](double time, const char* phase) { return Json{{"time", time}, {"touch", phase}, {"at", at}}; };

    const Outcome outcome = play({{"inputs", {touch(0.9, "began"), touch(1.123, "ended")}}});

    EXPECT_THAT(timesOf(outcome.events("dismiss")), ElementsAre(1.123));
}

TEST(RecordedScenario, LetsNoTimePassWhileSomethingIsPresented) {
    const Json inputs{{{"time", 0.1}, {"key", "escape"}}, {{"time", 0.2}}};

    const Outcome outcome = play({{"inputs", inputs}});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.events("dismiss"), IsEmpty());
    EXPECT_THAT(timesOf(outcome.events()), testing::Each(testing::Le(0.2)));
}

TEST(RecordedScenario, ReadsTranslationsOfSeveralLanguagesInAnyOrder) {
    Json strings = Json::object();
    for (const char* const language : {"fr", "de", "nl", "es"})
        strings[language] = {{"Subscribe Now", "in " + std::string(language)}};
    for (const auto& [language, texts] : strings.items()) {
        const Json device{{"locale", language}, {"strings", strings}};
        const Json screen = dumpOf(
            {{"device", device}, {"steps", Json::parse(R"([{"tap": {"identifier": "plan.pro.monthly"}}, {"dump": "screen"}])")}});
        EXPECT_EQ(find(screen, "subscribe")["label"], "in " + language);
    }
}

TEST(RecordedScenario, EndsWhereTheLastInputIs) {
    const Outcome outcome = play({{"inputs", {{{"time", 12.5}}}}});

    for (const double time_s : timesOf(outcome.events())) EXPECT_LE(time_s, 12.5);
}

TEST(RecordedScenario, GoesOnWithItsSteps) {
    const Json scenario{{"inputs", {{{"time", 1}, {"send", "comparePlans"}}}}, {"steps", {{{"dump", "screen"}}}}};

    const auto screens = play(scenario).events("screen");

    ASSERT_THAT(screens, SizeIs(1));
    EXPECT_EQ(screens[0]["controller"], "UINavigationController");
}

TEST(RecordedScenario, ReadsTranslationsThatStandInIt) {
    const Json device{{"locale", "de_AT"}, {"strings", {{"de", {{"Start Your Free Trial", "Jetzt \"gleich\"\nabonnieren"}}}}}};

    const Json screen = dumpOf({{"device", device}, {"steps", {{{"dump", "screen"}}}}});

    EXPECT_EQ(find(screen, "subscribe")["label"], "Jetzt \"gleich\"\nabonnieren");
}

TEST(RecordedScenario, ReadsAThemeThatStandsInIt) {
    const Folder folder;
    const std::filesystem::path themes = std::filesystem::path(PROUPSELLS_SOURCES) / "Examples" / "themes";
    Json inside = Json::parse(bytesOf(themes / "evening.json"));
    inside.erase("pictures");
    inside.erase("faces");
    const auto look = [&](const Json& theme) {
        const Json scenario{
            {"offers", sampleOffers()}, {"device", {{"theme", theme}, {"scale", 1}}}, {"steps", {{{"snapshot", "paywall.png"}}}}};
        runProgram({"run", folder.write("scenario.json", scenario).string(), "--out", folder.path().string()});
        return bytesOf(folder.path() / "paywall.png");
    };

    const std::string own = look(nullptr), themed = look(inside);

    EXPECT_FALSE(themed.empty());
    EXPECT_NE(themed, own);
    EXPECT_EQ(look(folder.write("theme.json", inside).string()), themed);
}

TEST(RecordedShow, SaysInOneLineThatTheFileCannotBeWritten) {
    const Folder folder;
    for (const std::filesystem::path& file : {folder.path() / "nowhere" / "recording.json", folder.path()}) {
        const Outcome outcome = runProgram({"show", "--record", file.string()});

        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.output, IsEmpty());
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
        EXPECT_THAT(outcome.errors, StartsWith(file.string() + ": /: "));
    }
}

TEST(RecordedShow, RefusesTranslationsThatCannotBeRecorded) {
    const Folder folder;
    folder.write("de.lproj/Localizable.strings", std::string("\"Pro\" = "));

    const Outcome outcome =
        runProgram({"show", "--strings", folder.path().string(), "--record", (folder.path() / "recording.json").string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
    EXPECT_THAT(outcome.errors, HasSubstr("Localizable.strings: /: "));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "recording.json"));
}
