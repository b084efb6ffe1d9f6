#include "Platform/Geometry/Intervals.hpp"

namespace proupsells::geometry {

std::pair<std::size_t, std::size_t> Intervals::reachingInto(double start, double end) const {
    const auto first = std::upper_bound(m_ends.begin(), m_ends.end(), start) - m_ends.begin();
    const auto last = std::lower_bound(m_starts.begin(), m_starts.end(), end) - m_starts.begin();
    return {std::size_t(first), std::size_t(std::max(first, last))};
}

} // namespace proupsells::geometry
