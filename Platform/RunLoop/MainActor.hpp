// The rule that user-interface work stays on one thread.
#pragma once

namespace runloop {

class MainActor {
public:
    MainActor() = delete;

    // Stops the program when called on another thread than the one that created the first main run loop.
    static void assertIsolated();
};

} // namespace runloop
