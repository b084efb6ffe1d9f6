// What the process occupies, as the kernel counts it.
#pragma once

namespace peers {

// Kilobytes. Shared pages are divided among the processes that map them only in `proportional_kb`.
struct Memory {
    long peak_kb = 0;
    long resident_kb = 0;
    long proportional_kb = 0;
    long privateDirty_kb = 0;

    static Memory now();
};

} // namespace peers
