#include "Platform/RunLoop/Clock.hpp"

#include <chrono>

namespace proupsells::runloop {

namespace {

std::int64_t steadyTime_ns() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

void VirtualClock::advanceTo(double time_s) {
    if (time_s > m_now_s) m_now_s = time_s;
}

RealClock::RealClock() : m_start_ns(steadyTime_ns()) {}

double RealClock::now_s() const { return static_cast<double>(steadyTime_ns() - m_start_ns) * 1e-9; }

} // namespace proupsells::runloop
