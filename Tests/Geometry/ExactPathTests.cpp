// Where each point of an outline lies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Geometry/Path.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::geometry {
namespace {

using Verb = Path::Verb;

void expectPoints(const Path& path, const std::vector<Point>& expected) {
    ASSERT_EQ(path.points().size(), expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        SCOPED_TRACE(index);
        EXPECT_NEAR(path.points()[index].x, expected[index].x, 1e-5);
        EXPECT_NEAR(path.points()[index].y, expected[index].y, 1e-5);
    }
}

TEST(ExactPath, OfARectangleGoesClockwiseFromItsOrigin) {
    const Path path = Path::rectangle({{1, 2}, {10, 20}});

    expectPoints(path, {{1, 2}, {11, 2}, {11, 22}, {1, 22}});
    EXPECT_THAT(path.verbs(), testing::ElementsAre(Verb::move, Verb::line, Verb::line, Verb::line, Verb::close));
}

TEST(ExactPath, OfAnEllipseGoesClockwiseFromItsTop) {
    const Path path = Path::ellipse({{0, 0}, {20, 10}});

    expectPoints(path, {{10, 0},
                        {15.522847, 0},
                        {20, 2.238576},
                        {20, 5},
                        {20, 7.761424},
                        {15.522847, 10},
                        {10, 10},
                        {4.477153, 10},
                        {0, 7.761424},
                        {0, 5},
                        {0, 2.238576},
                        {4.477153, 0},
                        {10, 0}});
    EXPECT_THAT(path.verbs(), testing::ElementsAre(Verb::move, Verb::cubic, Verb::cubic, Verb::cubic, Verb::cubic, Verb::close));
}

TEST(ExactPath, OfCircularCornersHasAQuarterOfACircleInEach) {
    const Path path = Path::roundedRectangle({{0, 0}, {100, 60}}, 20, CornerStyle::circular);

    const double control = 20 * (1 - 0.5522847498307936);
    expectPoints(path, {{20, 0},
                        {80, 0},
                        {100 - control, 0},
                        {100, control},
                        {100, 20},
                        {100, 40},
                        {100, 60 - control},
                        {100 - control, 60},
                        {80, 60},
                        {20, 60},
                        {control, 60},
                        {0, 60 - control},
                        {0, 40},
                        {0, 20},
                        {0, control},
                        {control, 0},
                        {20, 0}});
}

TEST(ExactPath, OfContinuousCornersEasesInWhereThereIsRoom) {
    const Path path = Path::roundedRectangle({{0, 0}, {100, 100}}, 20, CornerStyle::continuous);

    const double start = 20 * 1.528, second = 40 * 0.2928932188, middle = 20 * 0.2928932188;
    ASSERT_GE(path.points().size(), 8u);
    expectPoints(path, {{start, 0},
                        {100 - start, 0},
                        {80, 0},
                        {100 - second, 0},
                        {100 - middle, middle},
                        {100, second},
                        {100, 20},
                        {100, start},
                        {100, 100 - start},
                        {100, 80},
                        {100, 100 - second},
                        {100 - middle, 100 - middle},
                        {100 - second, 100},
                        {80, 100},
                        {100 - start, 100},
                        {start, 100},
                        {20, 100},
                        {second, 100},
                        {middle, 100 - middle},
                        {0, 100 - second},
                        {0, 80},
                        {0, 100 - start},
                        {0, start},
                        {0, 20},
                        {0, second},
                        {middle, middle},
                        {second, 0},
                        {20, 0},
                        {start, 0}});
}

TEST(ExactPath, OfContinuousCornersIsACircleWhereThereIsNone) {
    const Path path = Path::roundedRectangle({{0, 0}, {40, 40}}, 30, CornerStyle::continuous);

    ASSERT_GE(path.points().size(), 5u);
    EXPECT_NEAR(path.points()[0].x, 20, 1e-9);
    EXPECT_NEAR(path.points()[2].x, 40 - 20 * 0.7347821607, 1e-9);
    EXPECT_NEAR(path.points()[2].y, 0, 1e-9);
    EXPECT_NEAR(path.points()[3].x, 40 - 20 * 0.4804349, 1e-9);
    EXPECT_NEAR(path.points()[3].y, 20 * 0.1053515, 1e-9);
    EXPECT_NEAR(path.points()[4].x, 40 - 20 * 0.2928932188, 1e-6);
}

TEST(ExactPath, EasesInAsFarAsAShortSideAllows) {
    // Along its width the corners have room, along its height 1.264 radii.
    const Path path = Path::roundedRectangle({{0, 0}, {100, 50.56}}, 20, CornerStyle::continuous);

    ASSERT_GE(path.points().size(), 8u);
    EXPECT_NEAR(path.points()[1].x, 100 - 20 * 1.528, 1e-9);
    EXPECT_NEAR(path.points()[7].y, 20 * 1.264, 1e-9);
    EXPECT_NEAR(path.points()[6].y, 20 * (0.7347821607 + 1) / 2, 1e-6);
    EXPECT_NEAR(path.points()[5].y, 20 * (0.4804349 + 2 * 0.2928932188) / 2, 1e-6);
    EXPECT_NEAR(path.points()[5].x, 100 - 20 * 0.1053515 / 2, 1e-6);
}

TEST(ExactPath, HasTheBoundsOfItsPoints) {
    Path path;
    path.moveTo({3, -4});
    path.lineTo({-1, 8});
    path.cubicTo({5, 0}, {7, 2}, {0, 0});

    EXPECT_EQ(path.bounds(), (Rect{{-1, -4}, {8, 12}}));
    EXPECT_EQ(path.transformed(Transform::translation(1, 2)).bounds(), (Rect{{0, -2}, {8, 12}}));
    EXPECT_EQ(path.bounds(), (Rect{{-1, -4}, {8, 12}}));
}

} // namespace
} // namespace proupsells::geometry
