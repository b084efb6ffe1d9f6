// The rule that user-interface work stays on one thread.
#pragma once

#include <string_view>

namespace proupsells::runloop {

class MainActor {
public:
    MainActor() = delete;

    // Stops the program when called on another thread than the one that created the first main run loop. Before there was one,
    // every thread will do. The message names `call`, where there is one, and both threads.
    static void assertIsolated(std::string_view call = {});

private:
    friend class MainRunLoop;
    // The first call makes the calling thread the main thread for the life of the process.
    static void adoptCurrentThread();
};

} // namespace proupsells::runloop
