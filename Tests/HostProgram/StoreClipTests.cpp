// The clips of the real store page, with the files that a host may come by.
#include <algorithm>
#include <map>

#include <gmock/gmock.h>

#include "Tests/HostProgram/InstalledProgram.hpp"

namespace proupsells::tests {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Key;
using testing::Not;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace {

// Twenty pictures, ten a second, and its beginning: twelve pictures.
std::string counting() { return bytesOf("Tests/FFmpeg/Data/counting-index-first.mp4"); }
std::string cutShort() { return counting().substr(0, 1985); }

void collectClips(const Json& node, std::map<std::string, double>& result) {
    if (node.contains("clipTime")) result.emplace(node["clipName"], node["clipTime"]);
    if (!node.contains("children")) return;
    for (const Json& child : node["children"]) collectClips(child, result);
}

// The clips inside, from left to right.
void collectClipNames(const Json& node, std::vector<std::string>& result) {
    if (node.contains("clipName")) result.push_back(node["clipName"]);
    if (!node.contains("children")) return;
    for (const Json& child : node["children"]) collectClipNames(child, result);
}

// The clips of a dumped screen that show a picture, and its time in seconds.
std::map<std::string, double> clips(const Json& screen) {
    std::map<std::string, double> result;
    collectClips(screen["root"], result);
    return result;
}

std::vector<std::string> loggedMessages(const Outcome& outcome) {
    std::vector<std::string> messages;
    for (const Json& event : outcome.events("log")) messages.push_back(event["message"]);
    return messages;
}

// The store page, on which the clips begin half a second after the run, in a window that shows all shelves; its steps begin at 1 s.
Json storePage(const char* steps, const Json& device = {{"size", {375, 3200}}}) {
    Json all = Json::parse(R"([{"send": "whatIsPro"}])");
    for (const Json& step : Json::parse(steps)) all.push_back(step);
    return {{"device", device}, {"steps", all}};
}

class StoreClips : public testing::Test {
protected:
    InstalledProgram program;
};

} // namespace

TEST_F(StoreClips, ThatAreCutShortPlayWhatTheyHaveAndRepeatThat) {
    program.writeClip("StorePageBrandingVideo.mp4", cutShort());
    program.writeClip("StorePageTemplatesVideo.mp4", counting());

    const Outcome outcome = program.play(storePage(
        R"([{"dump": "screen"}, {"wait": 0.65}, {"dump": "screen"}, {"wait": 0.1}, {"dump": "screen"}, {"wait": 12.5}, {"dump": "screen"}])"));

    std::vector<double> cut_s, whole_s;
    for (const Json& screen : outcome.events("screen")) {
        cut_s.push_back(clips(screen)["StorePageBrandingVideo"]);
        whole_s.push_back(clips(screen)["StorePageTemplatesVideo"]);
    }
    EXPECT_THAT(cut_s, ElementsAre(0.5, 1.1, 0, 0.5));
    EXPECT_THAT(whole_s, ElementsAre(0.5, 1.1, 1.2, 1.7));
    EXPECT_THAT(loggedMessages(outcome),
                ElementsAre("The clip \"StorePageBrandingVideo.mp4\" is cut short: only its beginning is played"));
}

TEST_F(StoreClips, ThatAreCutShortShowTheSameWhetherTheyAreSeenEarlyOrLate) {
    const std::vector<std::string> names{"90s3D",       "LHxVELA_Confetti", "LIPPY",     "VELA_FILM", "VELA_GROW",
                                         "VELA_SOCKS-", "VELA_TEASPIN",     "PINEAPPLE", "sale_blue", "Summer"};
    for (const std::string& name : names) program.writeClip(name + ".mp4", cutShort());
    // Scrolls down to the row of clips, where there is more than the window shows.
    const char* const steps = R"([{"drag": {"from": [180, 700], "to": [180, 100], "duration": 0.3}}, {"wait": 2},
        {"drag": {"from": [180, 700], "to": [180, 100], "duration": 0.3}}, {"wait": 2.05}, {"dump": "screen"}])";

    const Outcome early = program.play(storePage(steps)), late = program.play(storePage(steps, {{"size", {375, 800}}}));

    for (const Outcome& outcome : {early, late}) {
        int count = 0;
        for (const auto& [name, time_s] : clips(outcome.events("screen")[0])) {
            if (!std::ranges::count(names, name)) continue;
            ++count;
            EXPECT_EQ(time_s, 0.3) << name; // 5.15 s after the beginning, of which four rounds take 4.8
        }
        EXPECT_GE(count, 3);
    }
}

