// The pictures that the build makes, against the vector files that it makes them of.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "Backends/Raster/PictureFile.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"
#include "Tools/MakePictures/VectorFile.hpp"

namespace proupsells::makepictures {
namespace {

using geometry::Size;
using rasterbackend::naturalPictureSize;

constexpr const char* square = "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='6' viewBox='0 0 10 6'>"
                               "<rect width='5' height='6' fill='#F00'/></svg>";

// What a file shows at a size.
QImage shown(const std::filesystem::path& file, QSize size) {
    const rasterbackend::Picture picture = rasterbackend::readPicture(file, size.width(), size.height());
    QImage image(picture.width(), picture.height(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(picture.row(y), picture.width(), reinterpret_cast<rasterbackend::Pixel*>(image.scanLine(y)));
    return image;
}

QSize pixels(Size size, int scale) { return {int(std::lround(size.width * scale)), int(std::lround(size.height * scale))}; }

void expectMadeOf(const std::filesystem::path& vectors, const std::filesystem::path& pictures) {
    for (const auto& entry : std::filesystem::directory_iterator(vectors)) {
        const std::filesystem::path vector = entry.path(), picture = pictures / vector.stem().concat(".picture");
        const auto size = vectorSize(vector);
        ASSERT_TRUE(size) << vector;
        EXPECT_EQ(naturalPictureSize(picture), size) << picture;
        for (const int scale : {1, 2, 3})
            EXPECT_EQ(shown(picture, pixels(*size, scale)), renderVector(vector, pixels(*size, scale))) << picture << scale;
    }
}

// In levels of 255.
int largestDifference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int index = 0; index < a.width() * 4; ++index)
            largest = std::max(largest, std::abs(a.constScanLine(y)[index] - b.constScanLine(y)[index]));
    return largest;
}

class MakePictures : public testing::Test {
protected:
    // Returns whether the tool made a picture.
    bool make(const std::filesystem::path& in, const std::string& sizes = {}) const {
        const std::string command =
            PROUPSELLS_MAKE_PICTURES " '" + in.string() + "' '" + out.string() + "' " + sizes + " 2> /dev/null";
        return std::system(command.c_str()) == 0;
    }

    tests::TemporaryFolder folder;
    std::filesystem::path out = folder.path() / "out.picture";
};

TEST(MadePictures, AreTheVectorFilesPixelForPixel) {
    expectMadeOf("ProUpsells/Resources/Images", foundation::requiredResource("ProUpsells") / "Images");
    expectMadeOf("Platform/VelaUIKit/Resources/Images", foundation::requiredResource("VelaUIKit") / "Images");
}

TEST(MadePictures, AreNearTheVectorFilesAtFractionalScales) {
    const auto made = foundation::requiredResource("VelaUIKit") / "Images/diamond24.picture";
    const std::filesystem::path vectors = "Platform/VelaUIKit/Resources/Images/diamond24.svg";
    const auto difference = [&](QSize size) { return largestDifference(shown(made, size), renderVector(vectors, size)); };

    EXPECT_LE(difference({36, 36}), 4);
    EXPECT_LE(difference({30, 30}), 26);
}

TEST(MadePictures, HaveOneCloseButtonForAllScreens) {
    const auto store = foundation::requiredResource("ProUpsells") / "Images";
    const auto designSystem = foundation::requiredResource("VelaUIKit") / "Images";
    for (const std::string appearance : {"", "~dark"}) {
        const QImage paywall = shown(designSystem / ("inAppMessageCloseIcon" + appearance + ".picture"), {52, 52});
        const QImage comparison = shown(designSystem / ("xmark" + appearance + ".picture"), {52, 52});
        // With a margin, because its button is larger.
        const QImage storePage = shown(store / ("CloseStorePageButton" + appearance + ".picture"), {60, 60});

        EXPECT_EQ(paywall, comparison) << appearance;
        EXPECT_LE(largestDifference(paywall, storePage.copy(4, 4, 52, 52)), 2) << appearance;
    }
}

TEST(MadePictures, LieBesideEverythingElseThatTheLibraryBrings) {
    const auto made = foundation::requiredResource("ProUpsells");

    for (const auto& entry : std::filesystem::directory_iterator("ProUpsells/Resources/Clips"))
        EXPECT_TRUE(std::filesystem::is_regular_file(made / "Clips" / entry.path().filename())) << entry.path();
}

TEST_F(MakePictures, MakesTheSameBytesEachTime) {
    const auto in = folder.write("square.svg", square);
    ASSERT_TRUE(make(in));
    const std::string first = tests::bytesOf(out);
    ASSERT_TRUE(make(in));

    EXPECT_FALSE(first.empty());
    EXPECT_EQ(tests::bytesOf(out), first);
}

TEST_F(MakePictures, DrawsTheFurtherSizesToo) {
    const auto in = folder.write("square.svg", square);
    ASSERT_TRUE(make(in, "7x7 10.5x3"));

    EXPECT_EQ(naturalPictureSize(out), (Size{10, 6}));
    EXPECT_EQ(shown(out, {21, 21}), renderVector(in, {21, 21}));
    EXPECT_EQ(shown(out, {32, 9}), renderVector(in, {32, 9}));
}

TEST_F(MakePictures, RefusesWhatIsNoPicture) {
    EXPECT_FALSE(make(folder.path() / "missing.svg"));
    EXPECT_FALSE(make(folder.write("text.svg", "no picture")));
    EXPECT_FALSE(make(folder.write("square.svg", square), "7by7"));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(MakePictures, RefusesTextThatOtherMachinesWouldDrawDifferently) {
    EXPECT_FALSE(make(
        folder.write("text.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='6'><text y='5'>Pro</text></svg>")));
    EXPECT_FALSE(std::filesystem::exists(out));
}

} // namespace
} // namespace proupsells::makepictures
