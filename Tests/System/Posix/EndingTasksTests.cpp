// A task that ends its process.
#include <gmock/gmock.h>

#include <cstdlib>

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
