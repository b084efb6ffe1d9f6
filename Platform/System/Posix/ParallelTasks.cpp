#include "Platform/System/ParallelTasks.hpp"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <thread>

namespace proupsells::system {

namespace {

using Task = std::function<std::string(std::size_t)>;

void writeAll(int file, const std::string& text) {
    for (std::size_t at = 0; at < text.size();) {
        const ssize_t written = write(file, text.data() + at, text.size() - at);
        if (written < 0 && errno != EINTR) return;
        if (written > 0) at += static_cast<std::size_t>(written);
    }
}

// A copy of the process that has one task.
struct Child {
    std::size_t number = 0;
    pid_t process = -1;
    int output = -1;
    std::string result{};
};

// Absent when no process can be made.
std::optional<Child> begin(std::size_t number, const Task& task) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return std::nullopt;
    std::fflush(nullptr); // what is unwritten would be written twice
    const pid_t process = fork();
    if (process == 0) {
        close(ends[0]);
        writeAll(ends[1], task(number));
        // Destructors are left to the process that this is a copy of.
        _exit(0);
    }
    close(ends[1]);
    if (process > 0) return Child{number, process, ends[0]};
    close(ends[0]);
    return std::nullopt;
}

// False at the end of what the child writes.
bool readSome(Child& child) {
    std::array<char, 65536> chunk{};
    const ssize_t got = read(child.output, chunk.data(), chunk.size());
    if (got > 0) child.result.append(chunk.data(), static_cast<std::size_t>(got));
    return got > 0 || (got < 0 && errno == EINTR);
}

std::optional<std::string> end(Child& child) {
    close(child.output);
    int status = 0;
    while (waitpid(child.process, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? std::optional(std::move(child.result)) : std::nullopt;
}

// Those that have something to say, or have ended.
std::vector<pollfd> waitForAny(const std::vector<Child>& children) {
    std::vector<pollfd> outputs;
    outputs.reserve(children.size());
    for (const Child& child : children) outputs.push_back({.fd = child.output, .events = POLLIN, .revents = 0});
    poll(outputs.data(), outputs.size(), -1);
    return outputs;
}

} // namespace

std::vector<std::optional<std::string>> runInProcesses(std::size_t count, const Task& task, const TaskEnd& finished) {
    const std::size_t together = std::max(1u, std::thread::hardware_concurrency());
    std::vector<std::optional<std::string>> results(count);
    std::vector<Child> running;
    const auto keep = [&](std::size_t number, std::optional<std::string> result) {
        results[number] = std::move(result);
        if (finished) finished(number, results[number]);
    };
    for (std::size_t next = 0; next < count || !running.empty();) {
        while (next < count && running.size() < together) {
            if (auto child = begin(next, task))
                running.push_back(std::move(*child));
            else
                keep(next, task(next));
            ++next;
        }
        const auto outputs = waitForAny(running);
        for (std::size_t i = running.size(); i-- > 0;) {
            if (outputs[i].revents == 0 || readSome(running[i])) continue;
            keep(running[i].number, end(running[i]));
            running.erase(running.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
    return results;
}

} // namespace proupsells::system
