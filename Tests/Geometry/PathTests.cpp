#include <cmath>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Geometry/Path.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::geometry {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;

struct Cubic {
    Point start, control1, control2, end;

    Point at(double t) const {
        const double u = 1 - t;
        const double w0 = u * u * u, w1 = 3 * u * u * t, w2 = 3 * u * t * t, w3 = t * t * t;
        return {w0 * start.x + w1 * control1.x + w2 * control2.x + w3 * end.x,
                w0 * start.y + w1 * control1.y + w2 * control2.y + w3 * end.y};
    }

    double curvatureAt(double t) const {
        const double u = 1 - t;
        const Point d1 = control1 - start, d2 = control2 - control1, d3 = end - control2;
        const Point velocity{3 * (u * u * d1.x + 2 * u * t * d2.x + t * t * d3.x),
                             3 * (u * u * d1.y + 2 * u * t * d2.y + t * t * d3.y)};
        const Point e1 = d2 - d1, e2 = d3 - d2;
        const Point acceleration{6 * (u * e1.x + t * e2.x), 6 * (u * e1.y + t * e2.y)};
        const double cross = velocity.x * acceleration.y - velocity.y * acceleration.x;
        return cross / std::pow(velocity.x * velocity.x + velocity.y * velocity.y, 1.5);
    }
};

std::vector<Cubic> cubicsOf(const Path& path) {
    std::vector<Cubic> cubics;
    auto point = path.points().begin();
    Point current;
    for (const Path::Verb verb : path.verbs()) {
        if (verb == Path::Verb::cubic) {
            cubics.push_back({current, point[0], point[1], point[2]});
            point += 3;
        } else if (verb != Path::Verb::close) {
            ++point;
        }
        if (point != path.points().begin()) current = *(point - 1);
    }
    return cubics;
}

// The enclosed area by the trapezoid rule over a fine outline.
double areaOf(const Path& path) {
    std::vector<Point> outline;
    auto point = path.points().begin();
    for (const Path::Verb verb : path.verbs()) {
        if (verb == Path::Verb::close) continue;
        if (verb != Path::Verb::cubic) {
            outline.push_back(*point++);
            continue;
        }
        const Cubic cubic{outline.back(), point[0], point[1], point[2]};
        for (int step = 1; step <= 200; ++step) outline.push_back(cubic.at(step / 200.0));
        point += 3;
    }
    double doubled = 0;
    for (std::size_t index = 0; index < outline.size(); ++index) {
        const Point a = outline[index], b = outline[(index + 1) % outline.size()];
        doubled += a.x * b.y - b.x * a.y;
    }
    return doubled / 2;
}

Rect someLargeRect() {
    const auto length = [](int lowest) { return *rc::gen::inRange(lowest, 4000) / 8.0; };
    return {{length(-4000), length(-4000)}, {length(1), length(1)}};
}

bool isWithin(const Rect& inner, const Rect& outer) {
    constexpr double tolerance = 1e-6;
    return inner.minX() >= outer.minX() - tolerance && inner.minY() >= outer.minY() - tolerance &&
           inner.maxX() <= outer.maxX() + tolerance && inner.maxY() <= outer.maxY() + tolerance;
}

TEST(Path, HasOnePointForALineAndThreeForACubic) {
    Path path;
    path.moveTo({0, 0});
    path.lineTo({1, 0});
    path.cubicTo({2, 0}, {3, 1}, {3, 2});
    path.close();

    EXPECT_THAT(path.verbs(), ElementsAre(Path::Verb::move, Path::Verb::line, Path::Verb::cubic, Path::Verb::close));
    EXPECT_THAT(path.points(), ElementsAre(Point{0, 0}, Point{1, 0}, Point{2, 0}, Point{3, 1}, Point{3, 2}));
    EXPECT_EQ(path.bounds(), (Rect{{0, 0}, {3, 2}}));
}

TEST(Path, WithoutPointsHasEmptyBounds) {
    EXPECT_TRUE(Path{}.isEmpty());
    EXPECT_EQ(Path{}.bounds(), Rect{});
}

TEST(Path, ClearedIsAsGoodAsNew) {
    Path path = Path::ellipse({{0, 0}, {4, 4}});

    path.clear();

    EXPECT_EQ(path, Path{});
}

TEST(Path, TransformsEveryPoint) {
    const Path path = Path::rectangle({{0, 0}, {2, 1}}).transformed(Transform::scaling(10, 10));

    EXPECT_EQ(path, Path::rectangle({{0, 0}, {20, 10}}));
}

TEST(Path, EllipseHasTheAreaOfAnEllipse) {
    EXPECT_THAT(areaOf(Path::ellipse({{10, 20}, {40, 20}})), DoubleNear(M_PI * 20 * 10, 0.5));
}

TEST(RoundedRectangle, WithoutARadiusIsARectangle) {
    const Rect rect{{1, 2}, {30, 40}};

    for (const double radius : {0.0, -5.0, std::nan("")}) {
        EXPECT_EQ(Path::roundedRectangle(rect, radius, CornerStyle::circular), Path::rectangle(rect));
        EXPECT_EQ(Path::roundedRectangle(rect, radius, CornerStyle::continuous), Path::rectangle(rect));
    }
}

