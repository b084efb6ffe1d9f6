#include "Common/Memory.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace peers {
namespace {

// The number after `key` in a file whose lines read "Key:   123 kB"; 0 where the kernel has no such line.
long readLine_kb(const char* file, const char* key) {
    std::FILE* stream = std::fopen(file, "r");
    if (!stream) return 0;
    char line[256];
    long found = 0;
    while (std::fgets(line, sizeof line, stream)) {
        if (std::strncmp(line, key, std::strlen(key)) != 0) continue;
        found = std::atol(line + std::strlen(key));
        break;
    }
    std::fclose(stream);
    return found;
}

} // namespace

Memory Memory::now() {
    // The peak is not asked of getrusage: a child's begins with the size that its parent had.
    return {.peak_kb = readLine_kb("/proc/self/status", "VmHWM:"),
            .resident_kb = readLine_kb("/proc/self/status", "VmRSS:"),
            .proportional_kb = readLine_kb("/proc/self/smaps_rollup", "Pss:"),
            .privateDirty_kb = readLine_kb("/proc/self/smaps_rollup", "Private_Dirty:")};
}

} // namespace peers
