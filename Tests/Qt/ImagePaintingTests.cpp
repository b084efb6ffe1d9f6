#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>

#include "Backends/Qt/PngFile.hpp"
#include "Backends/Qt/QtImageDecoder.hpp"
#include "Tests/Qt/Canvas.hpp"
#include "Tests/Support/LogRecorder.hpp"

using namespace proupsells;

using geometry::Size;
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
    std::filesystem::path path(const std::string& name) const {
        return std::filesystem::path(m_folder.path().toStdString()) / name;
    }

    std::filesystem::path writeSvg(const std::string& name, const std::string& attributes, const std::string& body) const {
        std::ofstream(path(name)) << "<svg xmlns='http://www.w3.org/2000/svg' " << attributes << ">" << body << "</svg>";
        return path(name);
    }

    graphics::ImageRef image(const std::filesystem::path& file, RenderingMode mode = RenderingMode::original) const {
        auto image = std::make_shared<graphics::Image>();
        image->name = file.stem().string();
        image->file = file;
        image->renderingMode = mode;
        return image;
    }

    std::optional<Size> naturalSize(const std::filesystem::path& file) { return qtbackend::QtImageDecoder().naturalSize(file); }

    std::filesystem::path redSquare() const {
        return writeSvg("square.svg", "width='10' height='10' viewBox='0 0 10 10'", "<rect width='10' height='10' fill='#F00'/>");
    }
    // Red left half, transparent right half.
    std::filesystem::path halfRed() const {
        return writeSvg("half.svg", "width='10' height='10' viewBox='0 0 10 10'", "<rect width='5' height='10' fill='#F00'/>");
    }

private:
    QTemporaryDir m_folder;
};

std::shared_ptr<graphics::Bitmap> bitmap(int width, int height, std::uint32_t pixel) {
    auto bitmap = std::make_shared<graphics::Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->pixels.assign(std::size_t(width * height), pixel);
    return bitmap;
}

} // namespace

TEST_F(ImagePainting, ReadsTheNaturalSizeOfAVectorFile) {
    EXPECT_EQ(naturalSize(writeSvg("a.svg", "width='208' height='26'", "")), (Size{208, 26}));
    EXPECT_EQ(naturalSize(writeSvg("b.svg", "width='24.5px' height='12pt'", "")), (Size{24.5, 12}));
    EXPECT_EQ(naturalSize(writeSvg("c.svg", "viewBox='0 0 30 40'", "")), (Size{30, 40}));
    EXPECT_EQ(naturalSize(writeSvg("d.svg", "width='100%' height='100%' viewBox='-5,-5,30,40'", "")), (Size{30, 40}));
}

TEST_F(ImagePainting, ReadsTheNaturalSizeOfAPictureOfPixels) {
    QImage pixels(30, 20, QImage::Format_RGB32);
    pixels.fill(Qt::red);
    ASSERT_TRUE(qtbackend::writePng(pixels, path("pixels.png")));
    ASSERT_TRUE(pixels.save(QString::fromStdString(path("pixels.jpg").string())));

    EXPECT_EQ(naturalSize(path("pixels.png")), (Size{30, 20}));
    EXPECT_EQ(naturalSize(path("pixels.jpg")), (Size{30, 20}));
}

TEST_F(ImagePainting, FindsNoSizeInWhatIsNoPicture) {
    std::ofstream(path("broken.svg")) << "<svg width='1'";
    std::ofstream(path("text.svg")) << "no picture";
    std::ofstream(path("empty.png"));

    for (const char* name : {"broken.svg", "text.svg", "empty.png", "missing.svg", "missing.png"})
        EXPECT_EQ(naturalSize(path(name)), std::nullopt) << name;
    EXPECT_EQ(naturalSize(writeSvg("sizeless.svg", "", "")), std::nullopt);
}

TEST_F(ImagePainting, StretchesAVectorOverItsFrameSharply) {
    Canvas canvas({40, 40}, 2);
    canvas.context.image({}, {{5, 10}, {20, 15}}, image(redSquare()));

    const QImage picture = canvas.image();
    for (const QPoint inside : {QPoint(10, 20), QPoint(49, 49)}) EXPECT_EQ(picture.pixel(inside) & 0xFFFFFF, 0xFF0000u);
    for (const QPoint outside : {QPoint(9, 20), QPoint(50, 49), QPoint(10, 19), QPoint(49, 50)})
        EXPECT_EQ(picture.pixel(outside) & 0xFFFFFF, 0xFFFFFFu);
}

TEST_F(ImagePainting, PutsAFrameBetweenPixelsOntoThem) {
    Canvas canvas({40, 40}, 1.5);
    canvas.context.image({}, {{5.2, 5.2}, {20, 20}}, image(redSquare()));

    const QImage picture = canvas.image();
    for (int x = 0; x < picture.width(); ++x) {
        const QRgb pixel = picture.pixel(x, 20) & 0xFFFFFF;
        EXPECT_TRUE(pixel == 0xFF0000u || pixel == 0xFFFFFFu) << x;
    }
    EXPECT_EQ(picture.pixel(8, 8) & 0xFFFFFF, 0xFF0000u);
    EXPECT_EQ(picture.pixel(37, 37) & 0xFFFFFF, 0xFF0000u);
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
    both->darkFile =
        writeSvg("dark.svg", "width='10' height='10' viewBox='0 0 10 10'", "<rect width='10' height='10' fill='#00F'/>");
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

TEST_F(ImagePainting, ReportsAPictureThatCannotBeReadOnceAndPaintsNothing) {
    tests::LogRecorder log;
    Canvas canvas({40, 40});
    canvas.context.image({}, {{0, 0}, {10, 10}}, image(path("missing.svg")));
    canvas.context.image({}, {{0, 0}, {20, 20}}, image(path("missing.svg")));

    EXPECT_EQ(totalInk(canvas.image()), 0);
    EXPECT_EQ(totalInk(canvas.image()), 0);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("missing.svg")));
}

TEST_F(ImagePainting, PaintsPicturesOfPixelsScaled) {
    QImage pixels(2, 2, QImage::Format_RGB32);
    pixels.fill(qRgb(0, 0, 255));
    ASSERT_TRUE(qtbackend::writePng(pixels, path("blue.png")));
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

TEST_F(ImagePainting, SurvivesABitmapWithoutItsPixels) {
    auto broken = bitmap(4, 4, 0xFF000000);
    broken->pixels.resize(3);
    Canvas canvas({10, 10});
    canvas.context.bitmap({}, {{0, 0}, {10, 10}}, broken);
    canvas.context.bitmap({}, {{0, 0}, {10, 10}}, bitmap(0, 0, 0));

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
    ASSERT_TRUE(qtbackend::writePng(canvas.image(), path("out.png")));

    const QImage read(QString::fromStdString(path("out.png").string()));
    EXPECT_EQ(read.size(), QSize(11, 6));
    EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), canvas.image());
}

TEST_F(ImagePainting, LeavesNoFileWhereAPictureCannotBeWritten) {
    Canvas canvas({5, 3});

    EXPECT_FALSE(qtbackend::writePng(canvas.image(), path("missing folder/out.png")));
    EXPECT_FALSE(qtbackend::writePng({}, path("null.png")));
    EXPECT_FALSE(std::filesystem::exists(path("null.png")));
}