TEST(RoundedRectangle, WithTheLargestRadiusOfASquareIsACircle) {
    const Path path = Path::roundedRectangle({{0, 0}, {20, 20}}, 1000, CornerStyle::circular);

    for (const Cubic& cubic : cubicsOf(path)) {
        const Point middle = cubic.at(0.5) - Point{10, 10};
        EXPECT_THAT(std::hypot(middle.x, middle.y), DoubleNear(10, 0.01));
    }
}

TEST(RoundedRectangle, ContinuousCornersOfASquareWithoutRoomAreACircleToo) {
    const Path path = Path::roundedRectangle({{0, 0}, {20, 20}}, 10, CornerStyle::continuous);

    for (const Cubic& cubic : cubicsOf(path)) {
        for (const double t : {0.0, 0.25, 0.5, 0.75, 1.0}) {
            const Point fromCenter = cubic.at(t) - Point{10, 10};
            EXPECT_THAT(std::hypot(fromCenter.x, fromCenter.y), DoubleNear(10, 0.001));
        }
    }
}

TEST(RoundedRectangle, ContinuousCornersBeginBeforeTheArcWould) {
    const Path path = Path::roundedRectangle({{0, 0}, {200, 100}}, 10, CornerStyle::continuous);

    EXPECT_THAT(path.points().front().x, DoubleNear(15.28, 1e-9));
    EXPECT_EQ(path.points().front().y, 0);
}

TEST(RoundedRectangle, ContinuousCornersMeetTheArcAtTheDiagonal) {
    const Path path = Path::roundedRectangle({{0, 0}, {200, 100}}, 10, CornerStyle::continuous);
    const Point topRight = cubicsOf(path).front().end;
    const double deepestOfArc = 10 - 10 / std::sqrt(2);

    EXPECT_THAT(200 - topRight.x, DoubleNear(deepestOfArc, 1e-9));
    EXPECT_THAT(topRight.y, DoubleNear(deepestOfArc, 1e-9));
}

TEST(RoundedRectangle, CurvatureOfContinuousCornersGrowsFromNothingAndThenStaysAboutEven) {
    const double radius = 10, arcCurvature = 1 / radius;
    const Cubic half = cubicsOf(Path::roundedRectangle({{0, 0}, {200, 100}}, radius, CornerStyle::continuous)).front();

    double previous = half.curvatureAt(0);
    EXPECT_THAT(previous, DoubleNear(0, 1e-9));
    for (int step = 1; step <= 100; ++step) {
        SCOPED_TRACE(step);
        const double curvature = half.curvatureAt(step / 100.0);
        EXPECT_GE(curvature, std::min(previous, arcCurvature));
        EXPECT_LE(curvature, 1.21 * arcCurvature);
        previous = curvature;
    }
    EXPECT_GT(previous, arcCurvature);
}

// A pill: its ends are half circles, its long sides ease in.
TEST(RoundedRectangle, ContinuousCapsuleKeepsItsRoundEnds) {
    const Path path = Path::roundedRectangle({{0, 0}, {100, 20}}, 10, CornerStyle::continuous);
    const Cubic rightEndUpperHalf = cubicsOf(path)[1];

    EXPECT_THAT(rightEndUpperHalf.end.x, DoubleNear(100, 1e-9));
    EXPECT_THAT(rightEndUpperHalf.end.y, DoubleNear(10, 1e-9));
    for (const double t : {0.25, 0.5, 0.75}) {
        const Point fromCenter = rightEndUpperHalf.at(t) - Point{90, 10};
        EXPECT_THAT(std::hypot(fromCenter.x, fromCenter.y), DoubleNear(10, 0.01));
    }
}

RC_GTEST_PROP(RoundedRectangleShape, StaysInsideItsRectangleAndTouchesEverySide, (int tenthsOfRadius)) {
    const Rect rect = someLargeRect();
    const auto style = *rc::gen::element(CornerStyle::circular, CornerStyle::continuous);
    const Rect bounds = Path::roundedRectangle(rect, std::abs(tenthsOfRadius % 4000) / 10.0, style).bounds();

    RC_ASSERT(isWithin(bounds, rect));
    RC_ASSERT(isWithin(rect, bounds));
}

RC_GTEST_PROP(RoundedRectangleShape, ContinuousCornersNeverCutOffMoreThanAFewPerCentOfTheArcs, ()) {
    const Rect rect = someLargeRect();
    const double radius = *rc::gen::inRange(1, 2000) / 8.0;
    const double circular = areaOf(Path::roundedRectangle(rect, radius, CornerStyle::circular));
    const double continuous = areaOf(Path::roundedRectangle(rect, radius, CornerStyle::continuous));

    RC_ASSERT(continuous <= circular * (1 + 1e-3));
    RC_ASSERT(continuous >= circular * 0.9);
}

} // namespace
} // namespace proupsells::geometry
