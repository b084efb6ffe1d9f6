// Intervals of which those that reach into a stretch are found without a look at each.
#pragma once

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>
#include <vector>

#include "Platform/Geometry/Axis.hpp"
#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::geometry {

// Where the rectangle starts and ends along the axis.
inline std::pair<double, double> extentOf(const Rect& rect, Axis axis) {
    return axis == Axis::horizontal ? std::pair{rect.minX(), rect.maxX()} : std::pair{rect.minY(), rect.maxY()};
}

// Quick where the intervals follow one another, as the items of a list do. Any others are allowed, too.
class Intervals {
public:
    // Takes `count` intervals: `intervalAt(index)` gives each as a pair of its start and its end. Keeps its memory.
    template <class IntervalAt>
    void assign(std::size_t count, const IntervalAt& intervalAt);

    // The range [first, end) of indices outside of which no interval reaches into the open stretch.
    std::pair<std::size_t, std::size_t> reachingInto(double start, double end) const;

private:
    std::vector<double> m_starts; // the earliest of this interval and of all after it
    std::vector<double> m_ends;   // the latest of this interval and of all before it
};

template <class IntervalAt>
void Intervals::assign(std::size_t count, const IntervalAt& intervalAt) {
    m_starts.resize(count);
    m_ends.resize(count);
    for (std::size_t index = 0; index < count; ++index) std::tie(m_starts[index], m_ends[index]) = intervalAt(index);
    for (std::size_t index = 1; index < count; ++index) m_ends[index] = std::max(m_ends[index - 1], m_ends[index]);
    for (std::size_t index = count; index-- > 1;) m_starts[index - 1] = std::min(m_starts[index - 1], m_starts[index]);
}

} // namespace proupsells::geometry
