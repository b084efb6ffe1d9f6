// Time that does not pass while other programs have the processor.
#pragma once

#include <ctime>

namespace proupsells::tests {

// The processor time that this thread has used, in seconds.
inline double cpuTime_s() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

// The processor time that `work` takes.
template <class Work>
double cpuTimeOf_s(Work&& work) {
    const double start_s = cpuTime_s();
    work();
    return cpuTime_s() - start_s;
}

} // namespace proupsells::tests
