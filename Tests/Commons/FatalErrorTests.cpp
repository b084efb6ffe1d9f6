#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

#include "Platform/Commons/FatalError.hpp"

using namespace proupsells;

namespace {

TEST(FatalErrorDeathTest, WritesTheMessageAsOneLineAndAborts) {
    EXPECT_EXIT(commons::fatalError("init(coder:) has not been implemented"), testing::KilledBySignal(SIGABRT),
                "^init\\(coder:\\) has not been implemented\n$");
}

TEST(FatalErrorDeathTest, KeepsPercentSignsAndWhatStandsBehindThem) {
    EXPECT_EXIT(commons::fatalError("100 %s %n"), testing::KilledBySignal(SIGABRT), "^100 %s %n\n$");
}

TEST(FatalErrorDeathTest, TellsTheHookBeforeTheProgramEnds) {
    EXPECT_EXIT(
        {
            commons::setFatalErrorHook([](std::string_view message) { std::fprintf(stderr, "report: %s\n", message.data()); });
            commons::fatalError("broken");
        },
        testing::KilledBySignal(SIGABRT), "^broken\nreport: broken\n$");
}

TEST(FatalErrorDeathTest, CallsAHookThatFailsItselfOnlyOnce) {
    EXPECT_EXIT(
        {
            commons::setFatalErrorHook([](std::string_view) { commons::fatalError("the report is broken, too"); });
            commons::fatalError("broken");
        },
        testing::KilledBySignal(SIGABRT), "^broken\nthe report is broken, too\n$");
}

TEST(FatalErrorHook, IsHandedBackWhenAnotherOneTakesItsPlace) {
    EXPECT_FALSE(commons::setFatalErrorHook([](std::string_view) {}));
    EXPECT_TRUE(commons::setFatalErrorHook({}));
}

} // namespace
