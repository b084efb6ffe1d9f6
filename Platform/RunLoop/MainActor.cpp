#include "Platform/RunLoop/MainActor.hpp"

#include <atomic>
#include <sstream>
#include <thread>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::runloop {

namespace {

std::atomic<std::thread::id> mainThread{std::thread::id{}};

[[noreturn]] void stop(std::string_view call, std::thread::id main) {
    std::ostringstream message;
    message << (call.empty() ? "This" : call) << " must be called on the main thread, which is " << main
            << ", the one of the first main run loop; it was called on thread " << std::this_thread::get_id();
    commons::fatalError(message.str());
}

} // namespace

void MainActor::adoptCurrentThread() {
    std::thread::id none;
    mainThread.compare_exchange_strong(none, std::this_thread::get_id());
}

void MainActor::assertIsolated(std::string_view call) {
    const std::thread::id main = mainThread.load();
    if (main != std::thread::id{} && main != std::this_thread::get_id()) stop(call, main);
}

} // namespace proupsells::runloop
