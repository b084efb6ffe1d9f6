#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Tests/Raster/Canvas.hpp"

using namespace proupsells;

using geometry::CornerStyle;
using geometry::Path;
using geometry::Rect;
using geometry::Transform;
using graphics::PaintState;
using graphics::rgb;
using namespace tests;

TEST(ShapePainting, FillsExactlyTheRectanglesPixels) {
    Canvas canvas({10, 10});
    canvas.context.fillRectangle({}, {{2, 3}, {4, 5}}, red);

    const rasterbackend::Picture image = canvas.image();
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x) {
            const bool isInside = x >= 2 && x < 6 && y >= 3 && y < 8;
            ASSERT_EQ(colorAt(image, x, y), isInside ? 0xFF0000u : 0xFFFFFFu) << x << ", " << y;
        }
    }
}

TEST(ShapePainting, KeepsEdgesSharpWhereTheyFallOnPixels) {
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
        SCOPED_TRACE(scale);
        Canvas canvas({12, 12}, scale);
        canvas.context.fillRectangle({}, {{2, 4}, {6, 4}}, black);

        EXPECT_EQ(totalInk(canvas.image()), 6 * 4 * scale * scale);
        EXPECT_EQ(canvas.ink(int(2 * scale), int(4 * scale)), 255);
        EXPECT_EQ(canvas.ink(int(2 * scale) - 1, int(4 * scale)), 0);
    }
}

TEST(ShapePainting, CoversPartOfThePixelsUnderAnEdgeBetweenThem) {
    Canvas canvas({6, 6});
    canvas.context.fillRectangle({}, {{1.25, 1}, {3, 3}}, black);

    EXPECT_NEAR(canvas.ink(1, 2), 0.75 * 255, 1);
    EXPECT_EQ(canvas.ink(2, 2), 255);
    EXPECT_NEAR(canvas.ink(4, 2), 0.25 * 255, 1);
}

TEST(ShapePainting, BlendsTransparentColorsAndOpacity) {
    Canvas canvas({3, 1});
    canvas.context.fillRectangle({}, {{0, 0}, {1, 1}}, rgb(0x000000, 128));
    canvas.context.fillRectangle(PaintState{}.fadedBy(0.5), {{1, 0}, {1, 1}}, black);
    canvas.context.fillRectangle(PaintState{}.fadedBy(0.5), {{2, 0}, {1, 1}}, rgb(0xFF0000, 128));

    EXPECT_EQ(canvas.pixel(0, 0), 0x7F7F7Fu);
    EXPECT_EQ(canvas.pixel(1, 0), 0x7F7F7Fu);
    EXPECT_EQ(canvas.pixel(2, 0), 0xFFBFBFu);
}

TEST(ShapePainting, PaintsNothingOutsideOfTheClip) {
    Canvas canvas({10, 10});
    canvas.context.fillRectangle(PaintState{}.clippedTo({{2, 2}, {3, 3}}), {{0, 0}, {10, 10}}, black);
    canvas.context.fillEllipse(PaintState{}.clippedTo({{6, 6}, {1, 1}}), {{0, 0}, {10, 10}}, black);

    EXPECT_EQ(totalInk(canvas.image()), 3 * 3 + 1);
}

TEST(ShapePainting, CutsTheCornersOfARoundedClip) {
    Canvas canvas({40, 40});
    canvas.context.fillRectangle(PaintState{}.clippedTo({{0, 0}, {40, 40}}, 10), {{0, 0}, {40, 40}}, black);

    EXPECT_EQ(canvas.ink(0, 0), 0);
    EXPECT_EQ(canvas.ink(0, 20), 255);
    EXPECT_EQ(canvas.ink(20, 39), 255);
    EXPECT_NEAR(totalInk(canvas.image()), 40 * 40 - (4 - std::numbers::pi) * 100, 0.5);
}

TEST(ShapePainting, CutsWhatIsUnderARoundedClipsCornersOnlyThere) {
    Canvas canvas({40, 40});
    canvas.context.fillEllipse(PaintState{}.clippedTo({{0, 0}, {40, 40}}, 10), {{15, 15}, {10, 10}}, black);

    Canvas plain({40, 40});
    plain.context.fillEllipse({}, {{15, 15}, {10, 10}}, black);
    EXPECT_TRUE(isSame(canvas.image(), plain.image()));
}

