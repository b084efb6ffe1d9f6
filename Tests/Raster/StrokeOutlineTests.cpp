// Strokes of curves against those of many short lines, and of parts of paths.
#include "Backends/Raster/StrokeOutline.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "Tests/Raster/Canvas.hpp"
#include "Tests/Support/UsedMemory.hpp"

namespace proupsells::tests {
namespace {

using geometry::CornerStyle;
using geometry::Path;
using geometry::Point;
using geometry::Rect;
using geometry::Transform;
using graphics::PaintState;

rasterbackend::Picture strokeOf(const Path& path, double lineWidth, const PaintState& state = {}) {
    Canvas canvas({60, 60});
    canvas.context.strokePath(state, path, lineWidth, black);
    return canvas.image();
}

int largestDifferenceOf(const rasterbackend::Picture& a, const rasterbackend::Picture& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) largest = std::max(largest, std::abs(greenAt(a, x, y) - greenAt(b, x, y)));
    return largest;
}

int differentPixels(const rasterbackend::Picture& a, const rasterbackend::Picture& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) count += std::abs(greenAt(a, x, y) - greenAt(b, x, y)) > 8;
    return count;
}

Path lineThrough(std::initializer_list<Point> points) {
    Path path;
    for (const Point& point : points) &point == points.begin() ? path.moveTo(point) : path.lineTo(point);
    return path;
}

Path curveInLines(const Point (&points)[4], int count) {
    Path path;
    path.moveTo(points[0]);
    for (int step = 1; step <= count; ++step) {
        const double t = double(step) / count, u = 1 - t;
        const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
        path.lineTo({a * points[0].x + b * points[1].x + c * points[2].x + d * points[3].x,
                     a * points[0].y + b * points[1].y + c * points[2].y + d * points[3].y});
    }
    return path;
}

// The curve, or as many lines as nobody can tell from it.
Path curveOf(const Point (&points)[4], bool isOfLines) {
    if (isOfLines) return curveInLines(points, 400);
    Path path;
    path.moveTo(points[0]);
    path.cubicTo(points[1], points[2], points[3]);
    return path;
}

// By no more lines than keep within a hundredth of a pixel, wherever the curve is most bent.
TEST(StrokeOutline, OfACurveHasAsManyLinesAsItsBendWants) {
    rasterbackend::StrokeOutliner strokes;
    const Point points[] = {{0, 0}, {20, 4}, {40, 4}, {60, 0}};
    const auto pointsOf = [&](const Path& path, double scale) { return strokes.outline(path, {1}, scale).points().size(); };

    EXPECT_EQ(pointsOf(curveOf(points, false), 1), pointsOf(curveInLines(points, 18), 1));
    EXPECT_EQ(pointsOf(curveOf(points, false), 4), pointsOf(curveInLines(points, 35), 4));
    EXPECT_LT(pointsOf(curveOf(points, false), 1), pointsOf(curveInLines(points, 19), 1));
}

// Some with one end nearly straight.
TEST(StrokeOutline, OfACurveIsThatOfManyShortLines) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-10, 70), little(-0.4, 0.4);
    const auto somewhere = [&] { return Point{place(random), place(random)}; };
    const auto near = [&](Point a, Point b) { return Point{2 * a.x - b.x + little(random), 2 * a.y - b.y + little(random)}; };
    for (int count = 0; count < 600; ++count) {
        Point points[] = {somewhere(), somewhere(), somewhere(), somewhere()};
        if (count % 3 == 1) points[2] = near(points[1], points[0]);
        if (count % 3 == 2) points[1] = near(points[2], points[3]);
        SCOPED_TRACE(count);

        const int different = differentPixels(strokeOf(curveOf(points, false), 1.5), strokeOf(curveOf(points, true), 1.5));
        ASSERT_LE(different, 6);
    }
}

// Control points that are simple sums of those before, about the path's own origin: none of them may pass for a straight line.
TEST(StrokeOutline, OfACurveAboutTheOriginIsThatOfManyShortLines) {
    std::mt19937 random(4);
    std::uniform_real_distribution<double> place(-6, 6), little(-0.1, 0.1);
    const PaintState large = PaintState().transformedBy(Transform::scaling(2, 2).then(Transform::translation(30, 30)));
    for (const int ofFirst : {-1, 1})
        for (const int ofSecond : {-3, -2, -1, 0, 1, 2, 3})
            for (int count = 0; count < 16; ++count) {
                const auto sum = [&](int first, Point a, int second, Point b) {
                    return Point{first * a.x + second * b.x + little(random), first * a.y + second * b.y + little(random)};
                };
                const Point a{place(random), place(random)}, b{place(random), place(random)}, c = sum(ofFirst, a, ofSecond, b);
                const Point d = count % 2 ? sum(ofFirst, b, ofSecond, c) : sum(-1, b, 2, c);
                const Point forwards[] = {a, b, c, d}, backwards[] = {d, c, b, a};
                SCOPED_TRACE(testing::Message() << ofFirst << ", " << ofSecond << ", " << count);

                for (const auto* points : {&forwards, &backwards})
                    ASSERT_LE(differentPixels(strokeOf(curveOf(*points, false), 0.7, large),
                                              strokeOf(curveOf(*points, true), 0.7, large)),
                              6);
            }
}

