#include "Platform/Motion/VelocityTracker.hpp"

#include <algorithm>

namespace proupsells::motion {
namespace {

// Only positions of this last stretch of time count.
constexpr double window_s = 0.1;
// A device that reports more often would fill the memory with the trembling of a few milliseconds.
constexpr double sampleInterval_s = 0.005;

} // namespace

void VelocityTracker::reset() { m_count = 0; }

void VelocityTracker::add(double time_s, double position) {
    const bool isSameMoment = m_count >= 1 && time_s <= m_times_s[m_count - 1];
    if (isSameMoment || (m_count >= 2 && time_s - m_times_s[m_count - 2] < sampleInterval_s)) {
        --m_count;
    } else if (m_count == capacity) {
        std::copy(m_times_s + 1, m_times_s + capacity, m_times_s);
        std::copy(m_positions + 1, m_positions + capacity, m_positions);
        --m_count;
    }
    m_times_s[m_count] = time_s;
    m_positions[m_count] = position;
    ++m_count;
}

double VelocityTracker::velocityAt(double time_s) const {
    int oldest = 0;
    // A sample exactly as old as the window counts, however the clock rounds.
    while (oldest < m_count && m_times_s[oldest] < time_s - window_s - 1e-9) ++oldest;
    if (m_count - oldest < 2) return 0;
    const double span_s = m_times_s[m_count - 1] - m_times_s[oldest];
    return span_s > 0 ? (m_positions[m_count - 1] - m_positions[oldest]) / span_s : 0;
}

} // namespace proupsells::motion
