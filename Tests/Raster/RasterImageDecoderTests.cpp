#include "Backends/Raster/RasterImageDecoder.hpp"

#include <gtest/gtest.h>

#include "Tests/Raster/PngFiles.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::rasterbackend {
namespace {

class RasterImageDecoderTest : public testing::Test {
protected:
    tests::TemporaryFolder folder;
    std::filesystem::path file =
        tests::writePicture(folder.path() / "picture.png", 40, 30, [](int x, int y) { return Pixel(0xFF000000 + x * 5000 + y); });
    RasterImageDecoder decoder;
};

TEST_F(RasterImageDecoderTest, ReadsAWholePicture) { EXPECT_TRUE(decoder.canRead(file)); }

TEST_F(RasterImageDecoderTest, DoesNotReadAPictureOfWhichTheEndIsMissing) {
    std::filesystem::resize_file(file, std::filesystem::file_size(file) / 2);

    EXPECT_TRUE(decoder.naturalSize(file));
    EXPECT_FALSE(decoder.canRead(file));
}

TEST_F(RasterImageDecoderTest, DoesNotReadWhatIsNotThere) { EXPECT_FALSE(decoder.canRead(folder.path() / "none.png")); }

} // namespace
} // namespace proupsells::rasterbackend
