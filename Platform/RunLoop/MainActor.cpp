#include "Platform/RunLoop/MainActor.hpp"

#include <atomic>
#include <thread>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::runloop {

namespace {

std::atomic<std::thread::id> mainThread{std::thread::id{}};

} // namespace

void MainActor::adoptCurrentThread() {
    std::thread::id none;
    mainThread.compare_exchange_strong(none, std::this_thread::get_id());
}

void MainActor::assertIsolated() {
    const std::thread::id main = mainThread.load();
    if (main != std::thread::id{} && main != std::this_thread::get_id())
        commons::fatalError("This must be called on the main thread");
}

} // namespace proupsells::runloop
