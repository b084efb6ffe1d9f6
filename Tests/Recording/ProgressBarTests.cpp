// How far a command has come, drawn on a terminal by a clock that a test moves.
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "Apps/ProUpsellsHost/ProgressBar.hpp"

namespace proupsells::hostprogram {

namespace {

class ProgressLine : public ::testing::Test {
protected:
    // What has been drawn since the last call, without what takes the former line away.
    std::string drawn() {
        std::string text = terminal.str();
        terminal.str("");
        EXPECT_TRUE(text.starts_with(takenAway)) << text;
        return text.substr(takenAway.size());
    }
    void pass(double duration_s) { clock->advanceTo(clock->now_s() + duration_s); }
    static std::string barOf(int filled) {
        std::string bar;
        for (int part = 0; part < 32; ++part) bar += part < filled ? "█" : "░";
        return bar;
    }

    const std::string takenAway = "\r\033[K";
    std::ostringstream terminal;
    std::shared_ptr<runloop::VirtualClock> clock = std::make_shared<runloop::VirtualClock>();
};

} // namespace

TEST_F(ProgressLine, BeginsEmptyAndKnowsNoTimeYet) {
    const ProgressBar bar(8, &terminal, clock);

    EXPECT_EQ(drawn(), barOf(0) + " 0 %");
}

TEST_F(ProgressLine, SaysTheShareAndTheTimeThatTheRestWillTake) {
    ProgressBar bar(8, &terminal, clock);
    drawn();

    pass(3);
    bar.advance(2);
    EXPECT_EQ(drawn(), barOf(8) + " 25 %, 0:09 left");
    pass(57);
    bar.advance(2);
    EXPECT_EQ(drawn(), barOf(16) + " 50 %, 1:00 left");
    pass(15);
    bar.advance(1);
    EXPECT_EQ(drawn(), barOf(20) + " 62 %, 0:45 left");
}

TEST_F(ProgressLine, CountsFromItsOwnBeginning) {
    pass(1000);
    ProgressBar bar(2, &terminal, clock);
    drawn();

    pass(12);
    bar.advance(1);

    EXPECT_EQ(drawn(), barOf(16) + " 50 %, 0:12 left");
}

TEST_F(ProgressLine, RoundsTheTimeUpAndTheShareDown) {
    ProgressBar bar(1000, &terminal, clock);
    drawn();

    pass(59.2);
    bar.advance(500);
    EXPECT_EQ(drawn(), barOf(16) + " 50 %, 1:00 left");
    bar.advance(499);
    EXPECT_EQ(drawn(), barOf(31) + " 99 %, 0:01 left");
}

TEST_F(ProgressLine, SaysMinutesAndSecondsOfTwoDigits) {
    ProgressBar bar(2, &terminal, clock);
    drawn();

    pass(3609);
    bar.advance(1);

    EXPECT_EQ(drawn(), barOf(16) + " 50 %, 60:09 left");
    pass(1);
    bar.advance(0);
    EXPECT_EQ(drawn(), barOf(16) + " 50 %, 60:10 left");
}

TEST_F(ProgressLine, IsFullAtTheEndAndStaysSo) {
    ProgressBar bar(3, &terminal, clock);
    drawn();
    pass(5);

    bar.advance(3);
    EXPECT_EQ(drawn(), barOf(32) + " 100 %, 0:00 left");
    bar.advance(3);
    EXPECT_EQ(drawn(), barOf(32) + " 100 %, 0:00 left");
}

TEST_F(ProgressLine, GoesWithItsObject) {
    std::optional<ProgressBar> bar;
    bar.emplace(3, &terminal, clock);
    drawn();

    bar.reset();

    EXPECT_EQ(drawn(), "");
}

// Like standard error of a test, which is hardly ever a terminal; where it is one, that is left as it was.
TEST_F(ProgressLine, IsNothingWithoutATerminal) {
    ProgressBar bar(3, nullptr, clock);
    bar.advance(1);

    EXPECT_EQ(terminal.str(), "");
}

} // namespace proupsells::hostprogram