TEST(ShapePainting, RoundsCornersSmoothly) {
    Canvas canvas({40, 30}, 2);
    canvas.context.fillRoundedRectangle({}, {{0, 0}, {40, 30}}, 8, CornerStyle::circular, black);

    EXPECT_EQ(canvas.ink(0, 0), 0);
    EXPECT_EQ(canvas.ink(40, 30), 255);
    EXPECT_NEAR(totalInk(canvas.image()), 80 * 60 - (4 - std::numbers::pi) * 16 * 16, 0.5);
    // Somewhere on the diagonal, the edge passes through a pixel.
    const rasterbackend::Picture image = canvas.image();
    bool hasGrey = false;
    for (int at = 0; at < 16; ++at) hasGrey |= greenAt(image, at, at) > 0 && greenAt(image, at, at) < 255;
    EXPECT_TRUE(hasGrey);
}

TEST(ShapePainting, StartsContinuousCornersEarlierThanCircularOnes) {
    Canvas circular({60, 60}, 2), continuous({60, 60}, 2);
    circular.context.fillRoundedRectangle({}, {{0, 0}, {60, 60}}, 12, CornerStyle::circular, black);
    continuous.context.fillRoundedRectangle({}, {{0, 0}, {60, 60}}, 12, CornerStyle::continuous, black);

    EXPECT_EQ(circular.ink(26, 0), 255);
    EXPECT_LT(continuous.ink(26, 0), 255);
}

TEST(ShapePainting, PaintsLargeRoundedRectanglesLikeTheirOutlines) {
    for (const CornerStyle style : {CornerStyle::circular, CornerStyle::continuous}) {
        for (const double lineWidth : {0.0, 2.0, 3.5}) {
            for (const Rect frame : {Rect{{3.25, 2.5}, {190, 130}}, Rect{{4, 4}, {180.75, 40}}, Rect{{5.1, 6.2}, {33, 171.3}}}) {
                SCOPED_TRACE(testing::Message() << int(style) << ", " << lineWidth << ", " << frame.width());
                Canvas shape({200, 180}), outline({200, 180});
                const Path path = Path::roundedRectangle(frame, 17, style);
                if (lineWidth > 0) {
                    shape.context.strokeRoundedRectangle({}, frame, 17, style, lineWidth, black);
                    outline.context.strokePath({}, path, lineWidth, black);
                } else {
                    shape.context.fillRoundedRectangle({}, frame, 17, style, black);
                    outline.context.fillPath({}, path, black);
                }

                const rasterbackend::Picture a = shape.image(), b = outline.image();
                int largest = 0;
                for (int y = 0; y < a.height(); ++y)
                    for (int x = 0; x < a.width(); ++x) largest = std::max(largest, std::abs(greenAt(a, x, y) - greenAt(b, x, y)));
                EXPECT_LE(largest, 6); // places differ by up to 1/128 of a pixel
            }
        }
    }
}

TEST(ShapePainting, CentresStrokesOnTheEdge) {
    Canvas canvas({20, 20});
    canvas.context.strokeRoundedRectangle({}, {{4, 4}, {12, 12}}, 0, CornerStyle::circular, 2, black);

    EXPECT_EQ(canvas.ink(3, 10), 255);
    EXPECT_EQ(canvas.ink(4, 10), 255);
    EXPECT_EQ(canvas.ink(2, 10), 0);
    EXPECT_EQ(canvas.ink(5, 10), 0);
    EXPECT_EQ(canvas.ink(3, 3), 255); // a mitred corner
    EXPECT_EQ(totalInk(canvas.image()), 14 * 14 - 10 * 10);
}

TEST(ShapePainting, FillsAndStrokesEllipses) {
    Canvas filled({40, 40}, 2), ring({40, 40}, 2);
    filled.context.fillEllipse({}, {{5, 5}, {30, 20}}, black);
    ring.context.strokeEllipse({}, {{5, 5}, {22, 22}}, 2, black);

    EXPECT_NEAR(totalInk(filled.image()), std::numbers::pi * 15 * 10 * 4, 1.5);
    EXPECT_NEAR(totalInk(ring.image()), std::numbers::pi * (12 * 12 - 10 * 10) * 4, 1.5);
}

