// How much of each pixel an outline covers, against the area of what is left of it when it is cut along the pixel's sides.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <numbers>
#include <random>

#include "Backends/Raster/CoverageRasterizer.hpp"
#include "Backends/Raster/FontFile.hpp"
#include "Tests/Raster/Canvas.hpp"
#include "Tests/Raster/Shaping.hpp"

namespace proupsells::tests {
namespace {

using geometry::Path;
using geometry::Point;
using geometry::Transform;
using rasterbackend::CoverageMask;
using rasterbackend::CoverageRasterizer;
using ::testing::ElementsAre;

using Polygon = std::vector<Point>;
using Coverages = std::vector<std::vector<int>>; // rows of pixels, 0 to 255

double areaOf(const Polygon& polygon) {
    double twice = 0;
    for (std::size_t index = 0; index < polygon.size(); ++index) {
        const Point &a = polygon[index], &b = polygon[(index + 1) % polygon.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return twice / 2;
}

// What of the polygon has a `distance` of at least 0, which changes evenly across the plane.
template <class Distance>
Polygon cut(const Polygon& polygon, Distance&& distance) {
    Polygon result;
    for (std::size_t index = 0; index < polygon.size(); ++index) {
        const Point &a = polygon[index], &b = polygon[(index + 1) % polygon.size()];
        const double fromA = distance(a), fromB = distance(b);
        if (fromA >= 0) result.push_back(a);
        if ((fromA >= 0) == (fromB >= 0)) continue;
        const double share = fromA / (fromA - fromB);
        result.push_back({a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share});
    }
    return result;
}

// Outlines that do not lie over each other; holes run the other way round.
Coverages coveragesByCutting(const std::vector<Polygon>& outlines, int width, int height) {
    Coverages result;
    for (int y = 0; y < height; ++y) {
        std::vector<double> areas(std::size_t(width), 0.0);
        for (const Polygon& outline : outlines) {
            const Polygon row = cut(cut(outline, [&](Point p) { return p.y - y; }), [&](Point p) { return y + 1 - p.y; });
            for (int x = 0; x < width && !row.empty(); ++x)
                areas[std::size_t(x)] +=
                    areaOf(cut(cut(row, [&](Point p) { return p.x - x; }), [&](Point p) { return x + 1 - p.x; }));
        }
        auto& bytes = result.emplace_back();
        for (const double area : areas) bytes.push_back(int(std::min(1.0, std::abs(area)) * 255 + 0.5));
    }
    return result;
}

Coverages coveragesOf(const CoverageMask& mask, int width) {
    Coverages result;
    for (int y = 0; y < mask.height(); ++y) {
        auto& row = result.emplace_back(std::size_t(width), 0);
        for (const CoverageMask::Span& span : mask.row(y))
            for (int index = 0; index < span.length; ++index)
                row[std::size_t(span.x + index)] = span.coverages < 0 ? span.shared : mask.coverages(span)[index];
    }
    return result;
}

Path closed(const Polygon& polygon) {
    Path path;
    path.moveTo(polygon.front());
    for (std::size_t index = 1; index < polygon.size(); ++index) path.lineTo(polygon[index]);
    path.close();
    return path;
}

Coverages rasterized(const Path& path, int width, int height, const Transform& toPixels = {}) {
    CoverageRasterizer rasterizer;
    rasterizer.begin(width, height);
    rasterizer.add(path, toPixels);
    return coveragesOf(rasterizer.finish(), width);
}

int largestDifference(const Coverages& a, const Coverages& b) {
    int largest = 0;
    for (std::size_t y = 0; y < a.size(); ++y)
        for (std::size_t x = 0; x < a[y].size(); ++x) largest = std::max(largest, std::abs(a[y][x] - b[y][x]));
    return largest;
}

double sumOf(const Coverages& coverages) {
    double sum = 0;
    for (const auto& row : coverages)
        for (const int coverage : row) sum += coverage;
    return sum / 255;
}

// The outlines of a path, curves as `steps` chords each.
std::vector<Polygon> flattened(const Path& path, const Transform& toPixels, int steps) {
    std::vector<Polygon> result;
    std::size_t next = 0;
    const auto point = [&] { return toPixels.apply(path.points()[next++]); };
    for (const Path::Verb verb : path.verbs()) {
        if (verb == Path::Verb::move) result.emplace_back();
        if (verb == Path::Verb::move || verb == Path::Verb::line) result.back().push_back(point());
        if (verb != Path::Verb::cubic) continue;
        const Point from = result.back().back(), first = point(), second = point(), to = point();
        for (int step = 1; step <= steps; ++step) {
            const double t = double(step) / steps, u = 1 - t;
            const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
            result.back().push_back(
                {a * from.x + b * first.x + c * second.x + d * to.x, a * from.y + b * first.y + c * second.y + d * to.y});
        }
    }
    return result;
}

// A line of the width with half a circle at either end.
Polygon capsule(Point from, Point to, double width) {
    constexpr int steps = 200;
    const double angle = std::atan2(to.y - from.y, to.x - from.x);
    Polygon polygon;
    for (int step = 0; step <= steps; ++step) {
        const double turn = angle - std::numbers::pi / 2 + std::numbers::pi * step / steps;
        polygon.push_back({to.x + width / 2 * std::cos(turn), to.y + width / 2 * std::sin(turn)});
    }
    for (int step = 0; step <= steps; ++step) {
        const double turn = angle + std::numbers::pi / 2 + std::numbers::pi * step / steps;
        polygon.push_back({from.x + width / 2 * std::cos(turn), from.y + width / 2 * std::sin(turn)});
    }
    return polygon;
}

Coverages inkOf(const Canvas& canvas) {
    const rasterbackend::Picture image = canvas.image();
    Coverages result;
    for (int y = 0; y < image.height(); ++y) {
        auto& row = result.emplace_back();
        for (int x = 0; x < image.width(); ++x) row.push_back(255 - greenAt(image, x, y));
    }
    return result;
}

} // namespace

TEST(ExactArea, OfHalfASquare) {
    EXPECT_THAT(rasterized(closed({{0, 0}, {4, 0}, {0, 4}}), 5, 5),
                ElementsAre(ElementsAre(255, 255, 255, 128, 0), ElementsAre(255, 255, 128, 0, 0), ElementsAre(255, 128, 0, 0, 0),
                            ElementsAre(128, 0, 0, 0, 0), ElementsAre(0, 0, 0, 0, 0)));
}

// An edge that crosses eight pixels of one row: fifteen sixteenths of the first, thirteen of the second, and so on.
TEST(ExactArea, OfAFlatSlope) {
    EXPECT_THAT(rasterized(closed({{0, 0}, {8, 1}, {0, 1}}), 9, 1),
                ElementsAre(ElementsAre(239, 207, 175, 143, 112, 80, 48, 16, 0)));
}

TEST(ExactArea, OfASteepSlope) {
    EXPECT_THAT(rasterized(closed({{0, 0}, {1, 4}, {0, 4}}), 2, 4),
                ElementsAre(ElementsAre(32, 0), ElementsAre(96, 0), ElementsAre(159, 0), ElementsAre(223, 0)));
}

TEST(ExactArea, OfWhatEndsBetweenPixels) {
    EXPECT_THAT(rasterized(closed({{0.5, 0}, {2.5, 0}, {2.5, 1}, {0.5, 1}}), 3, 1), ElementsAre(ElementsAre(128, 255, 128)));
    // A pixel that lacks a corner of a quarter by a quarter.
    EXPECT_THAT(rasterized(closed({{1, 0}, {3, 0}, {3, 1}, {1.25, 1}, {1, 0.75}}), 4, 1), ElementsAre(ElementsAre(0, 247, 255, 0)));
}

TEST(ExactArea, OfAnyTriangle) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> x(-8, 24), y(-6, 18);
    for (int count = 0; count < 2000; ++count) {
        const Polygon triangle{{x(random), y(random)}, {x(random), y(random)}, {x(random), y(random)}};
        SCOPED_TRACE(testing::Message() << count);

        ASSERT_LE(largestDifference(rasterized(closed(triangle), 16, 12), coveragesByCutting({triangle}, 16, 12)), 1);
    }
}

// Some with one end or both ends nearly straight, most of them partly outside.
TEST(ExactArea, OfAnyCurve) {
    std::mt19937 random(2);
    std::uniform_real_distribution<double> x(-8, 24), y(-6, 18), little(-0.4, 0.4);
    const auto near = [&](Point a, Point b) { return Point{2 * a.x - b.x + little(random), 2 * a.y - b.y + little(random)}; };
    for (int count = 0; count < 4000; ++count) {
        const Point from{x(random), y(random)}, to{x(random), y(random)}, some{x(random), y(random)};
        const bool isStraightFirst = count % 4 == 1 || count % 4 == 3, isStraightLast = count % 4 == 2;
        Path path;
        path.moveTo(from);
        if (isStraightFirst && count % 8 == 7)
            path.cubicTo({from.x + (to.x - from.x) / 3 + little(random), from.y + (to.y - from.y) / 3 + little(random)},
                         {from.x + (to.x - from.x) / 1.5 + little(random), from.y + (to.y - from.y) / 1.5 + little(random)}, to);
        else if (isStraightFirst)
            path.cubicTo(some, near(some, from), to);
        else if (isStraightLast)
            path.cubicTo(near(some, to), some, to);
        else
            path.cubicTo(some, {x(random), y(random)}, to);
        path.close();
        SCOPED_TRACE(testing::Message() << count);

        ASSERT_LE(largestDifference(rasterized(path, 16, 12), coveragesByCutting(flattened(path, {}, 300), 16, 12)), 4);
    }
}

TEST(ExactArea, OfOutlinesThatAreLeftOpen) {
    const Polygon first{{1, 1}, {5.5, 1}, {5, 4.25}}, second{{7, 2}, {9, 2.5}, {8, 5}};
    Path path;
    for (const Polygon* polygon : {&first, &second}) {
        path.moveTo(polygon->at(0));
        path.lineTo(polygon->at(1));
        path.lineTo(polygon->at(2));
    }

    EXPECT_LE(largestDifference(rasterized(path, 12, 8), coveragesByCutting({first, second}, 12, 8)), 1);
}

TEST(ExactArea, OfWhatGoesOnFromWhereAClosedOutlineBegan) {
    const Polygon first{{2, 2}, {6, 2}, {6, 6}}, second{{2, 2}, {8, 9}, {2, 9}};
    Path path = closed(first);
    path.lineTo({8, 9});
    path.lineTo({2, 9});

    EXPECT_LE(largestDifference(rasterized(path, 12, 10), coveragesByCutting({first, second}, 12, 10)), 1);
}

TEST(ExactArea, OfWhatTheRightSideCutsOff) {
    const auto stripe = [](double height) { return closed({{1, 0}, {20, 0}, {20, height}, {1, height}}); };

    EXPECT_THAT(rasterized(stripe(0.75), 4, 1), ElementsAre(ElementsAre(0, 191, 191, 191)));
    EXPECT_THAT(rasterized(stripe(0.5), 4, 1), ElementsAre(ElementsAre(0, 128, 128, 128)));
    EXPECT_THAT(rasterized(stripe(0.004), 4, 1), ElementsAre(ElementsAre(0, 1, 1, 1)));
    EXPECT_THAT(rasterized(stripe(0.001), 4, 1), ElementsAre(ElementsAre(0, 0, 0, 0)));
    Path twice = stripe(1);
    for (const Point point : {Point{1, 0}, {20, 0}, {20, 1}, {1, 1}})
        point == Point{1, 0} ? twice.moveTo(point) : twice.lineTo(point);
    EXPECT_THAT(rasterized(twice, 4, 1), ElementsAre(ElementsAre(0, 255, 255, 255)));
}

TEST(ExactArea, OfNothingWhereAnOutlineIsBesideTheRectangle) {
    const auto square = [](double x, double y) { return closed({{x, y}, {x + 3, y}, {x + 3, y + 3}, {x, y + 3}}); };
    const Coverages nothing(2, std::vector<int>(4, 0));

    for (const Point place : {Point{-3, 0}, {-5, 0}, {4, 0}, {9, 0}, {0, -3}, {0, -9}, {0, 2}, {0, 7}})
        EXPECT_EQ(rasterized(square(place.x, place.y), 4, 2), nothing) << place.x << ", " << place.y;
    EXPECT_EQ(sumOf(rasterized(square(0, 0), 4, 2)), 3 * 2);
    EXPECT_EQ(sumOf(rasterized(square(-1, -1), 4, 2)), 2 * 2);
    EXPECT_EQ(sumOf(rasterized(square(2, 1), 4, 2)), 2);
}

TEST(ExactArea, OfAPictureAfterAnotherOne) {
    CoverageRasterizer rasterizer;
    const Polygon first{{0, 0}, {15.3, 2.2}, {3.1, 11.8}}, second{{2.5, 9}, {7, 1.5}, {8.25, 8}};
    rasterizer.begin(16, 12);
    rasterizer.add(closed(first), {});
    (void)rasterizer.finish();
    rasterizer.begin(10, 10);
    rasterizer.add(closed(second), {});

    EXPECT_LE(largestDifference(coveragesOf(rasterizer.finish(), 10), coveragesByCutting({second}, 10, 10)), 1);
}

TEST(ExactArea, OfASlopedStroke) {
    for (const Point to : {Point{50, 24}, Point{34, 50}, Point{12, 50}, Point{50, 11.5}}) {
        for (const double width : {0.8, 2.0, 7.5}) {
            const Point from{10.25, 8.5};
            SCOPED_TRACE(testing::Message() << to.x << ", " << to.y << " in " << width);
            Path line;
            line.moveTo(from);
            line.lineTo(to);
            Canvas canvas({60, 60});
            canvas.context.strokePath({}, line, width, black);

            const Coverages ink = inkOf(canvas);
            EXPECT_LE(largestDifference(ink, coveragesByCutting({capsule(from, to, width)}, 60, 60)), 4);
            const double length = std::hypot(to.x - from.x, to.y - from.y);
            EXPECT_NEAR(sumOf(ink), length * width + std::numbers::pi * width * width / 4, 0.005 * length * width + 0.1);
        }
    }
}

TEST(ExactArea, OfALetter) {
    rasterbackend::RasterTextShaper shaper;
    for (const auto* face : {faceOf("Inter", 400), faceOf("Sora", 700)}) {
        for (const char* letter : {"A", "W", "x", "7", "g", "S", "&", "%"}) {
            const ShapedRef text = shapedBy(shaper, letter, face);
            for (const double size : {12.0, 40.0}) {
                SCOPED_TRACE(testing::Message() << letter << " of " << face->family << " in " << size);
                const Transform toPixels{size, 0, 0, size, 4.25, size + 0.5};
                const int width = int(size * 1.5) + 8, height = int(size * 1.5) + 2;
                const auto outlines = flattened(firstShape(text).outline, toPixels, 60);
                double area = 0;
                for (const Polygon& outline : outlines) area += areaOf(outline);

                const Coverages coverages = rasterized(firstShape(text).outline, width, height, toPixels);
                EXPECT_NEAR(sumOf(coverages), std::abs(area), 0.004 * std::abs(area));
                EXPECT_LE(largestDifference(coverages, coveragesByCutting(outlines, width, height)), 3);
            }
        }
    }
}

// A line that an arc follows, in quadratic curves.
TEST(ExactArea, OfAGlyphWithAnArc) {
    const auto font = rasterbackend::FontFile::open(std::filesystem::path(PROUPSELLS_TEST_FONTS) / "Layers.ttf", 0, 400);
    const auto outlines = flattened(font->readShape(5).outline, Transform::scaling(100, 100), 400);

    ASSERT_EQ(outlines.size(), 1u);
    EXPECT_NEAR(std::abs(areaOf(outlines[0])), 60 * 60 * 5.0 / 6, 0.1);
}

TEST(ExactArea, OfALetterThatIsPainted) {
    rasterbackend::RasterTextShaper shaper;
    for (const char* letter : {"A", "V", "K", "z", "o"}) {
        const ShapedRef text = shapedBy(shaper, letter, faceOf("Inter", 400), 48);
        double area = 0;
        for (const Polygon& outline : flattened(firstShape(text).outline, Transform::scaling(48, 48), 60)) area += areaOf(outline);
        Canvas canvas({80, 80});
        canvas.context.text({}, {10, 60}, {{10, 12}, {60, 60}}, text, 0, 1, black);

        EXPECT_NEAR(totalInk(canvas.image()), std::abs(area), 0.004 * std::abs(area)) << letter;
    }
}

} // namespace proupsells::tests
