// Rectangles of whole pixels, and how lengths become them.
#include "Backends/Raster/PixelRect.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace proupsells::rasterbackend {
namespace {

constexpr PixelRect rect{10, 20, 40, 60};

TEST(PixelRects, AreAsWideAndHighAsTheirEdgesAreApart) {
    EXPECT_EQ(rect.width(), 30);
    EXPECT_EQ(rect.height(), 40);
    EXPECT_FALSE(rect.isEmpty());
    EXPECT_FALSE((PixelRect{0, 0, 1, 1}).isEmpty());
    EXPECT_TRUE((PixelRect{0, 0, 0, 1}).isEmpty());
    EXPECT_TRUE((PixelRect{0, 0, 1, 0}).isEmpty());
    EXPECT_TRUE((PixelRect{1, 0, 0, 5}).isEmpty());
    EXPECT_TRUE(PixelRect{}.isEmpty());
    EXPECT_EQ((PixelRect{5, 5, 3, 2}).width(), -2);
    EXPECT_EQ((PixelRect{5, 5, 3, 2}).height(), -3);
}

TEST(PixelRects, ContainThoseThatReachBeyondNoEdge) {
    EXPECT_TRUE(rect.contains(rect));
    EXPECT_TRUE(rect.contains({11, 21, 39, 59}));
    EXPECT_FALSE(rect.contains({9, 20, 40, 60}));
    EXPECT_FALSE(rect.contains({10, 19, 40, 60}));
    EXPECT_FALSE(rect.contains({10, 20, 41, 60}));
    EXPECT_FALSE(rect.contains({10, 20, 40, 61}));
}

TEST(PixelRects, OverlapMeetAndMove) {
    constexpr PixelRect other{30, 10, 90, 50};
    EXPECT_EQ(rect.intersection(other), (PixelRect{30, 20, 40, 50}));
    EXPECT_EQ(other.intersection(rect), (PixelRect{30, 20, 40, 50}));
    EXPECT_TRUE(rect.intersection({40, 20, 50, 60}).isEmpty());
    EXPECT_EQ(rect.united(other), (PixelRect{10, 10, 90, 60}));
    EXPECT_EQ(other.united(rect), (PixelRect{10, 10, 90, 60}));
    EXPECT_EQ(rect.moved(3, -5), (PixelRect{13, 15, 43, 55}));
}

TEST(PixelSizes, AreEmptyWithoutAPixel) {
    EXPECT_FALSE((PixelSize{1, 1}).isEmpty());
    EXPECT_TRUE((PixelSize{0, 1}).isEmpty());
    EXPECT_TRUE((PixelSize{1, 0}).isEmpty());
    EXPECT_TRUE((PixelSize{-1, 1}).isEmpty());
    EXPECT_TRUE(PixelSize{}.isEmpty());
}

TEST(Pixels, AreFoundBeforeBehindAndNearestToALength) {
    EXPECT_EQ(floorPixel(2.9), 2);
    EXPECT_EQ(floorPixel(-2.1), -3);
    EXPECT_EQ(ceilPixel(2.1), 3);
    EXPECT_EQ(ceilPixel(-2.9), -2);
    EXPECT_EQ(nearestPixel(2.49), 2);
    EXPECT_EQ(nearestPixel(2.5), 3);
    EXPECT_EQ(nearestPixel(-2.5), -2);
    EXPECT_EQ(nearestPixel(-2.51), -3);
}

TEST(Pixels, ForgiveWhatRoundingHasLost) {
    EXPECT_EQ(floorPixel(3 - 0.9e-6), 3);
    EXPECT_EQ(floorPixel(3 - 2e-6), 2);
    EXPECT_EQ(ceilPixel(3 + 0.9e-6), 3);
    EXPECT_EQ(ceilPixel(3 + 2e-6), 4);
    EXPECT_EQ(nearestPixel(2.5 - 0.9e-6), 3);
    EXPECT_EQ(nearestPixel(2.5 - 2e-6), 2);
}

TEST(Pixels, AreNeverTooFarAwayToBeCountedWith) {
    constexpr int furthest = 1 << 24;
    EXPECT_EQ(toPixel(furthest - 1.0), furthest - 1);
    EXPECT_EQ(toPixel(1e300), furthest);
    EXPECT_EQ(toPixel(-1e300), -furthest);
    EXPECT_EQ(toPixel(std::numeric_limits<double>::infinity()), furthest);
    EXPECT_EQ(toPixel(1 - furthest), 1 - furthest);
    EXPECT_EQ(toPixel(std::numeric_limits<double>::quiet_NaN()), -furthest);
}

TEST(PixelsOfARectangle, AreThoseTouchedCoveredOrNearest) {
    const geometry::Rect points{{1.4, 2.6}, {10.2, 20.2}}; // to 11.6, 22.8
    EXPECT_EQ(touchedPixels(points), (PixelRect{1, 2, 12, 23}));
    EXPECT_EQ(coveredPixels(points), (PixelRect{2, 3, 11, 22}));
    EXPECT_EQ(nearestPixels(points), (PixelRect{1, 3, 12, 23}));
    EXPECT_EQ(scaledBy({{1, 2}, {3, 4}}, 1.5), (geometry::Rect{{1.5, 3}, {4.5, 6}}));
}

} // namespace
} // namespace proupsells::rasterbackend
