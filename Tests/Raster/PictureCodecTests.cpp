// Compressed pixels, and bytes that are none. The format: the size of a tile, whether all is opaque, the end of each tile, the
// tiles.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Raster/PictureCodec.hpp"
#include "Platform/Foundation/LittleEndian.hpp"

namespace proupsells::rasterbackend {
namespace {

// Two tiles beside each other and two below: every pixel differs from its neighbours.
Picture largePicture() {
    Picture picture = Picture::unwritten(300, 70);
    for (int y = 0; y < 70; ++y)
        for (int x = 0; x < 300; ++x) picture.row(y)[x] = 0xFF000000u | Pixel(x * 7 + y * 1000);
    return picture;
}

Picture smallPicture(Pixel pixel) {
    Picture picture = Picture::unwritten(2, 2);
    for (int y = 0; y < 2; ++y) std::fill_n(picture.row(y), 2, pixel);
    return picture;
}

// The bytes with another number at a place, counted in numbers.
std::string withNumber(const std::string& bytes, std::size_t place, std::uint32_t number) {
    std::string four;
    foundation::appendNumber(four, number);
    return std::string(bytes).replace(4 * place, 4, four);
}

bool canBeRead(std::string_view bytes, PixelSize size = {2, 2}) { return CompressedPicture::parse(bytes, size).has_value(); }

TEST(PictureCodec, GivesBackEveryPixel) {
    const Picture picture = largePicture();
    const Picture again = decompressed(compressed(picture), 300, 70);

    ASSERT_EQ(again.width(), 300);
    ASSERT_EQ(again.height(), 70);
    for (int y = 0; y < 70; ++y) EXPECT_TRUE(std::equal(picture.row(y), picture.row(y) + 300, again.row(y))) << y;
}

TEST(PictureCodec, CutsPicturesIntoTiles) {
    const std::string bytes = compressed(largePicture());
    const auto picture = CompressedPicture::parse(bytes, {300, 70});

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->tiles(), (TileGrid{{300, 70}, {256, 64}}));
    std::vector<Pixel> pixels(picture->tiles().pixelCount(3));
    EXPECT_TRUE(picture->decompress(3, pixels.data()));
    EXPECT_EQ(pixels.size(), std::size_t(44 * 6));
    EXPECT_EQ(pixels.front(), 0xFF000000u | Pixel(256 * 7 + 64 * 1000));
    EXPECT_EQ(pixels.back(), 0xFF000000u | Pixel(299 * 7 + 69 * 1000));
}

TEST(PictureCodec, KnowsWhatIsOpaque) {
    EXPECT_TRUE(CompressedPicture::parse(compressed(smallPicture(0xFF123456)), {2, 2})->isOpaque());
    EXPECT_FALSE(CompressedPicture::parse(compressed(smallPicture(0x80123456)), {2, 2})->isOpaque());
}

TEST(PictureCodec, ReadsTilesOfAnySizeThatAPictureMayHave) {
    const std::string bytes = compressed(smallPicture(0xFF123456));
    for (const std::size_t place : {0, 1}) {
        EXPECT_TRUE(canBeRead(withNumber(bytes, place, 2)));
        EXPECT_TRUE(canBeRead(withNumber(bytes, place, 0x7FFF)));
        EXPECT_FALSE(canBeRead(withNumber(bytes, place, 0)));
        EXPECT_FALSE(canBeRead(withNumber(bytes, place, 0x8000)));
        EXPECT_FALSE(canBeRead(withNumber(bytes, place, 0xFFFFFFFF)));
    }
    EXPECT_TRUE(canBeRead(withNumber(bytes, 2, 0)));
    EXPECT_FALSE(canBeRead(withNumber(bytes, 2, 2)));
}

TEST(PictureCodec, RefusesBytesThatAreTooFewOrTooMany) {
    const std::string bytes = compressed(smallPicture(0xFF123456));
    EXPECT_TRUE(canBeRead(bytes));
    for (std::size_t length = 0; length < bytes.size(); ++length) EXPECT_FALSE(canBeRead(bytes.substr(0, length))) << length;
    EXPECT_FALSE(canBeRead(bytes + "x"));
    EXPECT_FALSE(canBeRead(bytes, {0, 2}));
    EXPECT_FALSE(canBeRead(bytes, {2, 0}));
    EXPECT_TRUE(decompressed(bytes.substr(0, bytes.size() - 1), 2, 2).isNull());
}

TEST(PictureCodec, RefusesEndsThatGoBackOrOut) {
    const std::string bytes = compressed(largePicture());
    std::string_view ends(bytes);
    ends.remove_prefix(12);
    const std::uint32_t first = foundation::takeNumber(ends), second = foundation::takeNumber(ends);

    EXPECT_TRUE(canBeRead(bytes, {300, 70}));
    EXPECT_FALSE(canBeRead(withNumber(bytes, 3, second + 1), {300, 70}));
    EXPECT_FALSE(canBeRead(withNumber(bytes, 4, first - 1), {300, 70}));
    EXPECT_FALSE(canBeRead(withNumber(bytes, 6, 0xFFFFFFF0), {300, 70}));
}

// LZ4 makes at most 255 bytes of one.
TEST(PictureCodec, RefusesFewBytesForManyPixels) {
    const auto claims = [](std::uint32_t pixels, std::size_t count) {
        std::string bytes;
        for (const std::uint32_t number : {pixels, 1u, 1u, std::uint32_t(count)}) foundation::appendNumber(bytes, number);
        return canBeRead(bytes + std::string(count, 'x'), {int(pixels), 1});
    };

    EXPECT_TRUE(claims(63, 1));
    EXPECT_TRUE(claims(701, 10));  // 2804 bytes
    EXPECT_FALSE(claims(702, 10)); // 2808 bytes
}

// LZ4 takes at most 0x7E000000 bytes, here exactly as many as 32256 × 16384 pixels have.
TEST(PictureCodec, RefusesTilesLargerThanLZ4Makes) {
    const std::string tile(9'000'000, 'x');
    const auto canHaveHeight = [&](std::uint32_t height) {
        std::string bytes;
        for (const std::uint32_t number : {32256u, height, 1u, std::uint32_t(tile.size())}) foundation::appendNumber(bytes, number);
        return canBeRead(bytes + tile, {32256, int(height)});
    };

    EXPECT_TRUE(canHaveHeight(16384));
    EXPECT_FALSE(canHaveHeight(16385));
}

TEST(PictureCodec, SaysWhatCannotBeDecompressed) {
    std::string bytes = compressed(smallPicture(0xFF123456));
    bytes.replace(16, std::string::npos, bytes.size() - 16, '\xFF');
    const auto picture = CompressedPicture::parse(bytes, {2, 2});

    ASSERT_TRUE(picture);
    Pixel pixels[4];
    EXPECT_FALSE(picture->decompress(0, pixels));
    EXPECT_TRUE(decompressed(bytes, 2, 2).isNull());
}

} // namespace
} // namespace proupsells::rasterbackend
