// Counts heap allocations, in test programs that are linked with AllocationCounter.
#pragma once

#include <cstddef>

namespace proupsells::tests {

inline std::size_t allocationsSoFar = 0;

// The allocations made while `work` runs.
template <class Work>
std::size_t allocationsDuring(Work&& work) {
    const std::size_t before = allocationsSoFar;
    work();
    return allocationsSoFar - before;
}

} // namespace proupsells::tests
