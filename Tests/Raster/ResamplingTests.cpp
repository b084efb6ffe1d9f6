#include "Backends/Raster/Resampling.hpp"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "Tests/Raster/Pictures.hpp"

namespace proupsells::rasterbackend {
namespace {

using tests::channel;
using tests::filled;
using tests::makePicture;

constexpr Pixel opaqueBlack = 0xFF000000, opaqueWhite = 0xFFFFFFFF;

Picture somePicture() {
    return makePicture(*rc::gen::inRange(1, 24), *rc::gen::inRange(1, 24), [](int, int) {
        const int alpha = *rc::gen::element(0, 255, *rc::gen::inRange(1, 255));
        Pixel pixel = Pixel(alpha) << 24;
        for (int index = 0; index < 3; ++index) pixel |= Pixel(*rc::gen::inRange(0, alpha + 1)) << 8 * index;
        return pixel;
    });
}

// How much of the pixel a stretch covers.
double overlap(double begin, double end, int pixel) {
    return std::max(0.0, std::min(end, pixel + 1.0) - std::max(begin, double(pixel)));
}

double meanByHand(const Picture& picture, int width, int height, int x, int y, int index) {
    const double stepX = double(picture.width()) / width, stepY = double(picture.height()) / height;
    double sum = 0;
    for (int row = 0; row < picture.height(); ++row)
        for (int column = 0; column < picture.width(); ++column)
            sum += channel(picture.row(row)[column], index) * overlap(x * stepX, (x + 1) * stepX, column) *
                   overlap(y * stepY, (y + 1) * stepY, row);
    return sum / (stepX * stepY);
}

TEST(Resampling, SharesThePixelsWhereTheSizeStays) {
    const Picture picture = filled(3, 2, opaqueWhite);

    EXPECT_EQ(std::as_const(picture).row(0), resampled(picture, 3, 2).row(0));
}

TEST(Resampling, MakesNothingOfNothing) {
    EXPECT_TRUE(resampled({}, 3, 2).isNull());
    EXPECT_TRUE(resampled(filled(3, 2, opaqueWhite), 0, 2).isNull());
    EXPECT_TRUE(resampled(filled(3, 2, opaqueWhite), 3, -1).isNull());
}

TEST(Resampling, KeepsEdgesThatFallOnPixels) {
    const Picture stripes = makePicture(12, 12, [](int x, int) { return x / 3 % 2 == 0 ? opaqueBlack : opaqueWhite; });

    EXPECT_EQ(resampled(stripes, 4, 4), makePicture(4, 4, [](int x, int) { return x % 2 == 0 ? opaqueBlack : opaqueWhite; }));
}

TEST(Resampling, DividesAnEdgePixelByTheAreaAtEachSide) {
    const Picture halves = makePicture(6, 1, [](int x, int) { return x < 3 ? opaqueBlack : opaqueWhite; });

    const Picture fourWide = resampled(halves, 4, 1), fiveWide = resampled(halves, 5, 1);

    EXPECT_THAT(std::vector(fourWide.row(0), fourWide.row(0) + 4),
                testing::ElementsAre(opaqueBlack, opaqueBlack, opaqueWhite, opaqueWhite));
    EXPECT_THAT(std::vector(fiveWide.row(0), fiveWide.row(0) + 5),
                testing::ElementsAre(opaqueBlack, opaqueBlack, 0xFF808080, opaqueWhite, opaqueWhite));
}

TEST(Resampling, LeavesNoFringeAroundWhatIsTransparent) {
    const Picture half = makePicture(2, 1, [](int x, int) { return x == 0 ? 0xFFFF0000 : 0; });

    EXPECT_EQ(resampled(half, 1, 1).row(0)[0], 0x80800000);
}

TEST(Resampling, InterpolatesBetweenTheCentresOfPixels) {
    const Picture two = makePicture(2, 1, [](int x, int) { return x == 0 ? opaqueBlack : opaqueWhite; });

    const Picture eight = resampled(two, 8, 1);

    std::vector<int> greys;
    for (int x = 0; x < 8; ++x) greys.push_back(channel(eight.row(0)[x], 0));
    EXPECT_THAT(greys, testing::ElementsAre(0, 0, 32, 96, 159, 223, 255, 255));
}

// Of 33 pixels, whose means lie a 66th of a shade below a half, or, where the last one is brighter, above it.
TEST(Resampling, RoundsTheMeanToTheNearestShade) {
    const auto evenGrey = [](int place) { return place < 16 ? 12 : 11; };
    const auto unevenGrey = [](int place) { return place == 0 ? 255 : place < 32 ? 4 : 0; };
    for (const auto& greyAt : {std::function<int(int)>(evenGrey), std::function<int(int)>(unevenGrey)})
        for (const int more : {0, 1}) {
            int sum = 0;
            for (int place = 0; place < 33; ++place) sum += greyAt(place) + (place == 32) * more;
            ASSERT_EQ(sum, 33 * 11 + 16 + more);
            const auto pixelAt = [&](int x, int y) {
                return 0xFF000000u | 0x010101u * Pixel(greyAt(x + y) + (x + y == 32) * more);
            };

            const Pixel expected = 0xFF000000u | 0x010101u * Pixel(11 + more);
            EXPECT_EQ(resampled(makePicture(33, 1, pixelAt), 1, 1).row(0)[0], expected);
            EXPECT_EQ(resampled(makePicture(1, 33, pixelAt), 1, 1).row(0)[0], expected);
        }
}

TEST(Resampling, MayShrinkOneWayAndGrowTheOther) {
    const Picture picture = makePicture(4, 1, [](int x, int) { return x < 2 ? opaqueBlack : opaqueWhite; });

    EXPECT_EQ(resampled(picture, 2, 3), makePicture(2, 3, [](int x, int) { return x == 0 ? opaqueBlack : opaqueWhite; }));
}

TEST(Resampling, MakesOnePixelOfAVeryLongPicture) {
    EXPECT_EQ(resampled(filled(60000, 1, 0xFF123456), 1, 1).row(0)[0], 0xFF123456);
}

RC_GTEST_PROP(ResamplingInvariants, ASmallerPictureHasTheMeansOfItsAreas, ()) {
    const Picture picture = somePicture();
    const int width = *rc::gen::inRange(1, picture.width() + 1), height = *rc::gen::inRange(1, picture.height() + 1);

    const Picture smaller = resampled(picture, width, height);

    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int index = 0; index < 4; ++index) {
                const double mean = meanByHand(picture, width, height, x, y, index);
                RC_ASSERT(std::abs(channel(smaller.row(y)[x], index) - mean) < 0.6);
            }
}

RC_GTEST_PROP(ResamplingInvariants, OneColourStaysItself, (Pixel pixel)) {
    const int from = *rc::gen::inRange(1, 200), to = *rc::gen::inRange(1, 200);

    RC_ASSERT(resampled(filled(from, to, pixel), to, from) == filled(to, from, pixel));
}

RC_GTEST_PROP(ResamplingInvariants, NoColourIsStrongerThanItsOpacity, ()) {
    const Picture picture = somePicture();

    const Picture other = resampled(picture, *rc::gen::inRange(1, 48), *rc::gen::inRange(1, 48));

    for (int y = 0; y < other.height(); ++y)
        for (int x = 0; x < other.width(); ++x)
            for (int index = 0; index < 3; ++index) RC_ASSERT(channel(other.row(y)[x], index) <= channel(other.row(y)[x], 3));
}

} // namespace
} // namespace proupsells::rasterbackend
