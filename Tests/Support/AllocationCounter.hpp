// Counts heap allocations. It replaces the program's operator new, so include it in exactly one source of a test program.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

namespace tests {

inline std::size_t allocationsSoFar = 0;

// The allocations made while `work` runs.
template <class Work>
std::size_t allocationsDuring(Work&& work) {
    const std::size_t before = allocationsSoFar;
    work();
    return allocationsSoFar - before;
}

} // namespace tests

void* operator new(std::size_t size) {
    ++tests::allocationsSoFar;
    if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
