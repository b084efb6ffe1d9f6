// Using all processors where a task needs a process to itself.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// The task's number and what it returned, absent where it ended the process.
using TaskEnd = std::function<void(std::size_t, const std::optional<std::string>&)>;

// Runs the task for 0 … count - 1, each in a copy of the process as it is now, as many at a time as there are processors. Returns
// what each task returned, absent where one ended the process. Where processes cannot be copied, the tasks run here, one after
// another. To be called before the process has threads. `finished`, if any, is told of each task at its end, in whatever order.
PROUPSELLS_EXPORT std::vector<std::optional<std::string>>
runInProcesses(std::size_t count, const std::function<std::string(std::size_t)>& task, const TaskEnd& finished = {});

} // namespace proupsells::system
