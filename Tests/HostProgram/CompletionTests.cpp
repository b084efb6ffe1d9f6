// What shells and readers of manuals are told.
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <memory>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::HasSubstr;

namespace {

const char* const allCommands[] = {"show", "run", "texts", "read", "lint", "audit", "gallery", "evidence", "completion", "manual"};

// What bash offers after these words, the last one unfinished.
std::string offered(const Folder& folder, const std::string& words, int last) {
    const auto script = folder.write("completion", runProgram({"completion", "bash"}).output);
    const std::string command = "bash -c 'source \"" + script.string() + "\"; COMP_WORDS=(" + words +
                                "); COMP_CWORD=" + std::to_string(last) + "; _proupsells; echo \"${COMPREPLY[*]}\"'";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 256> part;
    while (std::fgets(part.data(), int(part.size()), pipe.get())) output += part.data();
    return output;
}

} // namespace

TEST(Completion, CompletesCommandsAndTheirOptionsInBash) {
    const Folder folder;
    EXPECT_EQ(offered(folder, "proupsells ev", 1), "evidence\n");
    EXPECT_EQ(offered(folder, "proupsells show --rec", 2), "--record\n");
    EXPECT_EQ(offered(folder, "proupsells audit --format x --ma", 4), "--matrix\n");
}

TEST(Completion, KnowsEveryCommandInEveryShell) {
    for (const char* shell : {"bash", "zsh", "fish"}) {
        const Outcome outcome = runProgram({"completion", shell});
        EXPECT_EQ(outcome.status, 0);
        for (const char* command : allCommands) EXPECT_THAT(outcome.output, HasSubstr(command)) << shell;
    }
    EXPECT_EQ(runProgram({"completion", "cmd"}).status, 2);
}

TEST(Manual, HasASectionForEveryCommandAndAnEntryForEveryOption) {
    const std::string page = runProgram({"manual"}).output;
    for (const char* command : allCommands) EXPECT_THAT(page, HasSubstr("\n.SS proupsells " + std::string(command)));
    EXPECT_THAT(page, HasSubstr("\n.TP\n.B \\-\\-text\\-size VALUE\n"));
    EXPECT_THAT(page, HasSubstr("\n.SH EXIT STATUS\n"));
}
