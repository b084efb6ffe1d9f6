// How dark each pixel of a shape's edge is.
#include <gtest/gtest.h>

#include <cmath>

#include "Tests/Raster/Canvas.hpp"

namespace proupsells::tests {
namespace {

using geometry::CornerStyle;
using geometry::Path;
using geometry::Rect;
using geometry::Transform;
using graphics::PaintState;

int furthestApart(const rasterbackend::Picture& a, const rasterbackend::Picture& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) largest = std::max(largest, std::abs(greenAt(a, x, y) - greenAt(b, x, y)));
    return largest;
}

// The share of a smooth bell of the given reach that lies before a place.
double bellBefore(double place, double reach) {
    constexpr int steps = 2000;
    double before = 0, whole = 0;
    for (int step = 0; step < steps; ++step) {
        const double t = -1 + (step + 0.5) * 2 / steps, height = (1 - t * t) * (1 - t * t);
        whole += height;
        if (t < place / reach) before += height * std::min(1.0, (place / reach - t) * steps / 2 + 0.5);
    }
    return before / whole;
}

// The middle row and the middle column of a shadow that is larger than its blur.
void expectBell(const Rect& frame, double blurRadius, double scale) {
    Canvas canvas({100, 100}, scale);
    canvas.context.shadow({}, frame, blurRadius, {0, 0}, black);
    const rasterbackend::Picture image = canvas.image();
    const double reach = 2 * blurRadius * scale;
    const auto expected = [&](int pixel, double from, double to) {
        return 255 * (bellBefore(pixel + 0.5 - from * scale, reach) - bellBefore(pixel + 0.5 - to * scale, reach));
    };
    for (int pixel = 0; pixel < image.width(); ++pixel) {
        EXPECT_NEAR(255 - greenAt(image, pixel, image.height() / 2), expected(pixel, frame.minX(), frame.maxX()), 0.55) << pixel;
        EXPECT_NEAR(255 - greenAt(image, image.width() / 2, pixel), expected(pixel, frame.minY(), frame.maxY()), 0.55) << pixel;
    }
}

TEST(ShadowShading, FadesLikeABellOfTwiceTheBlurRadius) {
    expectBell({{30, 30}, {40, 40}}, 5, 1);
    expectBell({{30.25, 31.5}, {41, 42.75}}, 6.5, 1);
    expectBell({{30, 30}, {40, 40}}, 5, 2);
    expectBell({{22, 20}, {56, 61}}, 11, 1);
}

TEST(ShadowShading, IsTheProductOfBothDirectionsAtACorner) {
    Canvas canvas({100, 100});
    canvas.context.shadow({}, {{30, 30}, {40, 40}}, 5, {0, 0}, black);
    const rasterbackend::Picture image = canvas.image();

    for (int x = 18; x < 45; ++x)
        for (int y = 18; y < 45; ++y)
            EXPECT_NEAR(255 - greenAt(image, x, y), 255 * bellBefore(x - 29.5, 10) * bellBefore(y - 29.5, 10), 0.55);
}

TEST(ShadowShading, WithoutBlurIsThatOfTheRectangle) {
    for (const Rect frame : {Rect{{3.25, 4.5}, {5, 6}}, Rect{{3, 4}, {5.75, 6.25}}, Rect{{2.75, 3.5}, {10.5, 0.5}}}) {
        Canvas shadow({20, 20}), rectangle({20, 20});
        shadow.context.shadow({}, frame, 0, {0, 0}, black);
        rectangle.context.fillRectangle({}, frame, black);

        EXPECT_LE(furthestApart(shadow.image(), rectangle.image()), 1);
    }
}

TEST(ShapeShading, OfARectangleIsItsShareOfEachPixel) {
    Canvas canvas({10, 10});
    canvas.context.fillRectangle({}, {{1.25, 2.5}, {3, 4.25}}, black);
    const rasterbackend::Picture image = canvas.image();

    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 10; ++x) {
            const double across = x == 1 ? 0.75 : x == 4 ? 0.25 : x > 1 && x < 4 ? 1 : 0;
            const double down = y == 2 ? 0.5 : y == 6 ? 0.75 : y > 2 && y < 6 ? 1 : 0;
            EXPECT_NEAR(255 - greenAt(image, x, y), 255 * across * down, 0.51) << x << ", " << y;
        }
}

TEST(ShapeShading, GoesInSixtyFourths) {
    for (const double more : {1.0 / 64, 2.0 / 64, 63.0 / 64}) {
        Canvas canvas({12, 12});
        canvas.context.fillRoundedRectangle({}, {{2, 2}, {6 + more, 6 + more}}, 1, CornerStyle::circular, black);

        EXPECT_EQ(canvas.ink(8, 5), int(more * 255 + 0.5));
        EXPECT_EQ(canvas.ink(5, 8), int(more * 255 + 0.5));
        EXPECT_EQ(canvas.ink(7, 5), 255);
        EXPECT_EQ(canvas.ink(9, 5), 0);
    }
}

