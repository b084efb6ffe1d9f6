#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/ImageSizeReader.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Platform/Host/NamedImage.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/System/PathText.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::host {
namespace {

using geometry::Size;
using graphics::ColorScheme;

std::string pictureOf(Size size) { return graphics::PictureHeader{size, {{1, 1, 36, 1}}}.bytes() + "?"; }

class NamedImage : public testing::Test {
protected:
    tests::TemporaryFolder folder;
    foundation::Bundle bundle{folder.path()};
    Installation installation{{.imageDecoder = std::make_shared<headless::ImageSizeReader>()}};
};

TEST_F(NamedImage, IsThePictureThatTheBuildHasMade) {
    const auto file = folder.write("Images/logo.wide.picture", pictureOf({20, 10.5}));

    const graphics::ImageRef image = namedImage("logo.wide", bundle);

    EXPECT_EQ(image->name, "logo.wide");
    EXPECT_EQ(image->file, file);
    EXPECT_EQ(image->size, (Size{20, 10.5}));
    EXPECT_EQ(image->darkFile, std::nullopt);
}

TEST_F(NamedImage, IsTheVectorFileWhereThereIsNoSuchPicture) {
    const auto file = folder.write("logo.svg", "<svg width='7' height='8'/>");

    EXPECT_EQ(namedImage("logo", bundle)->file, file);
    EXPECT_EQ(namedImage("logo", bundle)->size, (Size{7, 8}));
}

TEST_F(NamedImage, PrefersThePictureToTheVectorFile) {
    folder.write("logo.svg", "<svg width='7' height='8'/>");
    const auto file = folder.write("logo.picture", pictureOf({20, 10}));

    EXPECT_EQ(namedImage("logo", bundle)->file, file);
}

TEST_F(NamedImage, HasAnotherPictureInTheDarkWhereThereIsOne) {
    const auto light = folder.write("logo.picture", pictureOf({20, 10}));
    const auto dark = folder.write("logo~dark.picture", pictureOf({20, 10}));

    const graphics::ImageRef image = namedImage("logo", bundle);

    EXPECT_EQ(image->fileFor(ColorScheme::light), light);
    EXPECT_EQ(image->fileFor(ColorScheme::dark), dark);
}

TEST_F(NamedImage, IsReadOnce) {
    folder.write("logo.picture", pictureOf({20, 10}));
    const graphics::ImageRef image = namedImage("logo", bundle);

    EXPECT_EQ(namedImage("logo", bundle), image);
}

TEST_F(NamedImage, StopsTheProgramWhereItIsMissingOrBroken) {
    folder.write("broken.picture", pictureOf({20, 10}).substr(0, 30));

    EXPECT_DEATH(namedImage("logo", bundle), "There is no image \"logo\" in " + system::textOf(folder.path()));
    EXPECT_DEATH(namedImage("broken", bundle), "There is no image \"broken\" in " + system::textOf(folder.path()));
}

} // namespace
} // namespace proupsells::host
