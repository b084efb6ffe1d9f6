#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Backends/Headless/ImageSizeReader.hpp"
#include "Platform/Graphics/PictureHeader.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::headless {
namespace {

using geometry::Size;

TEST(SvgSize, IsTheRootElementsWidthAndHeight) {
    EXPECT_EQ(svgSize(R"(<svg width="24" height="32.5" viewBox="0 0 1 1"/>)"), (Size{24, 32.5}));
    EXPECT_EQ(svgSize("<svg\n\theight = '10px'\n\twidth=' 20px ' ></svg>"), (Size{20, 10}));
    EXPECT_EQ(svgSize("<svg id=''width=\"2'\" width='24'height='32'>"), (Size{24, 32}));
}

TEST(SvgSize, IsTheViewBoxsWhereThereIsNoOther) {
    EXPECT_EQ(svgSize(R"(<svg viewBox="0 0 40 30">)"), (Size{40, 30}));
    EXPECT_EQ(svgSize(R"(<svg viewBox="-5,-5,+40,3e1">)"), (Size{40, 30}));
    EXPECT_EQ(svgSize(R"(<svg width="100%" height="100%" viewBox="0 0 40 30">)"), (Size{40, 30}));
}

TEST(SvgSize, FollowsTheViewBoxsShapeWhereOneLengthIsMissing) {
    EXPECT_EQ(svgSize(R"(<svg width="80" viewBox="0 0 40 30">)"), (Size{80, 60}));
    EXPECT_EQ(svgSize(R"(<svg height="60" viewBox="0 0 40 30">)"), (Size{80, 60}));
}

TEST(SvgSize, KnowsUnits) {
    EXPECT_EQ(svgSize(R"(<svg width="72pt" height="1in"/>)"), (Size{96, 96}));
    EXPECT_EQ(svgSize(R"(<svg width="25.4mm" height="2.54cm"/>)"), (Size{96, 96}));
    EXPECT_EQ(svgSize(R"(<svg width="6pc" height="96"/>)"), (Size{96, 96}));
}

TEST(SvgSize, SkipsWhatStandsBeforeTheRootElement) {
    EXPECT_EQ(svgSize("\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!-- <svg width='1' height='1'/> -->\n"
                      "<!DOCTYPE svg [ <!ENTITY w \"9>\"> ]>\n<svg width=\"2\" height=\"3\"/>"),
              (Size{2, 3}));
    EXPECT_EQ(svgSize(R"(<!DOCTYPE svg PUBLIC "a" "b"><s:svg xmlns:s="x" width="2" height="3"/>)"), (Size{2, 3}));
}

TEST(SvgSize, LooksAtTheRootElementOnly) {
    EXPECT_EQ(svgSize(R"(<svg><rect width="2" height="3"/></svg>)"), std::nullopt);
    EXPECT_EQ(svgSize(R"(<html width="2" height="3"><svg width="2" height="3"/></html>)"), std::nullopt);
}

TEST(SvgSize, IsAbsentWhereItMakesNoSense) {
    for (const std::string_view contents : {"",
                                            "   ",
                                            "svg",
                                            "<svg",
                                            "<svg>",
                                            "<!-- <svg width='1' height='1'>",
                                            "<!DOCTYPE svg [",
                                            "<svg width='0' height='5'>",
                                            "<svg width='-1' height='5'>",
                                            "<svg width='5'>",
                                            "<svg width='2em' height='2em'>",
                                            "<svg width='nan' height='inf'>",
                                            "<svg width=2 height=3>",
                                            "<svg width=242 height=353>",
                                            "<svg width='2",
                                            "<svg viewBox='0 0 40'>",
                                            "<svg width=",
                                            "<svg viewBox='0 0 0 30'>",
                                            "<svg viewBox='0 0 40 0'>",
                                            "<svg viewBox='0 0 -40 -30'>",
                                            "<svg viewBox='a b c d'>",
                                            "<?xml <svg width='2' height='3'/>",
                                            "<!-- --->- <svg width='2' height='3'/>",
                                            "<!DOCTYPE svg <svg width='2' height='3'/",
                                            "<svgs width='2' height='3'/>",
                                            "<svg width '2' height '3'/>",
                                            "<svg width='px' height='px'/>"}) {
        EXPECT_EQ(svgSize(contents), std::nullopt) << contents;
    }
}

std::string pngHeader(std::string widthAndHeight) { return std::string("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16) + widthAndHeight; }

TEST(PngSize, IsTheHeaders) { EXPECT_EQ(pngSize(pngHeader({"\0\0\1\2\0\0\0\xFF", 8})), (Size{258, 255})); }

TEST(PngSize, MayBeAsLargeAsTheFormatAllows) {
    EXPECT_EQ(pngSize(pngHeader({"\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF", 8})), (Size{2147483647, 2147483647}));
}

TEST(PngSize, IsAbsentForOtherFiles) {
    EXPECT_EQ(pngSize(""), std::nullopt);
    EXPECT_EQ(pngSize(pngHeader({"\0\0\1\2\0\0\0", 7})), std::nullopt);
    EXPECT_EQ(pngSize(pngHeader({"\0\0\0\0\0\0\0\1", 8})), std::nullopt);
    EXPECT_EQ(pngSize(pngHeader({"\xFF\0\0\0\0\0\0\1", 8})), std::nullopt);
    EXPECT_EQ(pngSize(pngHeader({"\0\0\0\1\0\0\0\0", 8})), std::nullopt);
    EXPECT_EQ(pngSize(pngHeader({"\0\0\0\1\x80\0\0\0", 8})), std::nullopt);
    EXPECT_EQ(pngSize("<svg width='2' height='3'/> and some more"), std::nullopt);
    std::string wrongSignature = pngHeader({"\0\0\0\1\0\0\0\1", 8}), wrongChunk = wrongSignature;
    wrongSignature[7] = '\r';
    wrongChunk[15] = 'X';
    EXPECT_EQ(pngSize(wrongSignature), std::nullopt);
    EXPECT_EQ(pngSize(wrongChunk), std::nullopt);
}

TEST(ImageSizeReader, ReadsFiles) {
    const tests::TemporaryFolder folder;
    const auto file = folder.write("picture.svg", "<svg width='7' height='8'/>");

    EXPECT_EQ(ImageSizeReader().naturalSize(file), (Size{7, 8}));

    std::filesystem::remove(file);
    EXPECT_EQ(ImageSizeReader().naturalSize(file), std::nullopt);
    EXPECT_EQ(ImageSizeReader().naturalSize(folder.path()), std::nullopt);
}

TEST(ImageSizeReader, LooksForTheRootElementInTheFirstMebibyte) {
    const tests::TemporaryFolder folder;
    const std::string picture = "<svg width='7' height='8'";
    const std::string room((1 << 20) - picture.size() - std::string_view("<!---->").size(), ' ');

    EXPECT_EQ(ImageSizeReader().naturalSize(folder.write("near.svg", "<!--" + room + "-->" + picture)), (Size{7, 8}));
    EXPECT_EQ(ImageSizeReader().naturalSize(folder.write("far.svg", "<!--" + room + " -->" + picture)), std::nullopt);
}

TEST(ImageSizeReader, ReadsPngFiles) {
    const tests::TemporaryFolder folder;

    EXPECT_EQ(ImageSizeReader().naturalSize(folder.write("a.png", pngHeader({"\0\0\0\2\0\0\0\3", 8}))), (Size{2, 3}));
}

TEST(ImageSizeReader, ReadsPicturesThatTheBuildHasMade) {
    const tests::TemporaryFolder folder;
    const graphics::PictureHeader header{{7.5, 8}, {{8, 8, 36, 4}}};

    EXPECT_EQ(ImageSizeReader().naturalSize(folder.write("whole.picture", header.bytes() + "four")), (Size{7.5, 8}));
    EXPECT_EQ(ImageSizeReader().naturalSize(folder.write("cut off.picture", header.bytes() + "no")), std::nullopt);
}

RC_GTEST_PROP(SvgSizeInvariants, SurvivesWhateverItIsGivenAndNeverAnswersWithASizeOfNothing, ()) {
    std::string contents = "<svg";
    for (const auto& piece : *rc::gen::container<std::vector<std::string>>(
             rc::gen::element<std::string>(" ", "width", "height", "viewBox", "=", "\"", "'", "1", "-2", "e9999", ">", "/", "<",
                                           "<!--", "?>", "[", "]", ",", "px"))) {
        contents += piece;
    }
    const auto size = svgSize(contents);

    if (size) RC_ASSERT(size->width > 0 && size->height > 0);
}

} // namespace
} // namespace proupsells::headless
