// Pictures and faces that are part of the program.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Raster/FaceFolder.hpp"
#include "Backends/Raster/FilePicture.hpp"
#include "Backends/Raster/FontFile.hpp"
#include "Backends/Raster/PictureFile.hpp"
#include "Backends/Raster/PictureWriter.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Platform/System/Files.hpp"
#include "Tests/Raster/Pictures.hpp"
#include "Tests/Support/EmbeddedCopy.hpp"

using namespace proupsells;

using namespace rasterbackend;
using tests::EmbeddedCopy;

namespace {

Picture somePicture() {
    return tests::makePicture(600, 200, [](int x, int y) { return 0xFF000000u | unsigned(x * 401 + y * 7919); });
}

EmbeddedCopy embeddedPicture() {
    const Picture pictures[] = {somePicture()};
    return {"Kit/Images/große Fläche.picture", pictureFileBytes({300, 100}, pictures)};
}

TEST(EmbeddedPicture, HasItsSize) {
    const EmbeddedCopy file = embeddedPicture();

    EXPECT_EQ(RasterImageDecoder().naturalSize(file.path()), (geometry::Size{300, 100}));
    EXPECT_TRUE(RasterImageDecoder().canRead(file.path()));
}

TEST(EmbeddedPicture, IsReadWhole) {
    const EmbeddedCopy file = embeddedPicture();

    EXPECT_EQ(readPicture(file.path(), 600, 200), somePicture());
}

TEST(EmbeddedPicture, IsReadTileByTile) {
    const EmbeddedCopy file = embeddedPicture();
    const auto picture = FilePicture::open(file.path(), {600, 200});
    ASSERT_TRUE(picture);

    FilePicture::Reader reader(*picture);
    for (int index = 0; index < picture->tiles().count(); ++index) {
        const PixelRect rect = picture->tiles().rect(index);
        const Picture tile = reader.tile(index, false);
        ASSERT_FALSE(tile.isNull());
        EXPECT_EQ(tile.row(0)[0], somePicture().row(rect.top)[rect.left]);
    }
}

TEST(EmbeddedFace, IsAFontLikeItsFile) {
    const auto shipped = facesInFolder(shippedFaceFolder());
    ASSERT_FALSE(shipped.empty());
    const EmbeddedCopy file("Fonts/Inter Display-500.otf", tests::bytesOf(shipped.front().path));

    const auto faces = facesInFolder(system::EmbeddedFiles::root() / "Fonts");

    ASSERT_EQ(faces.size(), 1u);
    EXPECT_EQ(faces.front().family, "Inter Display");
    EXPECT_EQ(faces.front().weight, 500);
    const auto font = FontFile::open(faces.front().path, 0, 500), same = FontFile::open(shipped.front().path, 0, 500);
    ASSERT_TRUE(font && same);
    EXPECT_EQ(font->ascent(), same->ascent());
    EXPECT_TRUE(font->covers(U'ß'));
}

} // namespace
