#include <gtest/gtest.h>

#include "Platform/Motion/DragOrigin.hpp"

using namespace proupsells;

using geometry::Axis;
using geometry::Point;
using motion::dragOrigin;

namespace {

constexpr Point start{100, 200};

TEST(DragOrigin, IsAbsentUntilTheFingerHasMovedTenPoints) {
    EXPECT_EQ(dragOrigin(Axis::vertical, start, {100, 209.9}), std::nullopt);
    EXPECT_EQ(dragOrigin(start, {107, 207}), std::nullopt);
}

TEST(DragOrigin, IsTenPointsAlongTheAxisHoweverFarTheFingerHasCome) {
    EXPECT_EQ(dragOrigin(Axis::vertical, start, {103, 260}), (Point{100, 210}));
    EXPECT_EQ(dragOrigin(Axis::vertical, start, {103, 190}), (Point{100, 190}));
    EXPECT_EQ(dragOrigin(Axis::horizontal, start, {20, 210}), (Point{90, 200}));
}

TEST(DragOrigin, IsAbsentWhereTheFingerMovesAcross) {
    EXPECT_EQ(dragOrigin(Axis::vertical, start, {160, 250}), std::nullopt);
    EXPECT_EQ(dragOrigin(Axis::vertical, start, {150, 250}), (Point{100, 210}));
}

TEST(DragOrigin, IsTenPointsOnTheFingersWayWhereItMayGoAnywhere) { EXPECT_EQ(dragOrigin(start, {130, 240}), (Point{106, 208})); }

} // namespace
