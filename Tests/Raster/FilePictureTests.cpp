#include "Backends/Raster/FilePicture.hpp"

#include <gmock/gmock.h>

#include <fstream>

#include "Backends/Raster/PicturePreparer.hpp"
#include "Backends/Raster/PictureWriter.hpp"
#include "Tests/Raster/Canvas.hpp"
#include "Tests/Raster/Pictures.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::rasterbackend {
namespace {

using tests::Canvas;

// Larger than a tile both ways; every pixel differs from its neighbours.
constexpr PixelSize size{600, 200};
Pixel pixelAt(int x, int y) { return 0xFF000000u | unsigned(x * 401 + y * 7919); }

class FilePictureTest : public testing::Test {
protected:
    std::shared_ptr<FilePicture> open() const { return FilePicture::open(m_file, size); }
    graphics::ImageRef image() const {
        auto image = std::make_shared<graphics::Image>();
        image->file = m_file;
        return image;
    }
    void removeFile() const { std::filesystem::remove(m_file); }
    void damage(std::size_t fromEnd) const {
        std::fstream file(m_file, std::ios::in | std::ios::out | std::ios::binary);
        file.seekp(-std::streamoff(fromEnd), std::ios::end);
        file << std::string(fromEnd, '\xFF');
    }
    Picture whole() const { return tests::makePicture(size.width, size.height, pixelAt); }
    Canvas canvas() const {
        Canvas canvas({size.width, size.height});
        canvas.context.image({}, {{0, 0}, {size.width, size.height}}, image());
        return canvas;
    }

private:
    std::filesystem::path write() const {
        const Picture pictures[] = {whole()};
        return m_folder.write("some.picture", pictureFileBytes({size.width, size.height}, pictures));
    }

