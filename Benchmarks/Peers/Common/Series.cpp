#include "Common/Series.hpp"

#include <algorithm>
#include <numeric>

namespace peers {

double Series::quantile(double share) const {
    if (m_readings.empty()) return 0;
    std::vector<double> sorted = m_readings;
    std::sort(sorted.begin(), sorted.end());
    const auto place = static_cast<std::size_t>(share * double(sorted.size()));
    return sorted[std::min(place, sorted.size() - 1)];
}

double Series::mean() const {
    return m_readings.empty() ? 0 : std::accumulate(m_readings.begin(), m_readings.end(), 0.0) / double(m_readings.size());
}

} // namespace peers
