#include "Apps/ProUpsellsHost/ParallelAnswers.hpp"

#include <cstdlib>
#include <new>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Emergency.hpp"
#include "Platform/System/ParallelTasks.hpp"

namespace proupsells::hostprogram {

namespace {

// The answer under "answer", or the line to say under "error".
std::string bytesOf(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string perform(const std::function<Json(std::size_t)>& task, std::size_t number) {
    try {
        return bytesOf({{"answer", task(number)}});
    } catch (const std::runtime_error& error) {
        return bytesOf({{"error", error.what()}});
    } catch (const std::bad_alloc&) {
        return bytesOf({{"error", noMemoryLeft}});
    }
}

} // namespace

std::vector<Json> parallelAnswers(std::size_t count, const std::function<Json(std::size_t)>& task,
                                  const std::function<void(std::size_t)>& finished) {
    const auto answers = system::runInProcesses(
        count, [&](std::size_t number) { return perform(task, number); },
        [&](std::size_t number, const std::optional<std::string>& answer) {
            // It has said why. The others would say the same.
            if (!answer) std::abort();
            if (finished) finished(number);
        });
    std::vector<Json> results;
    results.reserve(count);
    for (const auto& answer : answers) {
        Json said = Json::parse(*answer);
        if (said.contains("error")) throw std::runtime_error(said["error"].get<std::string>());
        results.push_back(std::move(said["answer"]));
    }
    return results;
}

} // namespace proupsells::hostprogram
