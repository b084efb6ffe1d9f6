// How much memory the program has asked for and not given back.
#pragma once

#include <malloc.h>

#include <cstddef>

namespace proupsells::tests {

inline std::size_t usedMemory_bytes() {
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
#else
    const struct mallinfo info = mallinfo();
#endif
    return std::size_t(info.uordblks) + std::size_t(info.hblkhd);
}

} // namespace proupsells::tests
