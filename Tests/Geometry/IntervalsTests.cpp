#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Geometry/Intervals.hpp"

namespace proupsells::geometry {
namespace {

using Interval = std::pair<double, double>;
using Range = std::pair<std::size_t, std::size_t>;

Intervals of(const std::vector<Interval>& all) {
    Intervals intervals;
    intervals.assign(all.size(), [&](std::size_t index) { return all[index]; });
    return intervals;
}

TEST(Intervals, AreFoundWhereTheyReachIntoTheStretch) {
    const Intervals rows = of({{0, 10}, {10, 20}, {20, 30}, {30, 40}});

    EXPECT_EQ(rows.reachingInto(12, 21), (Range{1, 3}));
    EXPECT_EQ(rows.reachingInto(10, 20), (Range{1, 2})); // what only touches the stretch is outside
}

TEST(Intervals, OutsideOfAllIsAnEmptyRange) {
    const Intervals rows = of({{0, 10}, {10, 20}});

    const auto [first, end] = rows.reachingInto(50, 60);

    EXPECT_EQ(first, end);
}

TEST(Intervals, AreForgottenWhenOthersAreTaken) {
    Intervals rows = of({{0, 10}, {10, 20}, {20, 30}});

    rows.assign(1, [](std::size_t) { return Interval{5, 6}; });

    EXPECT_EQ(rows.reachingInto(0, 100), (Range{0, 1}));
}

// Also of those that overlap and follow one another in no order.
RC_GTEST_PROP(Intervals, NoneThatReachesInIsLeftOut, ()) {
    const auto place = [] { return double(*rc::gen::inRange(0, 50)); };
    std::vector<Interval> all(*rc::gen::inRange<std::size_t>(0, 20));
    for (Interval& interval : all) {
        interval.first = place();
        interval.second = interval.first + place();
    }
    const double start = place(), end = start + place();

    const auto [first, last] = of(all).reachingInto(start, end);

    for (std::size_t index = 0; index < all.size(); ++index)
        if (all[index].first < end && all[index].second > start) RC_ASSERT(index >= first && index < last);
}

} // namespace
} // namespace proupsells::geometry
