// A task that ends its process.
#include <gmock/gmock.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

#include "Platform/System/ParallelTasks.hpp"

using namespace proupsells;

TEST(EndingTasks, LeaveTheOthersTheirResults) {
    const auto results = system::runInProcesses(2, [](std::size_t number) {
        if (number == 0) std::_Exit(1);
        return std::string("done");
    });

    EXPECT_FALSE(results[0]);
    EXPECT_EQ(results[1], "done");
}

TEST(EndingTasks, HaveNoResultWhereASignalEndsThem) {
    const auto results = system::runInProcesses(2, [](std::size_t number) {
        if (number == 0) raise(SIGKILL);
        return std::string("done");
    });

    EXPECT_FALSE(results[0]);
    EXPECT_EQ(results[1], "done");
}

TEST(EndingTasks, WriteNothingTwiceThatThisProcessHasNotWrittenYet) {
    std::FILE* const file = std::tmpfile();
    ASSERT_TRUE(file);
    std::fputs("before ", file);

    system::runInProcesses(2, [&](std::size_t) {
        std::fputs("task ", file);
        std::fflush(file);
        return std::string();
    });

    std::fflush(file);
    std::rewind(file);
    char text[64] = {};
    EXPECT_EQ(std::string(text, std::fread(text, 1, sizeof text, file)), "before task task ");
    std::fclose(file);
}

TEST(EndingTasks, LeaveNoFileOpen) {
    // A new file gets the lowest free number.
    const auto lowestFree = [] {
        const int number = dup(0);
        close(number);
        return number;
    };
    const int before = lowestFree();

    system::runInProcesses(5, [](std::size_t) { return std::string("done"); });

    EXPECT_EQ(lowestFree(), before);
}
