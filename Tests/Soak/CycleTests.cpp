// Screens that are opened and closed again and again.
#include <gtest/gtest.h>

#include "Tests/Soak/Curve.hpp"
#include "Tests/Soak/Lengths.hpp"
#include "Tests/Soak/Stage.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/FailOnUnexpectedLog.hpp"
#include "Tests/Support/Sanitizers.hpp"

namespace proupsells::soak {
namespace {

// By then every cache has what it keeps.
constexpr int warmUpCycles = 10;

class Cycles : public testing::TestWithParam<Screen> {};

TEST_P(Cycles, LeaveMemoryAsItWas) {
    Stage stage;
    Curve curve(nameOf(GetParam()), "cycles");
    Frame frame;
    const auto cycle = [&] {
        stage.open(GetParam());
        frame = stage.look();
        stage.close();
    };
    for (int warmUp = 0; warmUp < warmUpCycles; ++warmUp) cycle();
    curve.add(0, 0, frame.commands);
    const std::size_t bytes = tests::liveBytes, blocks = tests::liveBlocks;

    for (int number = 1; number <= lengths.cycles; ++number) {
        cycle();
        ASSERT_EQ(stage.left(), "") << "after cycle " << number;
        // Not a byte, in any cycle.
        ASSERT_EQ(tests::liveBytes, bytes) << "after cycle " << number;
        ASSERT_EQ(tests::liveBlocks, blocks) << "after cycle " << number;
        if (Curve::isDue(number, lengths.cycles)) curve.add(number, stage.bed().loop().waitingTimerCount(), frame.commands);
    }

    curve.tell();
    EXPECT_LE(curve.pagesGained(), toleratedPages);
}

INSTANTIATE_TEST_SUITE_P(OfEachScreen, Cycles, testing::ValuesIn(allScreens),
                         [](const auto& each) { return std::string(nameOf(each.param)); });

} // namespace
} // namespace proupsells::soak
