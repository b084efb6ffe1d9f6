#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <random>

#include "Backends/Raster/PictureFile.hpp"
#include "Backends/Raster/PngFile.hpp"
#include "Tests/Raster/Canvas.hpp"
#include "Tests/Raster/Pictures.hpp"
#include "Tests/Raster/PngFiles.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using geometry::Transform;
using graphics::ColorScheme;
using graphics::PaintState;
using graphics::RenderingMode;
using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class ImagePainting : public testing::Test {
protected:
    std::filesystem::path path(const std::string& name) const { return m_folder.path() / name; }

    graphics::ImageRef image(const std::filesystem::path& file, RenderingMode mode = RenderingMode::original) const {
        auto image = std::make_shared<graphics::Image>();
        image->name = file.stem().string();
        image->file = file;
        image->renderingMode = mode;
        return image;
    }

    std::filesystem::path redSquare() const {
        return writePicture(path("square.png"), 10, 10, [](int, int) { return 0xFFFF0000u; });
    }
    // Red left half, transparent right half.
    std::filesystem::path halfRed() const {
        return writePicture(path("half.png"), 10, 10, [](int x, int) { return x < 5 ? 0xFFFF0000u : 0u; });
    }

private:
    TemporaryFolder m_folder;
};

std::shared_ptr<graphics::Bitmap> bitmap(int width, int height, std::uint32_t pixel) {
    auto bitmap = std::make_shared<graphics::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->pixels.assign(std::size_t(width * height), pixel);
    return bitmap;
}

} // namespace

TEST_F(ImagePainting, StretchesAPictureOverItsFrameSharply) {
    Canvas canvas({40, 40}, 2);
    canvas.context.image({}, {{5, 10}, {20, 15}}, image(redSquare()));

    const rasterbackend::Picture picture = canvas.image();
    for (const auto& [x, y] : {std::pair(10, 20), std::pair(49, 49)}) EXPECT_EQ(colorAt(picture, x, y), 0xFF0000u);
    for (const auto& [x, y] : {std::pair(9, 20), std::pair(50, 49), std::pair(10, 19), std::pair(49, 50)})
        EXPECT_EQ(colorAt(picture, x, y), 0xFFFFFFu);
}

TEST_F(ImagePainting, PutsAFrameBetweenPixelsOntoThem) {
    Canvas canvas({40, 40}, 1.5);
    canvas.context.image({}, {{5.2, 5.2}, {20, 20}}, image(redSquare()));

    const rasterbackend::Picture picture = canvas.image();
    for (int x = 0; x < picture.width(); ++x) {
        const unsigned pixel = colorAt(picture, x, 20);
        EXPECT_TRUE(pixel == 0xFF0000u || pixel == 0xFFFFFFu) << x;
    }
    EXPECT_EQ(colorAt(picture, 8, 8), 0xFF0000u);
    EXPECT_EQ(colorAt(picture, 37, 37), 0xFF0000u);
}

TEST_F(ImagePainting, PaintsATintedImageInTheTintsColor) {
    Canvas canvas({10, 10});
    canvas.context.image({}, {{0, 0}, {10, 10}}, image(halfRed(), RenderingMode::tinted), blue);

    EXPECT_EQ(canvas.pixel(2, 5), 0x0000FFu);
    EXPECT_EQ(canvas.pixel(7, 5), 0xFFFFFFu);
}

TEST_F(ImagePainting, KeepsTheColorsOfAnOriginalImage) {
    Canvas canvas({10, 10});
    canvas.context.image({}, {{0, 0}, {10, 10}}, image(halfRed()), blue);

    EXPECT_EQ(canvas.pixel(2, 5), 0xFF0000u);
}

TEST_F(ImagePainting, ShowsTheDarkPictureInTheDark) {
    auto both = std::make_shared<graphics::Image>();
    both->file = redSquare();
    both->darkFile = writePicture(path("dark.png"), 10, 10, [](int, int) { return 0xFF0000FFu; });
    PaintState dark;
    dark.scheme = ColorScheme::dark;
    Canvas canvas({20, 10});
    canvas.context.image({}, {{0, 0}, {10, 10}}, both);
    canvas.context.image(dark, {{10, 0}, {10, 10}}, both);

    EXPECT_EQ(canvas.pixel(5, 5), 0xFF0000u);
    EXPECT_EQ(canvas.pixel(15, 5), 0x0000FFu);
}

