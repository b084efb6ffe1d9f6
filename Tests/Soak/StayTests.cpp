// Screens that stand open for hours, looked at every second.
#include <gmock/gmock.h>

#include <cmath>

#include "Platform/Accessibility/Search.hpp"
#include "Tests/Soak/Curve.hpp"
#include "Tests/Soak/Lengths.hpp"
#include "Tests/Soak/Stage.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"

namespace proupsells::soak {
namespace {

constexpr int turn_s = 5, pageCount = 4;
// After so many seconds everything that repeats is where it was: the carousel's pages, and the four seconds of each clip.
constexpr int round_s = turn_s * pageCount;
// By then the strips, which drift 50 points a second, have come to the end of 22 tiles.
constexpr int warmUp_s = 600;

// One second after another, what its frame takes.
std::vector<Frame> roundOn(Stage& stage) {
    std::vector<Frame> frames;
    frames.reserve(round_s);
    for (int second = 0; second < round_s; ++second) {
        stage.bed().runFor(1);
        stage.look();
        frames.push_back(stage.paint());
    }
    return frames;
}

std::string pageOf(Stage& stage) {
    const accessibility::SemanticNode tree = stage.window().semanticTree();
    const accessibility::SemanticNode* const pages = accessibility::findByIdentifier(tree, "carousel.pageControl");
    return pages ? pages->value : "";
}

// Whole rounds, as many as last this long.
int roundsIn(double duration_s) { return int(std::floor(duration_s / round_s)); }

class Stay : public testing::TestWithParam<Screen> {};

TEST_P(Stay, CostsTheSameInItsLastHourAsInItsFirst) {
    // Of the store page all shelves are in sight, with every clip and every strip.
    Stage stage({375, GetParam() == Screen::store ? 3200.0 : 800.0});
    stage.open(GetParam());
    for (int round = 0; round < roundsIn(warmUp_s); ++round) roundOn(stage);
    const int rounds = std::max(1, roundsIn(lengths.hours * 3600));
    Curve curve(nameOf(GetParam()), "hours");
    const std::vector<Frame> expected = roundOn(stage);
    const std::size_t timers = stage.bed().loop().waitingTimerCount();
    curve.add(0, timers, expected.back().commands);
    const std::size_t bytes = tests::liveBytes, blocks = tests::liveBlocks;

    for (int round = 1; round <= rounds; ++round) {
        ASSERT_TRUE(roundOn(stage) == expected) << "a frame takes more or less than before, in round " << round;
        ASSERT_EQ(stage.bed().loop().waitingTimerCount(), timers) << "after round " << round;
        ASSERT_EQ(tests::liveBytes, bytes) << "after round " << round;
        ASSERT_EQ(tests::liveBlocks, blocks) << "after round " << round;
        if (Curve::isDue(round, rounds)) curve.add(round * round_s / 3600.0, timers, expected.back().commands);
    }

    curve.tell();
    EXPECT_LE(curve.pagesGained(), toleratedPages);
    stage.close();
    EXPECT_EQ(stage.left(), "");
}

TEST(StayOfThePaywall, TurnsItsPagesExactlyOnTheirTimes) {
    Stage stage;
    const double start_s = stage.bed().now_s();
    stage.present();
    const auto turns = std::int64_t(lengths.hours * 3600 / turn_s);

    for (std::int64_t turn = 1; turn <= turns; ++turn) {
        const double due_s = start_s + double(turn) * turn_s;
        stage.bed().runUntil(std::nextafter(due_s, 0.0));
        ASSERT_EQ(pageOf(stage), "page " + std::to_string((turn - 1) % pageCount + 1) + " of 4") << "before turn " << turn;
        stage.bed().runUntil(due_s);
        ASSERT_EQ(pageOf(stage), "page " + std::to_string(turn % pageCount + 1) + " of 4") << "at turn " << turn;
    }
}

INSTANTIATE_TEST_SUITE_P(OnEachScreen, Stay, testing::ValuesIn(allScreens),
                         [](const auto& each) { return std::string(nameOf(each.param)); });

} // namespace
} // namespace proupsells::soak