TEST(ShapePainting, FillsPathsByTheNonZeroRule) {
    Path twice = Path::rectangle({{1, 1}, {4, 4}});
    for (const geometry::Point p : {geometry::Point{3, 3}, {7, 3}, {7, 7}, {3, 7}})
        p == geometry::Point{3, 3} ? twice.moveTo(p) : twice.lineTo(p);
    twice.close();
    Canvas canvas({10, 10});
    canvas.context.fillPath({}, twice, black);

    EXPECT_EQ(totalInk(canvas.image()), 16 + 16 - 4);
}

TEST(ShapePainting, StrokesPathsWithRoundEndsAndJoins) {
    Path corner;
    corner.moveTo({10, 30});
    corner.lineTo({30, 30});
    corner.lineTo({30, 10});
    Canvas canvas({40, 40});
    canvas.context.strokePath({}, corner, 8, black);

    // Two arms, half a circle at either end, and a quarter of one at the corner.
    EXPECT_NEAR(totalInk(canvas.image()), 20 * 8 + 20 * 8 - 4 * 4 + 1.25 * std::numbers::pi * 4 * 4, 0.7);
    EXPECT_EQ(canvas.ink(33, 33), 0);
    EXPECT_EQ(canvas.ink(6, 30) > 0, true);
    EXPECT_EQ(canvas.ink(5, 30), 0);
}

TEST(ShapePainting, StrokesNothingWhereTheOutlineGoesNowhere) {
    Path still;
    still.moveTo({5, 5});
    Path closed = still;
    closed.close();
    Path returning = still;
    returning.lineTo({5, 5});
    returning.cubicTo({5, 5}, {5, 5}, {5, 5});
    returning.close();
    for (const Path& path : {still, closed, returning}) {
        Canvas canvas({10, 10});
        canvas.context.strokePath({}, path, 2, black);

        EXPECT_EQ(totalInk(canvas.image()), 0);
    }
}

TEST(ShapePainting, StrokesTheRestOfAPathThatAlsoGoesNowhere) {
    Path path;
    path.moveTo({5, 5});
    path.close();
    path.moveTo({2, 5});
    path.lineTo({8, 5});
    Path alone;
    alone.moveTo({2, 5});
    alone.lineTo({8, 5});
    Canvas canvas({10, 10}), expected({10, 10});
    canvas.context.strokePath({}, path, 2, black);
    expected.context.strokePath({}, alone, 2, black);

    EXPECT_TRUE(isSame(canvas.image(), expected.image()));
}

TEST(ShapePainting, StrokesWhatFollowsAClosedOutlineFromItsBeginning) {
    Path path;
    path.moveTo({5, 5});
    path.lineTo({15, 5});
    path.lineTo({15, 15});
    path.close();
    Path further = path;
    path.cubicTo({8, 25}, {12, 25}, {35, 25});
    path.close();
    path.lineTo({35, 5});
    further.moveTo({5, 5});
    further.cubicTo({8, 25}, {12, 25}, {35, 25});
    further.close();
    further.moveTo({5, 5});
    further.lineTo({35, 5});
    Canvas canvas({40, 30}), expected({40, 30});
    canvas.context.strokePath({}, path, 2, black);
    expected.context.strokePath({}, further, 2, black);

    EXPECT_TRUE(isSame(canvas.image(), expected.image()));
}

TEST(ShapePainting, TurnsAndScalesShapesAboutTheirPlace) {
    Canvas turned({40, 40}), scaled({40, 40});
    const Transform quarter = Transform::rotation(std::numbers::pi / 2).about({20, 20});
    turned.context.fillRectangle(PaintState{}.transformedBy(quarter), {{10, 15}, {20, 10}}, black);
    scaled.context.fillRoundedRectangle(PaintState{}.transformedBy(Transform::scaling(0.5, 0.5).about({20, 20})),
                                        {{0, 0}, {40, 40}}, 8, CornerStyle::circular, black);

    EXPECT_EQ(turned.ink(20, 11), 255);
    EXPECT_EQ(turned.ink(11, 20), 0);
    EXPECT_NEAR(totalInk(turned.image()), 200, 0.1);
    EXPECT_NEAR(totalInk(scaled.image()), 400 - (4 - std::numbers::pi) * 16, 0.3);
    EXPECT_EQ(scaled.ink(9, 20), 0);
    EXPECT_EQ(scaled.ink(10, 20), 255);
}

