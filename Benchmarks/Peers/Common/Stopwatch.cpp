#include "Common/Stopwatch.hpp"

#include <cstdlib>
#include <ctime>

namespace peers {
namespace {

double read_ms(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

} // namespace

double processCpu_ms() { return read_ms(CLOCK_PROCESS_CPUTIME_ID); }

double sinceProcessStart_ms() {
    const double now_ms = read_ms(CLOCK_MONOTONIC);
    const char* start_ns = std::getenv("PEER_T0");
    return start_ns ? now_ms - std::atof(start_ns) / 1e6 : 0;
}

Stopwatch::Stopwatch() : m_wallStart_ms(read_ms(CLOCK_MONOTONIC)), m_cpuStart_ms(processCpu_ms()) {}

double Stopwatch::wall_ms() const { return read_ms(CLOCK_MONOTONIC) - m_wallStart_ms; }

double Stopwatch::cpu_ms() const { return processCpu_ms() - m_cpuStart_ms; }

} // namespace peers
