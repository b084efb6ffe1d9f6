#include <numbers>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Geometry/Transform.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::geometry {
namespace {

using ::testing::DoubleNear;

constexpr double quarterTurn = std::numbers::pi / 2;

MATCHER_P2(IsNear, expected, tolerance, "") {
    return std::abs(arg.x - expected.x) <= tolerance && std::abs(arg.y - expected.y) <= tolerance;
}

double someLength() { return *rc::gen::inRange(-4000, 4000) / 8.0; }

Point somePoint() { return {someLength(), someLength()}; }

// Far enough from having no inverse that rounding stays small.
Transform someInvertibleTransform() {
    const double scaleX = *rc::gen::inRange(1, 40) / 8.0, scaleY = *rc::gen::inRange(1, 40) / 8.0;
    return Transform::scaling(scaleX, -scaleY)
        .then(Transform::rotation(*rc::gen::inRange(-314, 314) / 100.0))
        .then(Transform::translation(someLength(), someLength()));
}

TEST(Transform, MovesScalesAndTurns) {
    EXPECT_EQ(Transform::translation(3, -4).apply(Point{10, 20}), (Point{13, 16}));
    EXPECT_EQ(Transform::scaling(2, 3).apply(Point{10, 20}), (Point{20, 60}));
    EXPECT_THAT(Transform::rotation(quarterTurn).apply(Point{1, 0}), IsNear(Point{0, 1}, 1e-12));
}

TEST(Transform, TurnsClockwiseOnScreen) {
    const Point right{1, 0};

    EXPECT_GT(Transform::rotation(0.1).apply(right).y, 0);
}

TEST(Transform, AppliesTheFirstOneFirst) {
    const Transform doubledThenMoved = Transform::scaling(2, 2).then(Transform::translation(1, 0));

    EXPECT_EQ(doubledThenMoved.apply(Point{5, 5}), (Point{11, 10}));
}

TEST(Transform, AboutAnAnchorLeavesTheAnchorInPlace) {
    const Transform turned = Transform::rotation(quarterTurn).about({10, 10});

    EXPECT_THAT(turned.apply(Point{10, 10}), IsNear(Point{10, 10}, 1e-12));
    EXPECT_THAT(turned.apply(Point{20, 10}), IsNear(Point{10, 20}, 1e-12));
}

TEST(Transform, WithoutAnInverseIsInvertedToTheIdentity) {
    EXPECT_TRUE(Transform::scaling(0, 1).inverted().isIdentity());
    EXPECT_TRUE(Transform::scaling(infinity, 1).inverted().isIdentity());
}

TEST(Transform, MapsARectangleToItsBoundingRectangle) {
    const Rect turned = Transform::rotation(quarterTurn / 2).apply(Rect{{-1, -1}, {2, 2}});

    EXPECT_THAT(turned.width(), DoubleNear(2 * std::numbers::sqrt2, 1e-12));
    EXPECT_THAT(turned.center(), IsNear(Point{0, 0}, 1e-12));
}

TEST(Transform, KeepsARectanglesSizeExactlyWhenItOnlyMoves) {
    const Rect moved = Transform::translation(0.1, 0.2).apply(Rect{{0.3, 0.7}, {0.1, 0.3}});

    EXPECT_EQ(moved.size, (Size{0.1, 0.3}));
}

RC_GTEST_PROP(TransformAlgebra, ChainingEqualsApplyingOneAfterTheOther, ()) {
    const Transform first = someInvertibleTransform(), next = someInvertibleTransform();
    const Point point = somePoint();
    const Point chained = first.then(next).apply(point), stepwise = next.apply(first.apply(point));

    RC_ASSERT(std::abs(chained.x - stepwise.x) < 1e-6 && std::abs(chained.y - stepwise.y) < 1e-6);
}

RC_GTEST_PROP(TransformAlgebra, TheInverseUndoesTheTransform, ()) {
    const Transform transform = someInvertibleTransform();
    const Point point = somePoint();
    const Point back = transform.inverted().apply(transform.apply(point));

    RC_ASSERT(std::abs(back.x - point.x) < 1e-6 && std::abs(back.y - point.y) < 1e-6);
}

RC_GTEST_PROP(TransformAlgebra, TheMappedRectangleContainsEveryMappedPoint, ()) {
    const Transform transform = someInvertibleTransform();
    const Rect rect{somePoint(), {double(*rc::gen::inRange(0, 500)), double(*rc::gen::inRange(0, 500))}};
    const double shareX = *rc::gen::inRange(0, 101) / 100.0, shareY = *rc::gen::inRange(0, 101) / 100.0;
    const Point inside{rect.minX() + shareX * rect.width(), rect.minY() + shareY * rect.height()};
    const Rect mapped = transform.apply(rect).insetBy(-1e-6, -1e-6);

    RC_ASSERT(mapped.contains(transform.apply(inside)));
}

} // namespace
} // namespace proupsells::geometry
