// The program's operator new and delete, counting.
#include "Tests/Support/AllocationCounter.hpp"

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

using namespace proupsells::tests;

// What stands before each block, as long as the alignment that every block has.
struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Heading {
    std::size_t size_bytes;
};

void* allocated(std::size_t size_bytes) noexcept {
    void* const memory = size_bytes <= SIZE_MAX - sizeof(Heading) ? std::malloc(sizeof(Heading) + size_bytes) : nullptr;
    if (!memory) return nullptr;
    allocationsSoFar.fetch_add(1, std::memory_order_relaxed);
    liveBlocks.fetch_add(1, std::memory_order_relaxed);
    liveBytes.fetch_add(size_bytes, std::memory_order_relaxed);
    return new (memory) Heading{size_bytes} + 1;
}

void release(void* block) noexcept {
    if (!block) return;
    Heading* const heading = static_cast<Heading*>(block) - 1;
    liveBlocks.fetch_sub(1, std::memory_order_relaxed);
    liveBytes.fetch_sub(heading->size_bytes, std::memory_order_relaxed);
    std::free(heading);
}

} // namespace

// All forms but the over-aligned ones, so that none of another library is paired with one of these. Never inlined: a compiler that
// sees through one of a pair only takes it for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocated(size); }
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (void* memory = operator new(size, std::nothrow)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new[](std::size_t size) { return operator new(size); }
[[gnu::noinline]] void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return operator new(size, std::nothrow);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { release(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { release(memory); }
[[gnu::noinline]] void operator delete(void* memory, const std::nothrow_t&) noexcept { release(memory); }
[[gnu::noinline]] void operator delete[](void* memory) noexcept { release(memory); }
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept { release(memory); }
[[gnu::noinline]] void operator delete[](void* memory, const std::nothrow_t&) noexcept { release(memory); }
