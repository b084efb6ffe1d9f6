#include "Backends/Raster/PictureFile.hpp"

#include <gmock/gmock.h>
#include <png.h>
#include <rapidcheck/gtest.h>

#include "Backends/Headless/ImageSizeReader.hpp"
#include "Backends/Raster/PictureWriter.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/Resampling.hpp"
#include "Platform/Graphics/Image.hpp"
#include "Tests/Raster/Pictures.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::rasterbackend {
namespace {

using geometry::Size;
using tests::filled;
using tests::makePicture;

constexpr Size naturalSize{8, 4};

// Another colour at each scale.
Picture atScale(int scale) { return filled(8 * scale, 4 * scale, 0xFF000000u | unsigned(scale)); }

std::string threeScales() {
    const Picture pictures[] = {atScale(1), atScale(2), atScale(3)};
    return pictureFileBytes(naturalSize, pictures);
}

Picture noise(int width, int height) {
    unsigned state = 1;
    return makePicture(width, height, [&](int, int) { return 0xFF000000u | (state = state * 1664525u + 1013904223u) >> 8; });
}

std::string pngBytes(int width, int height, png_uint_32 format, const void* pixels) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(width);
    image.height = png_uint_32(height);
    image.format = format;
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string bytes(size, '\0');
    png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels, 0, nullptr);
    bytes.resize(size);
    return bytes;
}

class PictureFile : public testing::Test {
protected:
    Picture read(std::string_view bytes, int width, int height) const {
        return readPicture(folder.write("some.picture", bytes), width, height);
    }
    std::optional<Size> size(std::string_view bytes) const { return naturalPictureSize(folder.write("some.picture", bytes)); }

    tests::TemporaryFolder folder;
};

TEST_F(PictureFile, GivesItsOwnPixelsAtItsOwnSizes) {
    const Picture pictures[] = {noise(8, 4), noise(16, 8), noise(24, 12)};
    const std::string bytes = pictureFileBytes(naturalSize, pictures);

    for (const Picture& picture : pictures) EXPECT_EQ(read(bytes, picture.width(), picture.height()), picture);
}

TEST_F(PictureFile, TellsItsNaturalSizeToEveryReader) {
    const auto file = folder.write("some.picture", threeScales());

    EXPECT_EQ(naturalPictureSize(file), naturalSize);
    EXPECT_EQ(RasterImageDecoder().naturalSize(file), naturalSize);
    EXPECT_EQ(headless::ImageSizeReader().naturalSize(file), naturalSize);
}

TEST_F(PictureFile, MakesOtherSizesOfTheLargest) {
    for (const auto& [width, height] : {std::pair(1, 1), {7, 3}, {10, 5}, {12, 6}, {16, 9}, {24, 11}, {25, 12}, {32, 16}})
        EXPECT_EQ(read(threeScales(), width, height), filled(width, height, 0xFF000003)) << width;
}

TEST_F(PictureFile, IsAsSharpAtFractionalScalesAsItsAreasAllow) {
    // Two points black, two points white: at 1.25 pixels a point every other edge falls inside of a pixel, at 1.5 none does.
    const auto stripes = [](int scale) {
        return makePicture(8 * scale, 4 * scale, [&](int x, int) { return x / (2 * scale) % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF; });
    };
    const Picture pictures[] = {stripes(1), stripes(2), stripes(3)};
    const std::string bytes = pictureFileBytes(naturalSize, pictures);

    const Picture quarter = read(bytes, 10, 5), half = read(bytes, 12, 6);

    EXPECT_THAT(std::vector(quarter.row(2), quarter.row(2) + 10),
                testing::ElementsAre(0xFF000000, 0xFF000000, 0xFF808080, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFF000000, 0xFF808080,
                                     0xFFFFFFFF, 0xFFFFFFFF));
    for (int x = 0; x < 12; ++x) EXPECT_EQ(half.row(3)[x], x / 3 % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF) << x;
}

TEST_F(PictureFile, HasAPictureForEachAppearance) {
    const Picture light[] = {filled(8, 4, 0xFFFFFFFF)}, dark[] = {filled(8, 4, 0xFF000000)};
    graphics::Image image;
    image.file = folder.write("logo.picture", pictureFileBytes(naturalSize, light));
    image.darkFile = folder.write("logo~dark.picture", pictureFileBytes(naturalSize, dark));

    EXPECT_EQ(readPicture(image.fileFor(graphics::ColorScheme::light), 8, 4), light[0]);
    EXPECT_EQ(readPicture(image.fileFor(graphics::ColorScheme::dark), 8, 4), dark[0]);
}

