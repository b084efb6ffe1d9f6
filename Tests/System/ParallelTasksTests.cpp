#include <gmock/gmock.h>

#include "Platform/System/ParallelTasks.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;

TEST(ParallelTasks, ReturnWhatEachTaskReturnsInOrder) {
    const auto results = system::runInProcesses(5, [](std::size_t number) { return std::to_string(number * number); });

    EXPECT_THAT(results, ElementsAre(Optional(std::string("0")), Optional(std::string("1")), Optional(std::string("4")),
                                     Optional(std::string("9")), Optional(std::string("16"))));
}

TEST(ParallelTasks, ReturnMoreThanAPipeHolds) {
    const auto results = system::runInProcesses(3, [](std::size_t number) { return std::string(1 << 20, char('a' + number)); });

    for (std::size_t number = 0; number < 3; ++number) EXPECT_EQ(results[number], std::string(1 << 20, char('a' + number)));
}

TEST(ParallelTasks, AreNoneWhereThereIsNothingToDo) {
    EXPECT_THAT(system::runInProcesses(0, [](std::size_t) { return std::string(); }), IsEmpty());
}

TEST(ParallelTasks, TellOfEachThatHasEnded) {
    std::vector<std::string> ended;

    system::runInProcesses(
        3, [](std::size_t number) { return std::to_string(number); },
        [&](std::size_t number, const std::optional<std::string>& result) {
            ended.push_back(std::to_string(number) + " " + result.value_or("nothing"));
        });

    EXPECT_THAT(ended, UnorderedElementsAre("0 0", "1 1", "2 2"));
}
