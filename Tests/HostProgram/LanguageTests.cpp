// `set` of a locale and of translations while a screen is shown.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::Contains;
using testing::SizeIs;

namespace {

const Json openings[] = {Json(nullptr), {{"tap", {{"identifier", "comparePlans"}}}}, {{"send", "whatIsPro"}}};

// German and Arabic translations of some of each screen's texts.
class LanguageOfTheHost : public testing::Test {
protected:
    LanguageOfTheHost() {
        for (const auto& [language, prefix] : {std::pair("de", "auf Deutsch "), std::pair("ar", "كلمة ")}) {
            std::string texts;
            for (const char* key : {"Annually", "Save %@", "Start Your Free Trial", "Close", "Compare Plans",
                                    "Thousands of photos, videos, graphics and fonts.", "Choose Your Plan", "choose your plan",
                                    "%@ free", "Content And Assets", "Free", "Upload brand assets", "page %1$@ of %2$@"})
                texts += "\"" + std::string(key) + "\" = \"" + prefix + key + "\";\n";
            std::filesystem::create_directories(folder.path() / (language + std::string(".lproj")));
            folder.write(language + std::string(".lproj/Localizable.strings"), texts);
        }
    }

    // The screen at the end of a run that opens a screen, sets some keys there, if any, and waits until the same time.
    Json screen(const Json& device, const Json& opening, const Json& set) {
        Json steps = Json::array();
        if (!opening.is_null()) steps.push_back(opening);
        steps.push_back({{"wait", 1}});
        if (!set.is_null()) steps.push_back({{"set", set}});
        for (const double duration_s : {0.0, 6.5}) {
            steps.push_back({{"wait", duration_s}});
            steps.push_back({{"dump", "screen"}});
        }
        const Outcome outcome = play({{"device", device}, {"steps", steps}});
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        Json result = Json::array();
        for (const Json& event : outcome.events("screen")) result.push_back(event["root"]);
        EXPECT_THAT(result, SizeIs(2));
        return result;
    }
    Json device(const std::string& locale) { return {{"locale", locale}, {"strings", folder.path().string()}}; }

    Folder folder;
};

} // namespace

TEST_F(LanguageOfTheHost, SetWhileAScreenIsShownMakesItAsIfItHadBeenOpenedInIt) {
    for (const Json& opening : {openings[0], openings[2]}) {
        for (const auto& [before, after] :
             {std::pair("en_US", "de_AT"), std::pair("de_AT", "ar_EG"), std::pair("ar_EG", "en_US")}) {
            const Json changed = screen(device(before), opening, {{"locale", after}});

            EXPECT_EQ(changed, screen(device(after), opening, nullptr)) << opening << " from " << before << " to " << after;
        }
    }
}

TEST_F(LanguageOfTheHost, SetBeforeTheComparisonIsFirstOpenedReachesItsCatalogueToo) {
    const Json steps = {{{"set", {{"locale", "de_AT"}}}}, openings[1], {{"dump", "screen"}}};

    const auto changed = play({{"device", device("en_US")}, {"steps", steps}}).events("screen");
    const auto fresh = play({{"device", device("de_AT")}, {"steps", {openings[1], {{"dump", "screen"}}}}}).events("screen");

    EXPECT_EQ(changed, fresh);
    EXPECT_THAT(texts(changed.at(0)["root"]), Contains("auf Deutsch Content And Assets"));
}

TEST_F(LanguageOfTheHost, SetWhileTheComparisonIsShownLeavesItsCatalogueAndHeadings) {
    const Json root = screen(device("en_US"), openings[1], {{"locale", "de_AT"}}).at(0);

    const auto shown = texts(root);
    EXPECT_THAT(shown,
                testing::IsSupersetOf({"Content And Assets", "FREE", "auf Deutsch Compare Plans", "auf Deutsch Choose Your Plan"}));
    EXPECT_EQ(find(root, "comparison.close")["label"], "auf Deutsch Close");
}

TEST_F(LanguageOfTheHost, SetAsTranslationsAloneIsFollowedToo) {
    const Json changed = screen({{"locale", "de_AT"}}, openings[0], {{"strings", folder.path().string()}});

    EXPECT_EQ(changed, screen(device("de_AT"), openings[0], nullptr));
    EXPECT_THAT(texts(changed.at(0)), Contains("auf Deutsch Annually"));
}

TEST_F(LanguageOfTheHost, MayBeAPseudoLanguage) {
    const Json accented = screen({{"locale", "en_XA"}}, openings[0], nullptr).at(0);
    const Json mirrored = screen({{"locale", "en_US"}}, openings[0], {{"locale", "ar_XB"}}).at(0);

    EXPECT_THAT(texts(accented), Contains("[Šååvéé 45%]"));
    EXPECT_EQ(find(accented, "close")["label"], "[Çļööšéé]");
    EXPECT_THAT(texts(mirrored), Contains("\u200F\u202EMonthly\u202C\u200F"));
    EXPECT_LT(find(mirrored, "close")["frame"][0], 100);
}

TEST_F(LanguageOfTheHost, IsFollowedByPercentagesAndTheDirection) {
    const Json root = screen({{"locale", "en_US"}}, openings[0], {{"locale", "ar_EG"}}).at(0);

    EXPECT_THAT(texts(root), Contains(testing::HasSubstr("٤٥")));
    EXPECT_LT(find(root, "close")["frame"][0], 100);
}
