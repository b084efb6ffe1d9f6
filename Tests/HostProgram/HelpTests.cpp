// `--help`.
#include <gmock/gmock.h>

#include <algorithm>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::HasSubstr;

TEST(HelpOfCommands, FitsAScreenAndHasAnExample) {
    for (const std::string command : {"show", "run", "texts", "read", "lint", "audit", "gallery", "evidence", "manual"}) {
        const Outcome outcome = runProgram({command, "--help"});

        constexpr int screenHeight = 24;
        EXPECT_EQ(outcome.status, 0);
        EXPECT_LE(std::count(outcome.output.begin(), outcome.output.end(), '\n'), screenHeight);
        EXPECT_THAT(outcome.output, HasSubstr("Example: proupsells " + command));
    }
}

TEST(Help, ListsEveryCommand) {
    const std::string help = runProgram({"--help"}).output;

    for (const char* command : {"show", "run", "texts", "read", "lint", "audit", "gallery", "evidence", "completion", "manual"})
        EXPECT_THAT(help, HasSubstr("\n  " + std::string(command) + " "));
}