TEST_F(ImagePainting, FadesClipsAndTurnsPictures) {
    Canvas canvas({40, 40});
    canvas.context.image(PaintState{}.fadedBy(0.5), {{0, 0}, {10, 10}}, image(redSquare()));
    canvas.context.image(PaintState{}.clippedTo({{20, 0}, {10, 5}}), {{20, 0}, {10, 10}}, image(redSquare()));
    canvas.context.image(PaintState{}.transformedBy(Transform::scaling(0.5, 0.5).about({20, 30})), {{10, 20}, {20, 20}},
                         image(redSquare()));

    EXPECT_EQ(canvas.pixel(5, 5), 0xFF7F7Fu);
    EXPECT_EQ(canvas.pixel(25, 4), 0xFF0000u);
    EXPECT_EQ(canvas.pixel(25, 5), 0xFFFFFFu);
    EXPECT_EQ(canvas.pixel(20, 30), 0xFF0000u);
    EXPECT_EQ(canvas.pixel(13, 30), 0xFFFFFFu);
}

TEST_F(ImagePainting, ComesOutInPartsAsInTheWhole) {
    const graphics::ImageRef opaque = image(redSquare()), half = image(halfRed());
    std::mt19937 random(20261122);
    const auto number = [&](int limit) { return double(random() % unsigned(limit)); };
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        Canvas canvas({60, 300});
        if (round % 2) canvas.context.fillRectangle({}, {{0, 0}, {60, 300}}, blue);
        for (int picture = 0; picture < 4; ++picture) {
            PaintState state;
            if (picture == 2) state = state.fadedBy(0.4);
            if (picture == 3) state = state.clippedTo({{number(30), number(200)}, {30, 90}}, number(20));
            canvas.context.image(state, {{number(50) - 10, number(280) - 10}, {1 + number(60), 1 + number(200)}},
                                 random() % 2 ? opaque : half);
        }

        const rasterbackend::Picture whole = canvas.image();
        rasterbackend::Picture parts = filled(60, 300, 0);
        std::vector<rasterbackend::PixelRect> rects;
        for (int top = 0; top < 300; top += 7) rects.push_back({0, top, 60, std::min(300, top + 7)});
        rasterbackend::RasterPainter().paint({parts.row(0), 60, {60, 300}}, canvas.list, 1, rects);

        EXPECT_TRUE(isSame(parts, whole));
    }
}

TEST_F(ImagePainting, ReportsAPictureThatCannotBeReadOnceAndPaintsNothing) {
    tests::LogRecorder log;
    Canvas canvas({40, 40});
    canvas.context.image({}, {{0, 0}, {10, 10}}, image(path("missing.png")));
    canvas.context.image({}, {{0, 0}, {20, 20}}, image(path("missing.png")));

    EXPECT_EQ(totalInk(canvas.image()), 0);
    EXPECT_EQ(totalInk(canvas.image()), 0);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("missing.png")));
}

TEST_F(ImagePainting, ReadsNoPictureThatCannotBeSeen) {
    LogRecorder log;
    Canvas canvas({20, 20});
    canvas.context.image({}, {{30, 5}, {10, 10}}, image(path("missing.png")));
    canvas.context.image(PaintState().fadedBy(0.001), {{5, 5}, {10, 10}}, image(path("missing.png")));

    EXPECT_EQ(totalInk(canvas.image()), 0);
    EXPECT_THAT(log.messages(), testing::IsEmpty());
}

TEST_F(ImagePainting, PaintsPicturesOfPixelsScaled) {
    writePicture(path("blue.png"), 2, 2, [](int, int) { return 0xFF0000FFu; });
    Canvas canvas({10, 10}, 2);
    canvas.context.image({}, {{0, 0}, {10, 10}}, image(path("blue.png")));

    EXPECT_EQ(canvas.pixel(0, 0), 0x0000FFu);
    EXPECT_EQ(canvas.pixel(19, 19), 0x0000FFu);
}

TEST_F(ImagePainting, PaintsBitmapsScaledAndBlended) {
    Canvas canvas({20, 10});
    canvas.context.bitmap({}, {{0, 0}, {10, 10}}, bitmap(4, 4, 0xFF00FF00));
    canvas.context.bitmap({}, {{10, 0}, {10, 10}}, bitmap(10, 10, 0x80000080));

    EXPECT_EQ(canvas.pixel(5, 5), 0x00FF00u);
    EXPECT_EQ(canvas.pixel(15, 5), 0x7F7FFFu);
}

