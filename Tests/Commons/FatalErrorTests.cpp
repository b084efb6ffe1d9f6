#include <gtest/gtest.h>

#include <csignal>

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

} // namespace
