// Turned and scaled pictures against the same, worked out pixel by pixel in floating point.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "Backends/Raster/TransformedPicture.hpp"

namespace proupsells::rasterbackend {
namespace {

using geometry::Point;
using geometry::Rect;
using geometry::Transform;

// Opaque greys without order, so that no pixel stands for another.
int greyAt(int x, int y) { return (x * 89 + y * 151 + 17) % 256; }

Picture greys(int width, int height) {
    Picture picture = Picture::unwritten(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) picture.row(y)[x] = 0xFF000000u | Pixel(greyAt(x, y)) * 0x010101u;
    return picture;
}

double greyBetween(const Picture& picture, Point place) {
    const double x = std::clamp(place.x - 0.5, 0.0, picture.width() - 1.0),
                 y = std::clamp(place.y - 0.5, 0.0, picture.height() - 1.0);
    const auto grey = [&](double column, double row) {
        return double(picture.row(std::min(int(row), picture.height() - 1))[std::min(int(column), picture.width() - 1)] & 0xFF);
    };
    const double left = std::floor(x), top = std::floor(y), u = x - left, v = y - top;
    return (grey(left, top) * (1 - u) + grey(left + 1, top) * u) * (1 - v) +
           (grey(left, top + 1) * (1 - u) + grey(left + 1, top + 1) * u) * v;
}

Picture paintedOver(const Picture& source, const Rect& frame, const Transform& toPixels, Pixel ground = 0) {
    Picture target = Picture::unwritten(24, 20);
    for (int y = 0; y < target.height(); ++y) std::fill_n(target.row(y), target.width(), ground);
    CoverageRasterizer rasterizer;
    paintTransformed(target, source, frame, toPixels, rasterizer);
    return target;
}

// Checks the pixels that lie in the frame as a whole, and those that lie outside as a whole.
void expectInterpolated(const Picture& source, const Rect& frame, const Transform& toPixels) {
    const Picture target = paintedOver(source, frame, toPixels);
    const Transform back = toPixels.inverted();
    int inside = 0;
    for (int y = 0; y < target.height(); ++y)
        for (int x = 0; x < target.width(); ++x) {
            const auto cornersInside = [&] {
                int count = 0;
                for (const Point corner :
                     {Point{x + 0.01, y + 0.01}, {x + 0.99, y + 0.01}, {x + 0.01, y + 0.99}, {x + 0.99, y + 0.99}})
                    count += frame.contains(back.apply(corner));
                return count;
            }();
            const Pixel pixel = target.row(y)[x];
            if (cornersInside == 4) {
                ++inside;
                const Point at = back.apply(Point{x + 0.5, y + 0.5});
                const Point place{(at.x - frame.minX()) * source.width() / frame.width(),
                                  (at.y - frame.minY()) * source.height() / frame.height()};
                EXPECT_EQ(pixel >> 24, 255u) << x << ", " << y;
                EXPECT_NEAR(pixel & 0xFF, greyBetween(source, place), 2) << x << ", " << y;
                EXPECT_EQ(pixel & 0xFF, pixel >> 16 & 0xFF);
            } else if (cornersInside == 0) {
                EXPECT_LE(pixel >> 24, 40u) << x << ", " << y;
            }
        }
    EXPECT_GT(inside, 50);
}

TEST(TransformedPicture, IsInterpolatedWhereItGrows) {
    expectInterpolated(greys(3, 4), {{2, 3}, {18, 15}}, Transform{});
    expectInterpolated(greys(1, 5), {{2, 3}, {18, 15}}, Transform{});
    expectInterpolated(greys(5, 1), {{2, 3}, {18, 15}}, Transform{});
    expectInterpolated(greys(2, 3), {{1, 1}, {5, 4}}, Transform{3, 0, 0, 4, 1, 2});
}

TEST(TransformedPicture, IsTurnedAndMirrored) {
    const double c = std::cos(0.4), s = std::sin(0.4);
    expectInterpolated(greys(10, 8), {{0, 0}, {12, 10}}, Transform{c, s, -s, c, 6, 2});
    expectInterpolated(greys(10, 8), {{0, 0}, {16, 12}}, Transform{-1, 0, 0, 1, 20, 3});
    expectInterpolated(greys(10, 8), {{0, 0}, {12, 16}}, Transform{0, 1, -1, 0, 20, 4});
}

TEST(TransformedPicture, IsShownAsItIsWhereNothingChanges) {
    const Picture source = greys(10, 8), target = paintedOver(source, {{3, 4}, {10, 8}}, Transform{});

    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 24; ++x) {
            const bool isInside = x >= 3 && x < 13 && y >= 4 && y < 12;
            EXPECT_EQ(target.row(y)[x], isInside ? source.row(y - 4)[x - 3] : 0u) << x << ", " << y;
        }
}

TEST(TransformedPicture, LeavesNothingOutWhereItShrinksToLessThanHalf) {
    // Stripes of one pixel, of which every third alone would be all black or all white.
    Picture stripes = Picture::unwritten(60, 60);
    for (const bool areUpright : {true, false}) {
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 60; ++x) stripes.row(y)[x] = (areUpright ? x : y) % 2 ? 0xFFFFFFFFu : 0xFF000000u;
        const Picture target = paintedOver(stripes, {{0, 0}, {10, 10}}, Transform{1, 0, 0, 1, 2, 3});
        for (int y = 4; y < 12; ++y)
            for (int x = 3; x < 11; ++x) EXPECT_NEAR(target.row(y)[x] & 0xFF, 128, 30) << x << ", " << y;
    }
}

