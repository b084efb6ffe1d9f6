// The timers that wait, ordered by (due time, sequence number).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Platform/RunLoop/Timer.hpp"

namespace proupsells::runloop {

// A binary heap. Invalidated timers stay in it until they come to the top or the heap has doubled; nobody sees them.
class WorkQueue {
public:
    // Gives the timer the next sequence number. A push that follows a pop does not allocate.
    void push(std::shared_ptr<Timer> timer);
    // The valid timer that comes first; null when none waits.
    const Timer* first();
    // How many of the timers are valid.
    std::size_t validCount() const;
    // Takes the first timer out; only after first() has found one.
    std::shared_ptr<Timer> pop();
    // Every timer pushed so far has a smaller sequence number.
    std::uint64_t nextSequence() const { return m_nextSequence; }

private:
    using Pointer = std::shared_ptr<Timer>;
    static bool runsAfter(const Pointer& one, const Pointer& other);
    void dropInvalidated();

    std::vector<Pointer> m_heap;
    std::uint64_t m_nextSequence = 0;
    std::size_t m_sizeAtNextSweep = 64;
};

} // namespace proupsells::runloop
