// Pictures that are painted in the place of a bundle's own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/ImageSizeReader.hpp"
#include "Platform/Graphics/PaintContext.hpp"
#include "Platform/Host/NamedImage.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/System/PathText.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::host {
namespace {

using geometry::Size;
using graphics::ColorScheme;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class StandInTest : public testing::Test {
protected:
    ~StandInTest() override { setStandIns({}); }

    // What is painted for the image "emblem".
    const graphics::Image& painted() {
        list.clear();
        graphics::PaintContext(list).image({}, {{}, {20, 10}}, namedImage("emblem", bundle));
        return *list.images.at(0);
    }

    tests::LogRecorder log;
    tests::TemporaryFolder folder;
    foundation::Bundle bundle{folder.path()};
    Installation installation{{.imageDecoder = std::make_shared<headless::ImageSizeReader>()}};
    std::filesystem::path own = folder.write("emblem.svg", "<svg width='20' height='10'/>");
    std::filesystem::path other = folder.write("other/brand.svg", "<svg width='60' height='30'/>");
    graphics::DisplayList list;
};

TEST_F(StandInTest, IsPaintedInThePlaceOfTheImageAndAtItsSize) {
    setStandIns({{"emblem", {other, {}}}});

    EXPECT_EQ(painted().file, other);
    EXPECT_EQ(painted().size, (Size{20, 10}));
    EXPECT_EQ(painted().name, "emblem");
    EXPECT_EQ(list.commands.at(0).frame, (geometry::Rect{{0, 0}, {20, 10}}));
}

TEST_F(StandInTest, ReachesAnImageThatWasReadBefore) {
    ASSERT_EQ(painted().file, own);

    setStandIns({{"emblem", {other, {}}}});

    EXPECT_EQ(painted().file, other);
}

TEST_F(StandInTest, LeavesWithTheNextSetting) {
    setStandIns({{"emblem", {other, {}}}});
    ASSERT_EQ(painted().file, other);

    setStandIns({});

    EXPECT_EQ(painted().file, own);
}

TEST_F(StandInTest, MayHaveADarkPicture) {
    const auto dark = folder.write("other/brand-dark.svg", "<svg width='60' height='30'/>");

    setStandIns({{"emblem", {other, dark}}});

    EXPECT_EQ(painted().fileFor(ColorScheme::light), other);
    EXPECT_EQ(painted().fileFor(ColorScheme::dark), dark);
}

TEST_F(StandInTest, ShowsItsOnePictureInTheDarkToo) {
    folder.write("emblem~dark.svg", "<svg width='20' height='10'/>");

    setStandIns({{"emblem", {other, {}}}});

    EXPECT_EQ(painted().fileFor(ColorScheme::dark), other);
}

TEST_F(StandInTest, KeepsATintedImageTinted) {
    setStandIns({{"emblem", {other, {}}}});

    const auto image = namedImage("emblem", bundle, graphics::RenderingMode::tinted);

    EXPECT_EQ(image->standIn->renderingMode, graphics::RenderingMode::tinted);
}

TEST_F(StandInTest, IsNotTakenFromAFileThatIsMissingAndSaysSoOnce) {
    setStandIns({{"emblem", {folder.path() / "none.svg", {}}}});

    EXPECT_EQ(painted().file, own);
    namedImage("emblem", bundle, graphics::RenderingMode::tinted);
    EXPECT_THAT(log.messages(), ElementsAre("The picture " + proupsells::system::textOf(folder.path() / "none.svg") +
                                            " cannot be read; \"emblem\" stays as it is"));
}

TEST_F(StandInTest, IsNotTakenWithoutTheDarkPictureThatWasAskedFor) {
    setStandIns({{"emblem", {other, folder.path() / "none.svg"}}});

    EXPECT_EQ(painted().file, own);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("none.svg cannot be read")));
}

TEST_F(StandInTest, IsNotStretched) {
    const auto square = folder.write("other/square.svg", "<svg width='60' height='60'/>");

    setStandIns({{"emblem", {square, {}}}});

    EXPECT_EQ(painted().file, own);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("is 60 x 60, which is not the shape of 20 x 10")));
}

TEST_F(StandInTest, IsNotSpoiltByAnotherBundlesImageOfTheSameName) {
    const tests::TemporaryFolder elsewhere;
    folder.write("crest.svg", "<svg width='20' height='10'/>");
    elsewhere.write("crest.svg", "<svg width='5' height='50'/>");
    const auto slim = namedImage("crest", foundation::Bundle(elsewhere.path()));

    setStandIns({{"crest", {other, {}}}});

    EXPECT_EQ(namedImage("crest", bundle)->standIn->file, other);
    EXPECT_EQ(slim->standIn, nullptr);
}

TEST_F(StandInTest, MayMissTheShapeByARoundedPixel) {
    const auto rounded = folder.write("other/rounded.svg", "<svg width='205' height='102'/>");

    setStandIns({{"emblem", {rounded, {}}}});

    EXPECT_EQ(painted().file, rounded);
    EXPECT_THAT(log.messages(), IsEmpty());
}

} // namespace
} // namespace proupsells::host
