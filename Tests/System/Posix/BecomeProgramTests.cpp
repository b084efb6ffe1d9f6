#include <gtest/gtest.h>

#include "Platform/System/BecomeProgram.hpp"

using namespace proupsells;

namespace {

TEST(BecomeProgramDeathTest, GoesOnAsTheOtherProgram) {
    char name[] = "sh", option[] = "-c", command[] = "exit 7";
    char* const arguments[] = {name, option, command, nullptr};

    EXPECT_EXIT(system::becomeProgram("/bin/sh", arguments), testing::ExitedWithCode(7), "");
}

TEST(BecomeProgram, ComesBackWithTheReasonWhereThereIsNoSuchProgram) {
    char* const arguments[] = {nullptr};

    EXPECT_EQ(system::becomeProgram("/there/is/no/such/program", arguments), std::errc::no_such_file_or_directory);
}

} // namespace
