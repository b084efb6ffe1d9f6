#include "Backends/Raster/PictureColor.hpp"

#include <gtest/gtest.h>

#include "Tests/Raster/Pictures.hpp"

namespace proupsells::rasterbackend {
namespace {

Picture sixColors() {
    return tests::makePicture(3, 2, [](int x, int y) { return 0xFF000000u | Pixel(x + 1) << 16 | Pixel(y + 1) << 8 | 7u; });
}

TEST(PictureColor, IsThatOfThePixelInWhichAPointLies) {
    EXPECT_EQ(colorAt(sixColors(), {0, 0}), (graphics::RGBA{1, 1, 7, 255}));
    EXPECT_EQ(colorAt(sixColors(), {0.9, 1}), (graphics::RGBA{1, 2, 7, 255}));
    EXPECT_EQ(colorAt(sixColors(), {1, 0.9}), (graphics::RGBA{2, 1, 7, 255}));
    EXPECT_EQ(colorAt(sixColors(), {2.5, 1.5}), (graphics::RGBA{3, 2, 7, 255}));
}

TEST(PictureColor, IsThatOfTheNearestPixelOutside) {
    EXPECT_EQ(colorAt(sixColors(), {-5, -5}), (graphics::RGBA{1, 1, 7, 255}));
    EXPECT_EQ(colorAt(sixColors(), {3, 2}), (graphics::RGBA{3, 2, 7, 255}));
    EXPECT_EQ(colorAt(sixColors(), {100, 100}), (graphics::RGBA{3, 2, 7, 255}));
    EXPECT_EQ(colorAt(sixColors(), {1, -1}), (graphics::RGBA{2, 1, 7, 255}));
}

} // namespace
} // namespace proupsells::rasterbackend
