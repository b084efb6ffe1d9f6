#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Geometry/Geometry.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::geometry {
namespace {

Rect someSmallRect() {
    const auto length = [](int lowest) { return double(*rc::gen::inRange(lowest, 20)); };
    return {{length(-20), length(-20)}, {length(0), length(0)}};
}

TEST(Rect, OwnsItsLeftAndTopEdgesOnly) {
    const Rect rect{{10, 10}, {5, 5}};

    EXPECT_TRUE(rect.contains({10, 10}));
    EXPECT_FALSE(rect.contains({15, 12}));
    EXPECT_FALSE(rect.contains({12, 15}));
}

TEST(Rect, WithoutAreaIsEmptyAndAddsNothingToAUnion) {
    const Rect rect{{0, 0}, {4, 4}}, flat{{100, 100}, {50, 0}};

    EXPECT_TRUE(flat.isEmpty());
    EXPECT_EQ(rect.united(flat), rect);
    EXPECT_EQ(flat.united(rect), rect);
}

TEST(Rect, TouchingAtAnEdgeIsNoIntersection) { EXPECT_FALSE((Rect{{0, 0}, {4, 4}}).intersects({{4, 0}, {4, 4}})); }

TEST(ProposedSize, ReplacesOnlyAbsentLengths) {
    EXPECT_EQ((ProposedSize{std::nullopt, 20.0}.orReplacing({10, 10})), (Size{10, 20}));
}

RC_GTEST_PROP(RectAlgebra, TheIntersectionIsWhatBothContain, ()) {
    const Rect a = someSmallRect(), b = someSmallRect();
    const Point point{*rc::gen::inRange(-20, 40) + 0.5, *rc::gen::inRange(-20, 40) + 0.5};

    RC_ASSERT(a.intersection(b).contains(point) == (a.contains(point) && b.contains(point)));
}

RC_GTEST_PROP(RectAlgebra, TheUnionContainsWhatEitherContains, ()) {
    const Rect a = someSmallRect(), b = someSmallRect();
    const Point point{*rc::gen::inRange(-20, 40) + 0.5, *rc::gen::inRange(-20, 40) + 0.5};

    if (a.contains(point) || b.contains(point)) RC_ASSERT(a.united(b).contains(point));
}

} // namespace
} // namespace proupsells::geometry
