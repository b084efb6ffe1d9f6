// What Docs/tools.md shows is what the commands print.
#include <gmock/gmock.h>

#include <sstream>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;

namespace {

struct Example {
    std::string command, output;
};

// The blocks that begin with "$ proupsells".
std::vector<Example> examplesIn(const std::filesystem::path& page) {
    const std::string begin = "```console\n$ proupsells ", end = "```\n";
    const std::string text = bytesOf(page);
    std::vector<Example> examples;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        at += begin.size();
        const std::size_t line = text.find('\n', at), last = text.find(end, line);
        examples.push_back({text.substr(at, line - at), text.substr(line + 1, last - line - 1)});
    }
    return examples;
}

} // namespace

TEST(DocumentedOutput, IsCurrent) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(PROUPSELLS_SOURCES);
    const auto examples = examplesIn("Docs/tools.md");

    EXPECT_THAT(examples, testing::SizeIs(4));
    for (const auto& [command, output] : examples) {
        std::istringstream words(command);
        EXPECT_EQ(runProgram({std::istream_iterator<std::string>(words), {}}).output, output) << command;
    }
    std::filesystem::current_path(before);
}