TEST_F(PictureFile, CannotBeReadWhereItIsCutOff) {
    const std::string bytes = threeScales();

    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_TRUE(read(std::string_view(bytes).substr(0, length), 24, 12).isNull()) << length;
        EXPECT_EQ(size(std::string_view(bytes).substr(0, length)), std::nullopt) << length;
    }
}

TEST_F(PictureFile, CannotBeReadWhereItIsNoPicture) {
    for (const char* text : {"", "some text", "<svg width='8' height='4'/>", "\xFF\xD8\xFF\xE0 a photograph"}) {
        EXPECT_TRUE(read(text, 8, 4).isNull()) << text;
        EXPECT_EQ(size(text), std::nullopt) << text;
    }
    for (const auto& place : {folder.path(), folder.path() / "missing.picture", std::filesystem::path("/dev/null")}) {
        EXPECT_TRUE(readPicture(place, 8, 4).isNull()) << place;
        EXPECT_EQ(naturalPictureSize(place), std::nullopt) << place;
    }
}

TEST_F(PictureFile, CannotBeReadWhereItsPixelsAreThoseOfAnotherSize) {
    std::string bytes = threeScales();
    const char widthAtScale1 = bytes[20];
    ASSERT_EQ(widthAtScale1, 8);
    bytes[20] = 9;

    EXPECT_TRUE(read(bytes, 9, 4).isNull());
    EXPECT_FALSE(read(bytes, 16, 8).isNull());
}

TEST_F(PictureFile, TakesNoMemoryForPixelsThatCannotBeThere) {
    std::string bytes = threeScales();
    bytes.replace(20, 8, std::string("\xFF\x7F\0\0\xFF\x7F\0\0", 8)); // 32767 × 32767 pixels

    EXPECT_TRUE(read(bytes, 30000, 30000).isNull());
}

TEST_F(PictureFile, HasNoPixelsForASizeOfNothing) {
    EXPECT_TRUE(read(threeScales(), 0, 4).isNull());
    EXPECT_TRUE(read(threeScales(), 8, -4).isNull());
}

TEST_F(PictureFile, IsTheSameForTheSamePixels) { EXPECT_EQ(threeScales(), threeScales()); }

TEST_F(PictureFile, MayBeAPng) {
    const std::uint8_t pixels[] = {255, 0, 0, 255, /**/ 0, 255, 0, 128, /**/ 10, 20, 30, 0, /**/ 0, 0, 255, 1};
    const auto file = folder.write("pixels.png", pngBytes(2, 2, PNG_FORMAT_RGBA, pixels));

    EXPECT_EQ(naturalPictureSize(file), (Size{2, 2}));
    const Picture picture = readPicture(file, 2, 2);
    EXPECT_EQ(std::vector(picture.row(0), picture.row(0) + 4), (std::vector<Pixel>{0xFFFF0000, 0x80008000, 0, 0x01000001}));
    EXPECT_EQ(readPicture(file, 6, 4), resampled(picture, 6, 4));
}

TEST_F(PictureFile, MayBeAPngWithoutOpacityOrColour) {
    const std::uint8_t rgb[] = {1, 2, 3}, grey[] = {77};

    EXPECT_EQ(read(pngBytes(1, 1, PNG_FORMAT_RGB, rgb), 1, 1).row(0)[0], 0xFF010203);
    EXPECT_EQ(read(pngBytes(1, 1, PNG_FORMAT_GRAY, grey), 1, 1).row(0)[0], 0xFF4D4D4D);
}

TEST_F(PictureFile, CannotBeReadWhereAPngIsCutOff) {
    const Picture picture = noise(8, 4);
    const std::string bytes = pngBytes(8, 4, PNG_FORMAT_BGRA, picture.row(0));

    for (const std::size_t length : {8u, 30u, 60u, 100u}) {
        ASSERT_LT(length, bytes.size());
        EXPECT_TRUE(read(bytes.substr(0, length), 8, 4).isNull()) << length;
    }
}

RC_GTEST_PROP(PictureFileInvariants, SurvivesWhateverBytesAreWrong, ()) {
    static const std::string whole = threeScales();
    static const tests::TemporaryFolder folder;
    std::string bytes = whole;
    for (int changes = *rc::gen::inRange(1, 5); changes > 0; --changes)
        bytes[*rc::gen::inRange<std::size_t>(0, bytes.size())] = *rc::gen::arbitrary<char>();
    const auto file = folder.write("changed.picture", bytes);
    const int width = *rc::gen::inRange(1, 40), height = *rc::gen::inRange(1, 40);

    const Picture picture = readPicture(file, width, height);

    RC_ASSERT(picture.isNull() || (picture.width() == width && picture.height() == height));
}

} // namespace
} // namespace proupsells::rasterbackend
