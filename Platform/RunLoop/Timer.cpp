#include "Platform/RunLoop/Timer.hpp"

#include <cmath>
#include <utility>

namespace proupsells::runloop {

void Timer::invalidate() {
    m_isValid = false;
    // What the callback held may come back here from its destructor, so it goes last.
    const auto callback = std::exchange(m_callback, nullptr);
}

void Timer::advanceOnGrid(double clock_s) {
    // Multiplied, not summed up: the grid does not drift.
    const auto gridPoint_s = [&] { return m_start_s + static_cast<double>(m_tick) * m_interval_s; };
    ++m_tick;
    if (gridPoint_s() < clock_s) {
        const double passed = std::floor((clock_s - m_start_s) / m_interval_s);
        if (passed < 0x1p53) {
            m_tick = static_cast<std::uint64_t>(passed);
            if (gridPoint_s() < clock_s) ++m_tick;
        } else {
            // A double no longer counts every tick: no grid is left to keep.
            m_start_s = clock_s;
            m_tick = 1;
        }
    }
    m_due_s = gridPoint_s();
}

} // namespace proupsells::runloop
