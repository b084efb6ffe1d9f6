// Counts heap allocations, and what of them lives, in programs that are linked with AllocationCounter.
#pragma once

#include <atomic>
#include <cstddef>

namespace proupsells::tests {

// By all threads. Over-aligned memory and what C libraries take for themselves are left out.
inline std::atomic<std::size_t> allocationsSoFar = 0;
inline std::atomic<std::size_t> liveBlocks = 0;
// As they were asked for: neither the allocator's rounding nor the order of its blocks is in it.
inline std::atomic<std::size_t> liveBytes = 0;

// The allocations made while `work` runs.
template <class Work>
std::size_t allocationsDuring(Work&& work) {
    const std::size_t before = allocationsSoFar;
    work();
    return allocationsSoFar - before;
}

} // namespace proupsells::tests
