// What shells and readers of manuals are told.
#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <set>
#include <sstream>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const char* const allCommands[] = {"show", "run", "texts", "read", "lint", "audit", "gallery", "evidence", "completion", "manual"};

// What a command of the shell prints, a line each, sorted. The shell's own files are in the folder.
std::set<std::string> linesOf(const Folder& folder, const std::string& command) {
    const std::string whole = "cd '" + folder.path().string() + "' && HOME=$PWD XDG_CONFIG_HOME=$PWD XDG_DATA_HOME=$PWD " + command;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(whole.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 256> part;
    while (std::fgets(part.data(), int(part.size()), pipe.get())) output += part.data();
    std::set<std::string> lines;
    std::istringstream stream(output);
    for (std::string line; std::getline(stream, line);)
        if (!line.empty()) lines.insert(line);
    return lines;
}

// A shell in which somebody types, and presses Tab.
class Completion : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (std::system(("command -v " + shell + " > /dev/null").c_str()) == 0) {
            folder.write(script, runProgram({"completion", shell}).output);
            return;
        }
        // Where everything is checked, everything is there.
        if (std::getenv("PROUPSELLS_HAS_SHELLS")) FAIL() << shell << " is not installed";
        GTEST_SKIP() << shell << " is not installed";
    }

    // What the shell offers in the place of the last word of the line, which is unfinished.
    std::set<std::string> offered(const std::string& line) const {
        if (shell == "fish")
            return linesOf(folder, "fish --no-config -c \"source " + script + "; complete -C '" + line + "'\" | cut -f1");
        if (shell == "zsh")
            return linesOf(folder, "zsh -f '" PROUPSELLS_SOURCES "/Tests/HostProgram/complete.zsh' . '" + line + "'");
        return linesOf(folder, "bash -c 'source " + script + "; line=\"" + line +
                                   "\"; COMP_WORDS=($line); [[ $line != *\" \" ]] || COMP_WORDS+=(\"\"); "
                                   "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _proupsells; printf \"%s\\n\" \"${COMPREPLY[@]}\"'");
    }

    const std::string shell = GetParam();
    const std::string script = "_proupsells"; // the name that zsh looks for
    Folder folder;
};

// The long options that `--help` lists.
std::set<std::string> optionsOf(const std::string& command) {
    std::set<std::string> options;
    std::istringstream help(runProgram({command, "--help"}).output);
    for (std::string line; std::getline(help, line);) {
        const std::size_t start = line.find("--");
        const bool isEntry = line.find_first_not_of(' ') < 4 && line.front() == ' ' && start != std::string::npos;
        if (isEntry) options.insert(line.substr(start, line.find_first_of(" ,=", start) - start));
    }
    return options;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Shells, Completion, testing::Values("bash", "zsh", "fish"),
                         [](const auto& shell) { return std::string(shell.param); });

TEST_P(Completion, OffersEveryCommand) { EXPECT_THAT(offered("proupsells "), testing::UnorderedElementsAreArray(allCommands)); }

TEST_P(Completion, FinishesACommand) {
    EXPECT_THAT(offered("proupsells ev"), ElementsAre("evidence"));
    EXPECT_THAT(offered("proupsells au"), ElementsAre("audit"));
    EXPECT_THAT(offered("proupsells zz"), IsEmpty());
}

TEST_P(Completion, OffersTheOptionsOfACommandAndNoOthers) {
    for (const char* const command : allCommands) {
        const auto options = optionsOf(command);
        EXPECT_TRUE(options.contains("--help")) << command;
        EXPECT_EQ(offered("proupsells " + std::string(command) + " --"), options) << command;
    }
}

TEST_P(Completion, FinishesAnOptionBehindAnother) {
    EXPECT_THAT(offered("proupsells show --rec"), ElementsAre("--record"));
    EXPECT_THAT(offered("proupsells audit --format x --ma"), ElementsAre("--matrix"));
}

TEST_P(Completion, OffersFilesWhereFilesAreMeant) {
    folder.write("offers.json", std::string("{}"));

    EXPECT_THAT(offered("proupsells lint of"), ElementsAre("offers.json"));
    EXPECT_THAT(offered("proupsells audit --matrix of"), ElementsAre("offers.json"));
}

TEST(CompletionScripts, KnowEveryCommand) {
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
