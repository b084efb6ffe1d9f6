// One piece of scheduled work.
#pragma once

#include <cstdint>
#include <functional>

#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {

// Fires once or repeatedly; made by MainRunLoop. Letting go of the pointer does not cancel it.
class PROUPSELLS_EXPORT Timer {
public:
    // A one-shot is valid until it fires (inside its callback no longer), a repeating timer until it is invalidated.
    bool isValid() const { return m_isValid; }
    // Ends the timer and lets go of its callback; allowed at any time, also inside its own callback.
    void invalidate();

private:
    friend class MainRunLoop;
    friend class WorkQueue;

    // Moves a repeating timer to its next grid point, or to the first one that a stalled clock has not passed.
    void advanceOnGrid(double clock_s);

    std::function<void()> m_callback;
    double m_due_s = 0;
    double m_start_s = 0;
    double m_interval_s = 0; // 0 for a one-shot
    std::uint64_t m_tick = 0;
    std::uint64_t m_sequence = 0;
    bool m_isValid = true;
};

} // namespace proupsells::runloop
