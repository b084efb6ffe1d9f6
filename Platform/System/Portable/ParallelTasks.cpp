#include "Platform/System/ParallelTasks.hpp"

namespace proupsells::system {

std::vector<std::optional<std::string>> runInProcesses(std::size_t count, const std::function<std::string(std::size_t)>& task,
                                                       const TaskEnd& finished) {
    std::vector<std::optional<std::string>> results;
    for (std::size_t i = 0; i < count; ++i) {
        results.emplace_back(task(i));
        if (finished) finished(i, results.back());
    }
    return results;
}

} // namespace proupsells::system