TEST(ShapePainting, BlursShadowsWithoutLosingTheirWeight) {
    Canvas canvas({100, 100});
    canvas.context.shadow({}, {{30, 30}, {40, 40}}, 5, {0, 0}, black);

    EXPECT_NEAR(totalInk(canvas.image()), 40 * 40, 12);
    EXPECT_EQ(canvas.ink(50, 50), 255);
    EXPECT_NEAR(canvas.ink(29, 50), 128, 12);
    EXPECT_GT(canvas.ink(25, 50), 0);
    EXPECT_EQ(canvas.ink(19, 50), 0);
}

TEST(ShapePainting, ShadowsWithoutBlurAreSharp) {
    Canvas canvas({20, 20});
    canvas.context.shadow({}, {{3, 3}, {10, 10}}, 0, {2, 1}, black);

    EXPECT_EQ(totalInk(canvas.image()), 100);
    EXPECT_EQ(canvas.ink(5, 4), 255);
    EXPECT_EQ(canvas.ink(4, 4), 0);
}

TEST(ShapePainting, PaintsWideShadowsLikeNarrowOnes) {
    Canvas wide({300, 60}), narrow({100, 60});
    wide.context.shadow({}, {{20, 20}, {260, 20}}, 5, {0, 0}, black);
    narrow.context.shadow({}, {{20, 20}, {60, 20}}, 5, {0, 0}, black);

    EXPECT_TRUE(isSame(part(wide.image(), 0, 0, 50, 60), part(narrow.image(), 0, 0, 50, 60)));
    EXPECT_TRUE(isSame(part(wide.image(), 250, 0, 50, 60), part(narrow.image(), 50, 0, 50, 60)));
}

TEST(ShapePainting, SurvivesShapesFarLargerThanTheWindow) {
    Canvas canvas({20, 20}, 2);
    const Rect huge{{-1e7, -1e7}, {2e7, 2e7}};
    canvas.context.fillEllipse({}, huge, black);
    canvas.context.fillRoundedRectangle({}, huge, 1e6, CornerStyle::continuous, black);
    canvas.context.strokeRoundedRectangle({}, huge, 4e6, CornerStyle::circular, 4, red);
    canvas.context.strokeEllipse({}, {{-5000, 10}, {10000, 10000}}, 4, red);
    canvas.context.fillRectangle(PaintState{}.transformedBy(Transform::scaling(1e6, 1e6)), {{-1, -1}, {2, 2}}, rgb(0, 10));
    canvas.context.shadow({}, huge, 10, {0, 0}, rgb(0, 10));

    EXPECT_EQ(canvas.ink(0, 0), 255);
    EXPECT_EQ(redAt(canvas.image(), 20, 20) > 100, true);
}

TEST(ShapePainting, SurvivesLengthsThatAreNoNumbers) {
    const double nothing = std::nan(""), endless = geometry::infinity;
    Canvas canvas({20, 20});
    for (const Rect frame : {Rect{{nothing, 0}, {5, 5}}, Rect{{0, 0}, {nothing, 5}}, Rect{{0, 0}, {endless, endless}},
                             Rect{{-endless, 3}, {endless, 3}}}) {
        canvas.context.fillRectangle({}, frame, rgb(0, 10));
        canvas.context.fillRoundedRectangle({}, frame, 3, CornerStyle::continuous, rgb(0, 10));
        canvas.context.strokeRoundedRectangle({}, frame, nothing, CornerStyle::circular, 3, rgb(0, 10));
        canvas.context.fillEllipse({}, frame, rgb(0, 10));
        canvas.context.shadow({}, frame, endless, {0, 0}, rgb(0, 10));
    }
    canvas.context.fillRectangle({}, {{5, 5}, {2, 2}}, red);

    EXPECT_EQ(redAt(canvas.image(), 5, 5), 255);
    EXPECT_LT(greenAt(canvas.image(), 5, 5), 50);
}

TEST(ShapePainting, RoundsASizeBetweenPixelsUp) {
    EXPECT_EQ(rasterbackend::pixelSize({375, 800}, 2), (rasterbackend::PixelSize{750, 1600}));
    EXPECT_EQ(rasterbackend::pixelSize({375, 667}, 1.5), (rasterbackend::PixelSize{563, 1001}));
    EXPECT_EQ(rasterbackend::pixelSize({100, 110}, 1.1), (rasterbackend::PixelSize{110, 121}));
    EXPECT_EQ(rasterbackend::pixelSize({0, 0}, 2), (rasterbackend::PixelSize{0, 0}));
}