    tests::TemporaryFolder m_folder;
    std::filesystem::path m_file = write();
};

bool isRead(FilePicture& picture) {
    FilePicture::Reader reader(picture);
    for (int tile = 0; tile < picture.tiles().count(); ++tile)
        if (reader.tile(tile, false).isNull()) return false;
    return true;
}

TEST_F(FilePictureTest, HasItsPixelsInTiles) {
    const auto picture = open();
    ASSERT_TRUE(picture);
    ASSERT_GT(picture->tiles().columnCount(), 1);
    ASSERT_GT(picture->tiles().rowCount(), 1);
    FilePicture::Reader reader(*picture);

    for (int index = 0; index < picture->tiles().count(); ++index) {
        const PixelRect rect = picture->tiles().rect(index);
        EXPECT_EQ(reader.tile(index, false), tests::part(whole(), rect.left, rect.top, rect.width(), rect.height())) << index;
    }
}

TEST_F(FilePictureTest, KnowsWhetherItIsOpaque) { EXPECT_TRUE(open()->isOpaque()); }

TEST_F(FilePictureTest, IsNullWhereTheFileHasNoSuchSize) {
    EXPECT_FALSE(FilePicture::open("missing.picture", size));
    EXPECT_FALSE(FilePicture::open(image()->file, {size.width, size.height + 1}));
}

TEST_F(FilePictureTest, TakesNoMemoryForWhatIsSeenOnce) {
    const auto picture = open();
    ASSERT_TRUE(isRead(*picture));

    removeFile();

    EXPECT_FALSE(isRead(*picture));
}

TEST_F(FilePictureTest, StaysInMemoryOnceItIsKept) {
    const auto picture = open();
    picture->keep();
    ASSERT_TRUE(isRead(*picture));

    removeFile();

    EXPECT_TRUE(isRead(*picture));
}

TEST_F(FilePictureTest, IsKeptPixelForPixel) {
    const auto picture = open();
    picture->keep();
    FilePicture::Reader reader(*picture);

    EXPECT_EQ(reader.kept({0, 0, size.width, size.height}), whole());
    EXPECT_EQ(reader.tile(1, false), tests::part(whole(), picture->tiles().rect(1).left, 0, picture->tiles().rect(1).width(),
                                                 picture->tiles().rect(1).height()));
}

TEST(NarrowFilePicture, IsKeptPixelForPixelWhereATileIsAsWideAsThePicture) {
    const tests::TemporaryFolder folder;
    const Picture pictures[] = {tests::makePicture(100, 200, pixelAt)};
    const auto picture = FilePicture::open(folder.write("narrow.picture", pictureFileBytes({100, 200}, pictures)), {100, 200});
    ASSERT_TRUE(picture);
    ASSERT_GT(picture->tiles().rowCount(), 2);
    picture->keep();

    EXPECT_EQ(FilePicture::Reader(*picture).kept({0, 0, 100, 200}), pictures[0]);
}

TEST(SmallFilePicture, StaysInMemoryFromTheBeginning) {
    const tests::TemporaryFolder folder;
    const Picture pictures[] = {tests::makePicture(40, 30, pixelAt)};
    const auto file = folder.write("small.picture", pictureFileBytes({40, 30}, pictures));
    auto image = std::make_shared<graphics::Image>();
    image->file = file;
    Canvas canvas({40, 30});
    canvas.context.image({}, {{0, 0}, {40, 30}}, image);
    RasterSurface surface(std::make_shared<RasterPainter>());
    surface.present(canvas.list, canvas.size, 1);

    std::filesystem::remove(file);
    surface.forgetShown();
    surface.present(canvas.list, canvas.size, 1);

    EXPECT_EQ(surface.picture(), pictures[0]);
}

TEST_F(FilePictureTest, HandsATileOutAgainWhereItIsWantedAgain) {
    const auto picture = open();
    FilePicture::Reader(*picture).tile(1, true);
    removeFile();

    EXPECT_FALSE(FilePicture::Reader(*picture).tile(1, false).isNull());
    EXPECT_TRUE(FilePicture::Reader(*picture).tile(1, false).isNull());
}

TEST_F(FilePictureTest, IsReadBesideTheMainThread) {
    const auto picture = open();
    picture->keep();
    PicturePreparer preparer;

    preparer.prepare(picture, {0, 1});
    preparer.prepare(picture, {3});
    preparer.wait();

    EXPECT_TRUE(picture->isKept(0) && picture->isKept(1) && picture->isKept(3));
    EXPECT_FALSE(picture->isKept(2));
}

TEST_F(FilePictureTest, IsPaintedAlikeForTheFirstTimeAndAgain) {
    const Canvas canvas = this->canvas();
    RasterSurface surface(std::make_shared<RasterPainter>());

    for (int time = 0; time < 3; ++time) {
        surface.forgetShown();
        surface.present(canvas.list, canvas.size, 1);
        EXPECT_EQ(surface.picture(), whole()) << time;
    }
}

TEST_F(FilePictureTest, IsForgottenWhereItIsPaintedOnce) {
    tests::LogRecorder log;
    const Canvas canvas = this->canvas();
    RasterSurface surface(std::make_shared<RasterPainter>());
    surface.present(canvas.list, canvas.size, 1);

    removeFile();
    surface.forgetShown();
    surface.present(canvas.list, canvas.size, 1);

    EXPECT_EQ(tests::totalInk(surface.picture()), 0);
    EXPECT_THAT(log.messages(), testing::ElementsAre(testing::HasSubstr("some.picture cannot be read")));
}

TEST_F(FilePictureTest, MayBeTintedAndTurned) {
    Canvas tinted({size.width, size.height}), turned({size.width, size.height});
    auto tintedImage = std::make_shared<graphics::Image>(*image());
    tintedImage->renderingMode = graphics::RenderingMode::tinted;
    const geometry::Transform half{-1, 0, 0, -1, double(size.width), double(size.height)};
    tinted.context.image({}, {{0, 0}, {size.width, size.height}}, tintedImage, tests::red);
    turned.context.image(graphics::PaintState().transformedBy(half), {{0, 0}, {size.width, size.height}}, image());

    EXPECT_EQ(tinted.image(), tests::filled(size.width, size.height, 0xFFFF0000));
    EXPECT_EQ(turned.image(), tests::makePicture(size.width, size.height,
                                                 [](int x, int y) { return pixelAt(size.width - 1 - x, size.height - 1 - y); }));
}

TEST_F(FilePictureTest, StaysInMemoryOnceItIsPaintedAgain) {
    const Canvas canvas = this->canvas();
    RasterSurface surface(std::make_shared<RasterPainter>());
    for (int time = 0; time < 2; ++time) {
        surface.forgetShown();
        surface.present(canvas.list, canvas.size, 1);
    }

    removeFile();
    surface.forgetShown();
    surface.present(canvas.list, canvas.size, 1);

    EXPECT_EQ(surface.picture(), whole());
}

TEST_F(FilePictureTest, IsThereWhenItComesIfItWasAhead) {
    const auto painter = std::make_shared<RasterPainter>();
    RasterSurface surface(painter);
    Canvas before({size.width, size.height});
    before.context.lookAhead([&] { before.context.image({}, {{0, 0}, {size.width, size.height}}, image()); });
    surface.present(before.list, before.size, 1);
    ASSERT_EQ(tests::totalInk(surface.picture()), 0);

    surface.prepareAhead();
    painter->finishPreparing();
    removeFile();
    surface.present(canvas().list, before.size, 1);

    EXPECT_EQ(surface.picture(), whole());
}

TEST_F(FilePictureTest, IsReadAheadWhereItWillBeSeen) {
    const auto painter = std::make_shared<RasterPainter>();
    RasterSurface surface(painter);
    const geometry::Rect place{{-400, -100}, {size.width, size.height}};
    const graphics::PaintState seen = graphics::PaintState().clippedTo({{0, 0}, {100, 80}});
    Canvas before({100, 80}), after({100, 80});
    before.context.fillRectangle({}, {{0, 0}, {100, 80}}, tests::white);
    before.context.lookAhead([&] { before.context.image(seen, place, image()); });
    after.context.image(seen, place, image());
    surface.present(before.list, before.size, 1);

    surface.prepareAhead();
    painter->finishPreparing();
    removeFile();
    surface.present(after.list, after.size, 1);

    EXPECT_EQ(surface.picture(), tests::part(whole(), 400, 100, 100, 80));
}

TEST_F(FilePictureTest, IsNotReadAheadWhereNothingIsShown) {
    const auto painter = std::make_shared<RasterPainter>();
    RasterSurface surface(painter);
    const Canvas canvas = this->canvas();
    surface.present(canvas.list, canvas.size, 1);
    const std::size_t before = painter->pictureBytes();

    surface.forgetShown();
    surface.prepareAhead();
    painter->finishPreparing();

    EXPECT_EQ(painter->pictureBytes(), before);
}

TEST_F(FilePictureTest, IsPaintedAsFarAsItCanBeRead) {
    tests::LogRecorder log;
    damage(3000); // the last tile and the end of the one before
    const Canvas canvas = this->canvas();

    const Picture picture = canvas.image();

    const int top = size.height / 64 * 64;
    EXPECT_EQ(tests::part(picture, 0, 0, size.width, top), tests::part(whole(), 0, 0, size.width, top));
    EXPECT_EQ(tests::colorAt(picture, size.width - 1, size.height - 1), 0xFFFFFFu);
    canvas.image();
    EXPECT_THAT(log.messages(), testing::ElementsAre(testing::HasSubstr("some.picture cannot be read")));
}

TEST(PictureMemory, HasABoundHoweverManyPicturesAreShown) {
    const tests::TemporaryFolder folder;
    constexpr int side = 2000, count = 8; // 16 MB each
    const Picture pictures[] = {tests::filled(side, side, 0xFF336699)};
    const std::string bytes = pictureFileBytes({side, side}, pictures);
    RasterPainter painter;
    std::vector<Pixel> pixels(std::size_t(side) * side);

    std::size_t most = 0;
    for (int index = 0; index < count; ++index) {
        auto image = std::make_shared<graphics::Image>();
        image->file = folder.write(std::to_string(index) + ".picture", bytes);
        Canvas canvas({side, side});
        canvas.context.image({}, {{0, 0}, {side, side}}, image);
        const PixelRect window{0, 0, side, side};
        for (int time = 0; time < 2; ++time) painter.paint({pixels.data(), side, {side, side}}, canvas.list, 1, {&window, 1});
        most = std::max(most, painter.pictureBytes());
    }

    EXPECT_LE(most, RasterPainter::maximumPictureBytes());
    EXPECT_LE(RasterPainter::maximumPictureBytes(), 80u << 20);
}

} // namespace
} // namespace proupsells::rasterbackend