TEST(TransformedPicture, LeavesNothingOutWhereOnlyOneSideShrinks) {
    Picture stripes = Picture::unwritten(60, 60);
    for (const bool isNarrow : {true, false}) {
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 60; ++x) stripes.row(y)[x] = (isNarrow ? x : y) % 2 ? 0xFFFFFFFFu : 0xFF000000u;
        const Rect frame{{0, 0}, isNarrow ? geometry::Size{10, 60} : geometry::Size{60, 10}};
        const Picture target = paintedOver(stripes, frame, Transform{});
        for (int index = 1; index < 9; ++index) EXPECT_NEAR(target.row(isNarrow ? 5 : index)[isNarrow ? index : 5] & 0xFF, 128, 30);
    }
}

TEST(TransformedPicture, IsOnlyInterpolatedWhereItShrinksToHalfAndMore) {
    expectInterpolated(greys(40, 32), {{2, 3}, {20, 16}}, Transform::translation(0.25, 0.25));
    expectInterpolated(greys(32, 26), {{2, 3}, {20, 16}}, Transform::translation(0.25, 0.25));
}

// A pixel of it is as wide as four of the source's, and only a half of that is seen.
TEST(TransformedPicture, HasTheMeanOfAllWhereItShrinksToLessThanAPixel) {
    Picture stripe = Picture::unwritten(4, 4);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x) stripe.row(y)[x] = x < 2 ? 0xFF000000u : 0xFFFFFFFFu;
    const Picture target = paintedOver(stripe, {{3.5, 2}, {0.5, 4}}, Transform{}, 0xFF000000u);

    for (int y = 2; y < 6; ++y) EXPECT_NEAR(target.row(y)[3] & 0xFF, 64, 2);
}

TEST(TransformedPicture, FillsATargetThatIsSmaller) {
    const Picture target = paintedOver(greys(40, 40), {{-8, -10}, {40, 40}}, Transform{});

    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 24; ++x) EXPECT_EQ(target.row(y)[x] & 0xFF, Pixel(greyAt(x + 8, y + 10))) << x << ", " << y;
}

// At a 256th of the way from one pixel to the next.
TEST(TransformedPicture, RoundsToTheNearestShade) {
    Picture pair = Picture::unwritten(2, 1);
    for (const auto& [second, expected] : {std::pair{0xFF7F7F7Fu, 0u}, {0xFF808080u, 0x010101u}}) {
        pair.row(0)[0] = 0xFF000000u;
        pair.row(0)[1] = second;
        const Picture target = paintedOver(pair, {{0, 0}, {2, 1}}, Transform::translation(-1.0 / 256, 0));
        EXPECT_EQ(target.row(0)[0] & 0xFFFFFF, expected);
    }
}

TEST(TransformedPicture, HasSmoothEdgesOverWhatIsThere) {
    Picture white = Picture::unwritten(2, 2);
    for (int y = 0; y < 2; ++y) std::fill_n(white.row(y), 2, 0xFFFFFFFFu);
    const Picture target = paintedOver(white, {{2.5, 3}, {4, 2.25}}, Transform{}, 0xFF000000u);

    EXPECT_EQ(target.row(3)[1], 0xFF000000u);
    EXPECT_NEAR(target.row(3)[2] & 0xFF, 128, 1);
    EXPECT_EQ(target.row(3)[3], 0xFFFFFFFFu);
    EXPECT_NEAR(target.row(3)[6] & 0xFF, 128, 1);
    EXPECT_NEAR(target.row(5)[4] & 0xFF, 64, 1);
    EXPECT_NEAR(target.row(5)[6] & 0xFF, 32, 1);
    EXPECT_EQ(target.row(6)[4], 0xFF000000u);
}

TEST(TransformedPicture, IsNotThereWhereItHasNoRoom) {
    const Picture nothing = paintedOver(greys(4, 4), {{2, 2}, {0, 5}}, Transform{});
    const Picture flat = paintedOver(greys(4, 4), {{2, 2}, {5, 5}}, Transform{1, 2, 2, 4, 0, 0});
    const Picture none = paintedOver(Picture(), {{2, 2}, {5, 5}}, Transform{});
    const Picture inverse = paintedOver(greys(4, 4), {{12, 12}, {-5, -5}}, Transform{});
    for (const Picture* target : {&nothing, &flat, &none, &inverse})
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 24; ++x) EXPECT_EQ(target->row(y)[x], 0u);
}

} // namespace
} // namespace proupsells::rasterbackend
