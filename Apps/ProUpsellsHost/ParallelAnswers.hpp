// Work in processes of their own, whose results are JSON.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "Apps/ProUpsellsHost/Json.hpp"

namespace proupsells::hostprogram {

// Runs the task for 0 … count - 1, see system::runInProcesses; `finished`, if any, is told of each one's end. Throws what the first
// of them, by number, has thrown. Stops the program when one has stopped its own process.
std::vector<Json> parallelAnswers(std::size_t count, const std::function<Json(std::size_t)>& task,
                                  const std::function<void(std::size_t)>& finished = {});

} // namespace proupsells::hostprogram
