// A task that ends its process.
#include <gmock/gmock.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <poll.h>
#include <sys/wait.h>
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

// A result that fits into no pipe, which nobody reads any more.
TEST(EndingTasks, DoNotOutliveTheProcessThatWantsTheirResults) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t wanting = fork();
    if (wanting == 0) {
        close(ends[0]);
        system::runInProcesses(1, [&](std::size_t) {
            const pid_t self = getpid(), around = getppid();
            (void)!write(ends[1], &self, sizeof self);
            while (getppid() == around) usleep(1000);
            return std::string(1 << 20, 'x');
        });
        std::_Exit(0);
    }
    close(ends[1]);
    pid_t task = 0;
    ASSERT_EQ(read(ends[0], &task, sizeof task), ssize_t(sizeof task));

    kill(wanting, SIGKILL);
    waitpid(wanting, nullptr, 0);

    // The task's end of the pipe closes with the task.
    pollfd end{.fd = ends[0], .events = POLLIN, .revents = 0};
    char more = 0;
    const bool hasEnded = poll(&end, 1, 60'000) == 1 && read(ends[0], &more, 1) == 0;
    EXPECT_TRUE(hasEnded);
    if (!hasEnded) kill(task, SIGKILL);
    close(ends[0]);
}