TEST_F(ImagePainting, StretchesABitmapOneWay) {
    Canvas wide({8, 4}), high({4, 8});
    wide.context.bitmap({}, {{0, 0}, {8, 4}}, bitmap(4, 4, 0xFF00FF00));
    high.context.bitmap({}, {{0, 0}, {4, 8}}, bitmap(4, 4, 0xFF00FF00));

    for (int place = 0; place < 8; ++place) {
        EXPECT_EQ(wide.pixel(place, 3), 0x00FF00u);
        EXPECT_EQ(high.pixel(3, place), 0x00FF00u);
    }
}

// And a little for the places of each.
TEST_F(ImagePainting, CountsTheBytesOfWhatItRemembers) {
    const auto bytesOf = [&](const std::function<void(graphics::PaintContext&)>& paint, int times = 1) {
        rasterbackend::RasterPainter painter;
        std::vector<rasterbackend::Pixel> pixels(100 * 100);
        Canvas canvas({100, 100});
        paint(canvas.context);
        const rasterbackend::PixelRect window{0, 0, 100, 100};
        for (int time = 0; time < times; ++time) painter.paint({pixels.data(), 100, {100, 100}}, canvas.list, 1, {&window, 1});
        return painter.pictureBytes();
    };
    const auto isAbout = [](std::size_t bytes) { return testing::AllOf(testing::Ge(bytes), testing::Le(bytes + 500)); };
    const auto shared = bitmap(60, 50, 0xFF112233);

    EXPECT_EQ(bytesOf([](auto&) {}), 0u);
    EXPECT_THAT(bytesOf([&](auto& context) { context.bitmap({}, {{0, 0}, {60, 50}}, shared); }, 3), isAbout(2 * 4 * 60 * 50));
    EXPECT_THAT(bytesOf([&](auto& context) { context.bitmap({}, {{0, 0}, {30, 20}}, shared); }), isAbout(4 * (60 * 50 + 30 * 20)));
    EXPECT_THAT(bytesOf([&](auto& context) { context.image({}, {{0, 0}, {40, 20}}, image(halfRed())); }), isAbout(4 * 40 * 20));
    EXPECT_THAT(bytesOf([&](auto& context) {
                    context.image({}, {{0, 0}, {40, 20}}, image(halfRed(), RenderingMode::tinted), red);
                }),
                testing::AllOf(testing::Ge(4u * 40 * 20 + 20 * 16), testing::Le(4u * 40 * 20 + 2500)));
}

TEST_F(ImagePainting, SurvivesABitmapWithoutItsPixels) {
    auto broken = bitmap(4, 4, 0xFF000000);
    broken->pixels.resize(3);
    Canvas canvas({10, 10});
    canvas.context.bitmap({}, {{0, 0}, {10, 10}}, broken);
    for (const auto& [width, height] : {std::pair{0, 0}, {0, 5}, {5, 0}, {-2, -2}}) {
        // Its memory is there, but nothing counts.
        auto nothing = bitmap(5, 5, 0xFF000000);
        nothing->width = width;
        nothing->height = height;
        nothing->pixels.resize(std::size_t(width * height));
        canvas.context.bitmap({}, {{0, 0}, {10, 10}}, nothing);
    }

    EXPECT_EQ(totalInk(canvas.image()), 0);
}

TEST_F(ImagePainting, RemembersAPictureWhileALongClipPlays) {
    const auto file = redSquare();
    Canvas canvas({10, 10});
    canvas.context.image({}, {{0, 0}, {10, 10}}, image(file));
    canvas.image();
    std::filesystem::remove(file);

    for (int frame = 0; frame < 20; ++frame) {
        Canvas clip({1000, 1000});
        clip.context.bitmap({}, {{0, 0}, {1000, 1000}}, bitmap(1000, 1000, 0xFF000000u + unsigned(frame)));
        ASSERT_EQ(clip.pixel(500, 500), unsigned(frame));
    }

    EXPECT_EQ(canvas.pixel(5, 5), 0xFF0000u);
}

TEST_F(ImagePainting, WritesPicturesPixelForPixel) {
    Canvas canvas({5.5, 3}, 2);
    canvas.context.fillRectangle({}, {{0, 0}, {2, 2}}, red);
    ASSERT_TRUE(rasterbackend::writePng(canvas.image(), path("out.png")));

    EXPECT_TRUE(isSame(rasterbackend::readPicture(path("out.png"), 11, 6), canvas.image()));
}

TEST_F(ImagePainting, LeavesNoFileWhereAPictureCannotBeWritten) {
    Canvas canvas({5, 3});

    EXPECT_FALSE(rasterbackend::writePng(canvas.image(), path("missing folder/out.png")));
    EXPECT_FALSE(rasterbackend::writePng({}, path("null.png")));
    EXPECT_FALSE(std::filesystem::exists(path("null.png")));
}