TEST(StrokeOutline, TakesItsMemoryWithIt) {
    const auto makeSome = [] {
        for (int count = 0; count < 5000; ++count) rasterbackend::StrokeOutliner().outline(lineThrough({{0, 0}, {20, 30}}), {2}, 1);
    };
    makeSome();
    const std::size_t before = usedMemory_bytes();

    makeSome();

    EXPECT_LT(usedMemory_bytes(), before + (100u << 10));
}

TEST(StrokeOutline, FollowsALineThatComesBackToWhereItWas) {
    const rasterbackend::Picture there = strokeOf(lineThrough({{10, 10}, {40, 10}, {10, 10}, {10, 50}}), 4);

    EXPECT_NEAR(totalInk(there), totalInk(strokeOf(lineThrough({{40, 10}, {10, 10}, {10, 50}}), 4)), 8);
}

TEST(StrokeOutline, KeepsThePartsOfAPathApart) {
    Path parts = lineThrough({{10, 10}, {40, 10}});
    parts.moveTo({10, 50});
    parts.lineTo({40, 30});
    Canvas together({60, 60}), apart({60, 60});
    together.context.strokePath({}, parts, 3, black);
    apart.context.strokePath({}, lineThrough({{10, 10}, {40, 10}}), 3, black);
    apart.context.strokePath({}, lineThrough({{10, 50}, {40, 30}}), 3, black);

    EXPECT_TRUE(isSame(together.image(), apart.image()));
}

TEST(StrokeOutline, HasNoEndsWhereThePartIsClosed) {
    Path closed = lineThrough({{10, 10}, {50, 10}, {50, 50}, {10, 50}});
    closed.close();

    // Round corners outside, square ones inside.
    EXPECT_NEAR(totalInk(strokeOf(closed, 8)), 48 * 48 - 32 * 32 - (4 - std::numbers::pi) * 4 * 4, 0.5);
}

TEST(StrokeOutline, IsAsWideAsTheScaleMakesIt) {
    const Path line = lineThrough({{1, 3}, {5, 3}});
    const PaintState large = PaintState().transformedBy(Transform::scaling(10, 10)),
                     flat = PaintState().transformedBy(Transform::scaling(10, 2)),
                     turned = PaintState().transformedBy(Transform::rotation(std::numbers::pi / 4).about({30, 30}));

    EXPECT_NEAR(totalInk(strokeOf(line, 1, large)), 40 * 10 + std::numbers::pi * 5 * 5, 0.5);
    EXPECT_NEAR(totalInk(strokeOf(line, 1, flat)), 40 * 2 + std::numbers::pi * 5 * 1, 0.5);
    EXPECT_NEAR(totalInk(strokeOf(lineThrough({{15, 30}, {45, 30}}), 3, turned)), 30 * 3 + std::numbers::pi * 1.5 * 1.5, 0.5);
}

TEST(StrokeOutline, OfARectangleHasMitredCornersHoweverItIsTurned) {
    for (const double angle : {0.3, std::numbers::pi / 4, std::numbers::pi / 2}) {
        Canvas canvas({60, 60});
        const PaintState turned = PaintState().transformedBy(Transform::rotation(angle).about({30, 30}));
        canvas.context.strokeRoundedRectangle(turned, {{18, 20}, {24, 20}}, 0, CornerStyle::circular, 6, black);

        EXPECT_NEAR(totalInk(canvas.image()), 30 * 26 - 18 * 14, 0.5) << angle;
    }
}

TEST(StrokeOutline, OfAFlatRectangleIsAFilledOne) {
    for (const double lineWidth : {0.5, 1.0, 4.0})
        for (const Rect frame : {Rect{{10, 20.25}, {30, 0}}, Rect{{20.25, 10}, {0, 30}}, Rect{{20.5, 20.25}, {0, 0}}}) {
            Canvas stroke({60, 60}), rectangle({60, 60});
            stroke.context.strokeRoundedRectangle({}, frame, 3, CornerStyle::circular, lineWidth, black);
            rectangle.context.fillRectangle({}, frame.insetBy(-lineWidth / 2, -lineWidth / 2), black);

            EXPECT_LE(largestDifferenceOf(stroke.image(), rectangle.image()), 1);
        }
}