TEST(ShapeShading, IsTheSameBeyondTheWindowsSides) {
    for (const Rect frame : {Rect{{-3.25, -2.5}, {8, 7.25}}, Rect{{-64.5, -60.75}, {90, 80}}, Rect{{-0.25, -0.5}, {5, 5}}}) {
        Canvas shape({30, 30}), outline({30, 30});
        shape.context.fillRoundedRectangle({}, frame, 2, CornerStyle::circular, black);
        outline.context.fillPath({}, Path::roundedRectangle(frame, 2, CornerStyle::circular), black);

        EXPECT_LE(furthestApart(shape.image(), outline.image()), 3);
    }
}

TEST(ShapeShading, OfVeryRoundRectanglesIsThatOfTheirOutlines) {
    for (const CornerStyle style : {CornerStyle::circular, CornerStyle::continuous}) {
        for (const double lineWidth : {0.0, 5.0, 30.0}) {
            const Rect frame{{30.5, 25.25}, {330, 240}};
            Canvas shape({400, 300}), outline({400, 300});
            if (lineWidth > 0) {
                shape.context.strokeRoundedRectangle({}, frame, 70, style, lineWidth, black);
                outline.context.strokePath({}, Path::roundedRectangle(frame, 70, style), lineWidth, black);
            } else {
                shape.context.fillRoundedRectangle({}, frame, 70, style, black);
                outline.context.fillPath({}, Path::roundedRectangle(frame, 70, style), black);
            }

            EXPECT_LE(furthestApart(shape.image(), outline.image()), 6) << int(style) << ", " << lineWidth;
        }
    }
}

TEST(ShapeShading, OfStrokedEllipsesIsThatOfTheirOutlines) {
    for (const double lineWidth : {0.5, 1.0, 2.0, 7.5}) {
        const Rect frame{{12.25, 10.5}, {61, 43}};
        Canvas shape({90, 70}), outline({90, 70});
        shape.context.strokeEllipse({}, frame, lineWidth, black);
        outline.context.strokePath({}, Path::ellipse(frame), lineWidth, black);

        EXPECT_LE(furthestApart(shape.image(), outline.image()), 6) << lineWidth;
    }
}

TEST(ShapeShading, FollowsTheScale) {
    Canvas points({60, 60}, 2), pixels({120, 120});
    const PaintState clipped = PaintState().clippedTo({{4, 4}, {50, 50}}, 9);
    points.context.fillRectangle(clipped, {{0, 0}, {60, 60}}, graphics::rgb(0xC0C0C0));
    points.context.fillRoundedRectangle({}, {{10, 10}, {20, 20}}, 6, CornerStyle::continuous, black);
    points.context.strokeEllipse({}, {{30, 30}, {16, 12}}, 3, black);
    points.context.strokeRoundedRectangle({}, {{32, 8}, {14, 12}}, 4, CornerStyle::circular, 2, black);
    pixels.context.fillRectangle(PaintState().clippedTo({{8, 8}, {100, 100}}, 18), {{0, 0}, {120, 120}}, graphics::rgb(0xC0C0C0));
    pixels.context.fillRoundedRectangle({}, {{20, 20}, {40, 40}}, 12, CornerStyle::continuous, black);
    pixels.context.strokeEllipse({}, {{60, 60}, {32, 24}}, 6, black);
    pixels.context.strokeRoundedRectangle({}, {{64, 16}, {28, 24}}, 8, CornerStyle::circular, 4, black);

    EXPECT_LE(furthestApart(points.image(), pixels.image()), 1);
}

TEST(ShapeShading, OfACornerOfAPixelIsClippedToo) {
    Canvas canvas({20, 20});
    canvas.context.fillRectangle(PaintState().clippedTo({{2, 2}, {10, 10}}, 1), {{0, 0}, {20, 20}}, black);

    EXPECT_NEAR(canvas.ink(2, 2), 255 * 0.785, 3);
    EXPECT_NEAR(canvas.ink(11, 11), 255 * 0.785, 3);
    EXPECT_EQ(canvas.ink(3, 2), 255);
}

TEST(ShapeShading, HasASingleShadeToo) {
    Canvas canvas({4, 1});
    canvas.context.fillRectangle(PaintState().fadedBy(0.004), {{0, 0}, {1, 1}}, black);
    canvas.context.fillRectangle(PaintState().fadedBy(0.001), {{1, 0}, {1, 1}}, black);
    canvas.context.fillRectangle({}, {{2, 0}, {0.004, 1}}, black);

    EXPECT_EQ(canvas.ink(0, 0), 1);
    EXPECT_EQ(canvas.ink(1, 0), 0);
    EXPECT_EQ(canvas.ink(3, 0), 0);
}

} // namespace
} // namespace proupsells::tests
