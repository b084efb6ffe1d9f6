// A process that is asked to end, and may finish first.
#include "Tests/Support/NoDeathTests.hpp"

#include <csignal>
#include <cstdlib>

#include <gtest/gtest.h>

#include "Apps/ProUpsellsWindow/EndRequest.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int wentOn = 5, knewNothing = 6;

[[noreturn]] void goOnWhenAsked(int signal) {
    const EndRequest request;
    const bool wasThere = EndRequest::isThere();
    std::raise(signal);
    std::_Exit(!wasThere && EndRequest::isThere() ? wentOn : knewNothing);
}

[[noreturn]] void finishWhenAsked(int signal) {
    const EndRequest request;
    std::raise(signal);
    EndRequest::obey();
    std::_Exit(wentOn);
}

[[noreturn]] void beAskedAfterwards(int signal) {
    { const EndRequest request; }
    std::raise(signal);
    std::_Exit(wentOn);
}

} // namespace

TEST(EndRequest, IsNotedInsteadOfEndingTheProcess) {
    EXPECT_EXIT(goOnWhenAsked(SIGINT), ::testing::ExitedWithCode(wentOn), "");
    EXPECT_EXIT(goOnWhenAsked(SIGTERM), ::testing::ExitedWithCode(wentOn), "");
}

TEST(EndRequest, IsObeyedAsItWasMade) {
    EXPECT_EXIT(finishWhenAsked(SIGINT), ::testing::KilledBySignal(SIGINT), "");
    EXPECT_EXIT(finishWhenAsked(SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
}

TEST(EndRequest, EndsTheProcessWhereNobodyNotesIt) {
    EXPECT_EXIT(beAskedAfterwards(SIGINT), ::testing::KilledBySignal(SIGINT), "");
    EXPECT_EXIT(beAskedAfterwards(SIGTERM), ::testing::KilledBySignal(SIGTERM), "");
}

TEST(EndRequest, IsNothingToObeyWhereThereIsNone) {
    EndRequest::obey();

    EXPECT_FALSE(EndRequest::isThere());
}

} // namespace proupsells::hostprogram
