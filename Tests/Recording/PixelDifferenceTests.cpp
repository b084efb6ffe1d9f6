// How pictures of a gallery are told from each other, and how two differ where their trees do not.
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "Apps/ProUpsellsHost/PictureDigest.hpp"
#include "Apps/ProUpsellsHost/PixelDifference.hpp"
#include "Backends/Raster/PngFile.hpp"

namespace proupsells::tests {

namespace {

struct Spot {
    int x, y;
};

// White, but for these pixels.
rasterbackend::Picture drawnPicture(int width, int height, const std::vector<Spot>& dark = {}) {
    rasterbackend::Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) picture.row(y)[x] = 0xFFFFFFFF;
    for (const auto& [x, y] : dark) picture.row(y)[x] = 0xFF102030;
    return picture;
}

std::string writtenPicture(int width, int height, const std::vector<Spot>& dark = {}) {
    return rasterbackend::pngBytes(drawnPicture(width, height, dark), rasterbackend::PngEffort::quick);
}

} // namespace

TEST(PixelDifference, TellsOfOnePixelByItsPlace) {
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7), writtenPicture(9, 7, {{3, 5}})), "1 pixel at 3 5 1 1");
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7, {{0, 0}}), writtenPicture(9, 7)), "1 pixel at 0 0 1 1");
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7, {{8, 6}}), writtenPicture(9, 7)), "1 pixel at 8 6 1 1");
}

TEST(PixelDifference, CountsSeveralAndTellsWhatHoldsThem) {
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7, {{2, 1}}), writtenPicture(9, 7, {{7, 3}, {4, 6}})),
              "3 pixels within 2 1 6 6");
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7, {{2, 1}, {3, 3}}), writtenPicture(9, 7, {{2, 1}, {5, 2}})),
              "2 pixels within 3 2 3 2");
}

TEST(PixelDifference, IsNoneBetweenPicturesOfOtherSizesOrNoPictures) {
    const std::string incomparable = "the pictures cannot be compared";
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7), writtenPicture(9, 8)), incomparable);
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7), writtenPicture(8, 7)), incomparable);
    EXPECT_EQ(hostprogram::pixelDifference("no picture", writtenPicture(9, 7)), incomparable);
    EXPECT_EQ(hostprogram::pixelDifference(writtenPicture(9, 7), "no picture"), incomparable);
}

// Galleries are held against those of earlier versions.
TEST(PictureDigest, StaysTheSameFromVersionToVersion) {
    EXPECT_EQ(hostprogram::digestOf(drawnPicture(9, 7)), "0ce3f3123d4f5744327bb0cb6af6c57c");
    EXPECT_EQ(hostprogram::digestOf(drawnPicture(3, 2, {{1, 1}})), "6bfb123ff2b08a0d8072e85b5b669116");
}

TEST(PictureDigest, IsAnotherForEveryPixelAndShape) {
    std::set<std::string> digests{hostprogram::digestOf(drawnPicture(4, 6)), hostprogram::digestOf(drawnPicture(6, 4)),
                                  hostprogram::digestOf(drawnPicture(24, 1)), hostprogram::digestOf(drawnPicture(1, 24)),
                                  hostprogram::digestOf(drawnPicture(4, 5))};
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 4; ++x) digests.insert(hostprogram::digestOf(drawnPicture(4, 6, {{x, y}})));

    EXPECT_EQ(digests.size(), 5u + 24u);
}

} // namespace proupsells::tests