TEST(StrokeOutline, OfANarrowRectangleHasAHole) {
    Canvas upright({40, 40}), level({40, 40});
    upright.context.strokeRoundedRectangle({}, {{10, 5}, {1, 30}}, 0, CornerStyle::circular, 0.5, black);
    level.context.strokeRoundedRectangle({}, {{5, 10}, {30, 1}}, 0, CornerStyle::circular, 0.5, black);

    for (const int ink : {upright.ink(10, 20), level.ink(20, 10)}) EXPECT_NEAR(ink, 128, 1);
    for (const int ink : {upright.ink(11, 20), level.ink(20, 11), upright.ink(9, 20), level.ink(20, 9)}) EXPECT_NEAR(ink, 64, 1);
}

TEST(StrokeOutline, IsLeftOutWhereItHasMorePointsThanAnOutlineCanHave) {
    const auto zigzag = [](int count) {
        Path path;
        path.moveTo({0, 20});
        for (int step = 1; step <= count; ++step) path.lineTo({step * 60.0 / count, step % 2 ? 40.0 : 20.0});
        return path;
    };

    EXPECT_GT(totalInk(strokeOf(zigzag(1000), 1)), 1000);
    EXPECT_EQ(totalInk(strokeOf(zigzag(20'000), 1)), 0);
}

// --- Shapes that are turned or stretched are made of outlines ---

TEST(TransformedShapes, KeepTheirArea) {
    const double area = std::numbers::pi * 15 * 10,
                 ring = 4 * std::numbers::pi * (3 * 25 - std::sqrt(55.0 * 45.0)); // by Ramanujan's length of an ellipse
    for (const double angle : {0.3, std::numbers::pi / 2, std::numbers::pi, 4.0}) {
        const PaintState turned = PaintState().transformedBy(Transform::rotation(angle).about({30, 30}));
        Canvas ellipse({60, 60}), outline({60, 60}), rectangle({60, 60}), rounded({60, 60});
        ellipse.context.fillEllipse(turned, {{15, 20}, {30, 20}}, black);
        outline.context.strokeEllipse(turned, {{15, 20}, {30, 20}}, 4, black);
        rectangle.context.fillRectangle(turned, {{15, 20}, {30, 20}}, black);
        rounded.context.fillRoundedRectangle(turned, {{15, 20}, {30, 20}}, 6, CornerStyle::circular, black);

        EXPECT_NEAR(totalInk(ellipse.image()), area, 1.5) << angle;
        EXPECT_NEAR(totalInk(outline.image()), ring, 1) << angle;
        EXPECT_NEAR(totalInk(rectangle.image()), 600, 0.5) << angle;
        EXPECT_NEAR(totalInk(rounded.image()), 600 - (4 - std::numbers::pi) * 36, 0.7) << angle;
    }
}

TEST(TransformedShapes, AreStretchedSkewedAndMirroredLikeTheirPaths) {
    const Rect frame{{20, 22}, {16, 12}};
    const Path path = Path::roundedRectangle(frame, 5, CornerStyle::circular), sharp = Path::rectangle(frame);
    for (const Transform& transform : {Transform::scaling(2, 1), Transform::scaling(1, 2), Transform{1, 0.4, 0, 1, 0, 0},
                                       Transform{1, 0, 0.4, 1, 0, 0}, Transform::scaling(-1, -1), Transform::scaling(-1, 1),
                                       Transform::scaling(1, -1), Transform::scaling(0.5, 0.5), Transform::scaling(1.5, 1.5)}) {
        const PaintState state = PaintState().transformedBy(transform.about({28, 28}));
        Canvas shape({60, 60}), outline({60, 60}), rectangle({60, 60}), sharpOutline({60, 60});
        shape.context.fillRoundedRectangle(state, frame, 5, CornerStyle::circular, black);
        shape.context.strokeRoundedRectangle(state, frame, 5, CornerStyle::circular, 2, red);
        outline.context.fillPath(state, path, black);
        outline.context.strokePath(state, path, 2, red);
        rectangle.context.fillRectangle(state, frame, black);
        sharpOutline.context.fillPath(state, sharp, black);

        SCOPED_TRACE(testing::Message() << transform.a << ' ' << transform.b << ' ' << transform.c << ' ' << transform.d);
        EXPECT_LE(largestDifferenceOf(shape.image(), outline.image()), 8);
        EXPECT_LE(largestDifferenceOf(rectangle.image(), sharpOutline.image()), 2);
    }
}

} // namespace
} // namespace proupsells::tests
