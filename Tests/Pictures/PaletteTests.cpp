#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tools/JoinPictures/Palette.hpp"

using namespace proupsells::joinpictures;

using testing::Contains;
using testing::UnorderedElementsAre;

namespace {

// Every colour of a small cube once, and one plain area.
std::vector<Colour> manyColours() {
    std::vector<Colour> pixels(500, 0x123456);
    for (Colour colour = 0; colour < 0x1000; ++colour)
        pixels.push_back((colour & 0xF00) << 12 | (colour & 0x0F0) << 8 | (colour & 0x00F) << 4);
    return pixels;
}

int farthestWay(const std::vector<Colour>& palette, const std::vector<Colour>& pixels) {
    const std::vector<std::uint8_t> places = placesIn(palette, pixels);
    int farthest = 0;
    for (std::size_t index = 0; index < pixels.size(); ++index)
        for (const int shift : {16, 8, 0})
            farthest =
                std::max(farthest, std::abs(int(pixels[index] >> shift & 0xFF) - int(palette[places[index]] >> shift & 0xFF)));
    return farthest;
}

} // namespace

TEST(Palette, HasFewColoursAsTheyAre) {
    const std::vector<Colour> pixels{0xFF0000, 0x00FF00, 0xFF0000, 0x000001};

    EXPECT_THAT(paletteOf(pixels), UnorderedElementsAre(0xFF0000u, 0x00FF00u, 0x000001u));
    EXPECT_EQ(farthestWay(paletteOf(pixels), pixels), 0);
}

TEST(Palette, KeepsPlainAreasAsTheyAreAmongManyColours) {
    const std::vector<Colour> palette = paletteOf(manyColours());

    EXPECT_EQ(palette.size(), 256u);
    EXPECT_THAT(palette, Contains(0x123456u));
}

TEST(Palette, HasNoColourFarFromItsOwn) {
    const std::vector<Colour> pixels = manyColours();

    EXPECT_LE(farthestWay(paletteOf(pixels), pixels), 48);
}