TEST_F(StoreClips, ThatAreMissingLeaveTheirPlaceEmptyWithoutAWord) {
    program.removeClip("StorePageBrandingVideo.mp4");
    program.removeClip("LIPPY.mp4");

    const Outcome outcome = program.play(storePage(R"([{"dump": "screen"}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const auto shown = clips(outcome.events("screen")[0]);
    EXPECT_THAT(shown, Not(testing::Contains(Key("StorePageBrandingVideo"))));
    EXPECT_THAT(shown, Not(testing::Contains(Key("LIPPY"))));
    EXPECT_THAT(shown, testing::Contains(Pair("StorePageTemplatesVideo", 0.5)));
    EXPECT_THAT(loggedMessages(outcome), IsEmpty());
}

// What there is twice, and the first five of it once more.
TEST_F(StoreClips, ThatAreMissingAreLeftOutOfEachRound) {
    const auto row = [this] {
        const Outcome outcome = program.play(storePage(R"([{"dump": "screen"}])"));
        std::vector<std::string> names;
        collectClipNames(find(outcome.events("screen").at(0)["root"], "store.strip.VideoImageLibrariesShelf.1"), names);
        return names;
    };
    for (const char* name : {"90s3D", "VELA_FILM", "Summer"}) program.removeClip(name + std::string(".mp4"));
    EXPECT_THAT(row(),
                ElementsAre("LHxVELA_Confetti", "LIPPY", "VELA_GROW", "VELA_SOCKS-", "VELA_TEASPIN", "PINEAPPLE", "sale_blue",
                            "LHxVELA_Confetti", "LIPPY", "VELA_GROW", "VELA_SOCKS-", "VELA_TEASPIN", "PINEAPPLE", "sale_blue",
                            "LHxVELA_Confetti", "LIPPY", "VELA_GROW", "VELA_SOCKS-", "VELA_TEASPIN"));

    for (const char* name : {"LHxVELA_Confetti", "VELA_GROW", "VELA_SOCKS-", "VELA_TEASPIN", "PINEAPPLE"})
        program.removeClip(name + std::string(".mp4"));
    EXPECT_THAT(row(), ElementsAre("LIPPY", "sale_blue", "LIPPY", "sale_blue", "LIPPY", "sale_blue"));

    for (const char* name : {"LIPPY", "sale_blue"}) program.removeClip(name + std::string(".mp4"));
    EXPECT_THAT(row(), IsEmpty());
}

TEST_F(StoreClips, ThatAreBrokenStayEmptyAndCostOneLineEachHoweverOftenThePageReturns) {
    program.writeClip("StorePageBrandingVideo.mp4", "");
    program.writeClip("StorePageTemplatesVideo.mp4", "this is no film");
    program.writeClip("90s3D.mp4", cutShort().substr(0, 1200));

    const Outcome outcome =
        program.play(storePage(R"([{"dump": "screen"}, {"wait": 1}, {"dump": "screen"}, {"tap": {"identifier": "store.close"}},
        {"send": "whatIsPro"}, {"wait": 1}, {"set": {"appearance": "dark"}}, {"wait": 1}, {"set": {"appearance": "light"}}, {"dump": "screen"}])"));

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    for (const Json& screen : outcome.events("screen"))
        EXPECT_THAT(clips(screen), AllOf(Not(testing::Contains(Key("StorePageBrandingVideo"))),
                                         Not(testing::Contains(Key("StorePageTemplatesVideo"))),
                                         Not(testing::Contains(Key("90s3D"))), testing::Contains(Key("LIPPY"))));
    EXPECT_THAT(loggedMessages(outcome), UnorderedElementsAre(HasSubstr("\"StorePageBrandingVideo.mp4\" cannot be played"),
                                                              HasSubstr("\"StorePageTemplatesVideo.mp4\" cannot be played"),
                                                              HasSubstr("\"90s3D.mp4\" cannot be played")));
}

TEST_F(StoreClips, StandStillAtTheirFirstPictureForSomebodyWhoWantsLessMotion) {
    const Outcome outcome = program.play(
        storePage(R"([{"dump": "screen"}, {"wait": 1.5}, {"dump": "screen"}, {"set": {"reduceMotion": false}}, {"dump": "screen"},
        {"set": {"reduceMotion": true}}, {"dump": "screen"}])",
                  {{"size", {375, 3200}}, {"reduceMotion", true}}));

    std::vector<double> times_s;
    for (const Json& screen : outcome.events("screen")) {
        EXPECT_GE(clips(screen).size(), 5u);
        times_s.push_back(clips(screen).at("LIPPY"));
    }
    EXPECT_THAT(times_s, ElementsAre(0, 0, 2, 0));
}

} // namespace proupsells::tests
