// ExplorerTests: the tests. ExplorerTests --explore [JOURNEY...]: all walks or those named, with states, edges and time.
// ExplorerTests --replay "SETTING: ACTION; ACTION": one way, step by step.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "Tests/Explorer/Tours.hpp"

namespace proupsells::explorer {
namespace {

void print(const std::string& name, const Outcome& outcome) {
    std::printf("%-8s %6zu states %7zu edges %5zu stops %4zu out of reach, at most %2zu actions away%s, %6.2f s\n", name.c_str(),
                outcome.states, outcome.edges, outcome.stops, outcome.outOfReach, outcome.longestPath,
                outcome.isWhole ? "" : " (cut)", outcome.time_s);
    for (const std::string& failure : outcome.failures) std::printf("  WRONG %s\n", failure.c_str());
    std::fflush(stdout);
}

void add(const Outcome& one, Outcome& sum) {
    sum.states += one.states;
    sum.edges += one.edges;
    sum.stops += one.stops;
    sum.outOfReach += one.outOfReach;
    sum.time_s += one.time_s;
    sum.longestPath = std::max(sum.longestPath, one.longestPath);
    sum.isWhole = sum.isWhole && one.isWhole;
}

// True when nothing was found.
bool make(const Journey& journey, bool isDetailed, Outcome& all) {
    Outcome sum;
    bool isRight = true;
    for (const Tour& tour : journey.tours) {
        if (!tour.isExplored) continue;
        const Outcome outcome = walk(tour);
        if (isDetailed || !outcome.failures.empty()) print("  " + tour.setting.name, outcome);
        add(outcome, sum);
        isRight = isRight && outcome.failures.empty();
    }
    print(journey.name, sum);
    add(sum, all);
    return isRight;
}

// All journeys but long ones, or those that are named.
int explore(const std::vector<std::string_view>& names, bool isDetailed) {
    std::vector<const Journey*> chosen;
    for (const Journey& journey : allJourneys())
        if (names.empty() ? !journey.isLong : std::find(names.begin(), names.end(), journey.name) != names.end())
            chosen.push_back(&journey);
    if (!names.empty() && chosen.size() != names.size()) {
        std::fprintf(stderr, "--explore: not every name is one of a walk, expected");
        for (const Journey& journey : allJourneys()) std::fprintf(stderr, " %s", journey.name.c_str());
        std::fprintf(stderr, "\n");
        return 2;
    }
    Outcome all;
    bool isRight = true;
    for (const Journey* journey : chosen) isRight = make(*journey, isDetailed, all) && isRight;
    print("all", all);
    return isRight ? 0 : 1;
}

int replayText(std::string_view text) {
    const std::size_t colon = text.find(':');
    const Setting* const setting = settingCalled(text.substr(0, colon));
    const auto actions = readActions(colon == std::string_view::npos ? "" : text.substr(colon + 1));
    if (!setting || !actions) {
        std::fprintf(stderr, "\"%s\" is no way, which is \"SETTING: ACTION; ACTION\"\n", std::string(text).c_str());
        return 2;
    }
    std::printf("%s", replay(*setting, *actions).c_str());
    return 0;
}

} // namespace
} // namespace proupsells::explorer

int main(int argumentCount, char** arguments) {
    using namespace proupsells::explorer;
    const std::vector<std::string_view> words(arguments + 1, arguments + argumentCount);
    if (words.size() == 2 && words[0] == "--replay") return replayText(words[1]);
    if (!words.empty() && (words[0] == "--explore" || words[0] == "--explore-each"))
        return explore({words.begin() + 1, words.end()}, words[0] == "--explore-each");
    testing::InitGoogleMock(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
