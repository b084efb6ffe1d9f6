// How much memory the program has asked for and not given back.
#pragma once

#include <malloc.h>
#include <unistd.h>

#include <cstddef>
#include <fstream>

namespace proupsells::tests {

inline std::size_t usedMemory_bytes() {
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
#else
    const struct mallinfo info = mallinfo();
#endif
    return std::size_t(info.uordblks) + std::size_t(info.hblkhd);
}

// How much of the machine's memory the program has; 0 where nobody says.
inline std::size_t residentMemory_bytes() {
    std::ifstream statistics("/proc/self/statm");
    std::size_t all_pages = 0, resident_pages = 0;
    statistics >> all_pages >> resident_pages;
    return resident_pages * std::size_t(sysconf(_SC_PAGESIZE));
}

} // namespace proupsells::tests
