#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/Graphics/Typefaces.hpp"
#include "Tests/Raster/Shaping.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using rasterbackend::FontSources;
using rasterbackend::RasterTextShaper;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::faceOf;
using tests::firstShape;
using tests::shapedBy;
using tests::ShapedRef;
using tests::widthOf;

namespace {

const std::filesystem::path testFonts = PROUPSELLS_TEST_FONTS;

// A machine on which fontconfig knows no folder with fonts.
class BareMachine {
public:
    FontSources sources() const { return {rasterbackend::shippedFaceFolder(), m_configuration}; }
    // The module's faces, but nothing in these files.
    FontSources sourcesWithEmpty(std::initializer_list<const char*> files) const {
        const std::filesystem::path faces = m_folder.path() / "faces";
        std::filesystem::copy(rasterbackend::shippedFaceFolder(), faces);
        for (const char* file : files) std::filesystem::resize_file(faces / file, 0);
        return {faces, m_configuration};
    }
    FontSources sourcesWithoutShippedFaces() const { return {m_folder.path() / "none", m_configuration}; }

private:
    tests::TemporaryFolder m_folder;
    std::filesystem::path m_configuration = m_folder.write("fonts.conf", "<fontconfig></fontconfig>");
};

} // namespace

TEST(FontCatalog, FindsTheModulesOwnFacesOnABareMachine) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper bare(machine.sources()), usual;

    for (const auto* face :
         {faceOf("Inter", 400), faceOf("Inter", 500), faceOf("Inter", 600), faceOf("Inter", 700), faceOf("Inter Display", 400),
          faceOf("Inter Display", 500), faceOf("Inter Display", 700), faceOf("Sora", 600), faceOf("Sora", 700)}) {
        SCOPED_TRACE(face->name);
        EXPECT_EQ(widthOf(*shapedBy(bare, "Start your free trial", face)),
                  widthOf(*shapedBy(usual, "Start your free trial", face)));
    }
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST(FontCatalog, TakesTheNearestShippedWeightOnABareMachine) {
    const BareMachine machine;
    RasterTextShaper shaper(machine.sources());

    EXPECT_EQ(widthOf(*shapedBy(shaper, "Sora", faceOf("Sora", 400))), widthOf(*shapedBy(shaper, "Sora", faceOf("Sora", 600))));
}

TEST(FontCatalog, ShowsABoxForWhatNoFontOfABareMachineHasAndSaysSoOnce) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sources());

    const ShapedRef text = shapedBy(shaper, "漢字 日本語");

    EXPECT_EQ(firstShape(text).outline, firstShape(shapedBy(shaper, "\U000F0000")).outline);
    EXPECT_GT(text->clusters[0].advance, 0);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("No fonts are installed")));
}

TEST(FontCatalog, LeavesRoomForATextWithoutAnyFont) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sourcesWithoutShippedFaces());

    const ShapedRef text = shapedBy(shaper, "ab\nא 👍🏽", nullptr, 10);

    EXPECT_THAT(text->glyphs, IsEmpty());
    EXPECT_EQ(text->clusters.size(), 6u);
    EXPECT_EQ(widthOf(*text), 5 * 5);
    EXPECT_GT(text->metrics[0].ascent, 0);
    EXPECT_THAT(log.messages(), testing::Contains(HasSubstr("\"Inter\" is not installed")));
}

TEST(FontCatalog, SaysWhichFamilyStandsInForAMissingOne) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sources());

    const double stoodIn = widthOf(*shapedBy(shaper, "text", faceOf("No Such Family", 700)));

    EXPECT_EQ(stoodIn, widthOf(*shapedBy(shaper, "text", faceOf("Inter", 700))));
    EXPECT_THAT(log.messages(), ElementsAre("The font family \"No Such Family\" is not installed; \"Inter\" stands in for it"));
}

TEST(FontCatalog, AsksARegisteredFaceFirst) {
    RasterTextShaper shaper;
    shaper.registerFace("Inter", 400, testFonts / "Weighty.ttf");

    EXPECT_NEAR(firstShape(shapedBy(shaper, "I", faceOf("Inter", 400))).outline.bounds().width(), 0.4, 1e-3);
    EXPECT_LT(firstShape(shapedBy(shaper, "I", faceOf("Inter", 500))).outline.bounds().width(), 0.2);
}

TEST(FontCatalog, TakesUpAFaceThatIsRegisteredLate) {
    RasterTextShaper shaper;
    const double before = widthOf(*shapedBy(shaper, "I", faceOf("Inter", 700)));

    shaper.registerFace("Inter", 700, testFonts / "Weighty.ttf");

    EXPECT_NE(widthOf(*shapedBy(shaper, "I", faceOf("Inter", 700))), before);
}

TEST(FontCatalog, TakesTheNextFaceWhereAShippedOneCannotBeRead) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper whole(machine.sources()), spoiled(machine.sourcesWithEmpty({"Inter-400.otf"}));

    for (const std::string text : {"text", "more"})
        EXPECT_EQ(widthOf(*shapedBy(spoiled, text, faceOf("Inter", 400))), widthOf(*shapedBy(whole, text, faceOf("Inter", 500))));
    EXPECT_GT(widthOf(*shapedBy(spoiled, "Ж", faceOf("Sora", 400))), 0);

    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("Inter-400.otf is no font")));
}

TEST(FontCatalog, ShowsAnotherFamilyWhereNoFaceOfOneCanBeRead) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper whole(machine.sources()), spoiled(machine.sourcesWithEmpty({"Sora-600.otf", "Sora-700.otf"}));

    EXPECT_EQ(widthOf(*shapedBy(spoiled, "text", faceOf("Sora", 700))), widthOf(*shapedBy(whole, "text", faceOf("Inter", 700))));

    EXPECT_THAT(log.messages(), testing::Contains(HasSubstr("Sora-700.otf is no font")));
    EXPECT_THAT(log.messages(), testing::Contains(HasSubstr("\"Inter\" stands in for it")));
}

TEST(FontCatalog, ReportsARegisteredFileThatIsNoFont) {
    tests::LogRecorder log;
    const tests::TemporaryFolder folder;
    RasterTextShaper shaper;
    const double before = widthOf(*shapedBy(shaper, "text"));

    shaper.registerFace("Inter", 400, folder.write("broken.otf", "OTTO and nothing more"));
    shaper.registerFace("Inter", 400, folder.path() / "missing.otf");
    shaper.registerFace("Inter", 400, folder.write("empty.otf", ""));

    EXPECT_EQ(widthOf(*shapedBy(shaper, "text")), before);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("broken.otf"), HasSubstr("missing.otf"), HasSubstr("empty.otf")));
}

TEST(FontCatalog, GivesAVariableFontTheWeightOfTheFace) {
    RasterTextShaper shaper;
    shaper.registerFace("Weighty", 100, testFonts / "Weighty.ttf");
    shaper.registerFace("Weighty", 500, testFonts / "Weighty.ttf");

    const ShapedRef thin = shapedBy(shaper, "I", faceOf("Weighty", 100)), medium = shapedBy(shaper, "I", faceOf("Weighty", 500));

    EXPECT_NEAR(firstShape(thin).outline.bounds().width(), 0.1, 1e-3);
    EXPECT_NEAR(widthOf(*thin), 20, 0.01);
    EXPECT_NEAR(firstShape(medium).outline.bounds().width(), 0.5, 1e-3);
    EXPECT_NEAR(widthOf(*medium), 60, 0.01);
}

TEST(FontCatalog, TakesLettersThatAFamilyLacksFromInterFirst) {
    RasterTextShaper shaper;

    for (const std::string text : {"Ω", "Ж", "Ə"}) {
        SCOPED_TRACE(text);
        const ShapedRef fallback = shapedBy(shaper, text, faceOf("Sora", 700));
        EXPECT_EQ(&firstShape(fallback), &firstShape(shapedBy(shaper, text, faceOf("Inter", 700))));
    }
    EXPECT_NE(&firstShape(shapedBy(shaper, "a", faceOf("Sora", 700))), &firstShape(shapedBy(shaper, "a", faceOf("Inter", 700))));
}

TEST(FontCatalog, NeverSplitsACharacterBetweenFonts) {
    RasterTextShaper shaper;

    // Sora has the letter, but neither the mark nor both in one.
    const ShapedRef text = shapedBy(shaper, "x\u0331x", faceOf("Sora", 700));

    EXPECT_EQ(text->glyphs[text->glyphStarts[0]].shape, &firstShape(shapedBy(shaper, "x", faceOf("Inter", 700))));
    EXPECT_EQ(text->glyphs[text->glyphStarts[1]].shape, &firstShape(shapedBy(shaper, "x", faceOf("Sora", 700))));
}

TEST(FontCatalog, KnowsALetterAndItsMarkInEverySpelling) {
    RasterTextShaper shaper;
    shaper.registerFace("Weighty", 400, testFonts / "Weighty.ttf");

    const ShapedRef apart = shapedBy(shaper, "I\u0300", faceOf("Weighty", 400));
    const ShapedRef joined = shapedBy(shaper, "\u1E98", faceOf("Sora", 700));

    EXPECT_EQ(&firstShape(apart), &firstShape(shapedBy(shaper, "\u00CC", faceOf("Weighty", 400))));
    EXPECT_EQ(&firstShape(joined), &firstShape(shapedBy(shaper, "w", faceOf("Sora", 700))));
}

TEST(FontCatalog, ColoursEmojiWhereThereAreColours) {
    RasterTextShaper shaper;
    shaper.registerFace("Layers", 400, testFonts / "Layers.ttf");

    EXPECT_FALSE(firstShape(shapedBy(shaper, "\U0001F600")).picture.isNull());
    EXPECT_FALSE(firstShape(shapedBy(shaper, "\U0001F600", faceOf("Sora", 700))).picture.isNull());
}

TEST(FontCatalog, ColoursASymbolWhereTheTextSaysSoOrItsFaceLacksIt) {
    RasterTextShaper shaper;
    shaper.registerFace("Layers", 400, testFonts / "Layers.ttf");
    const auto isColoured = [&](const std::string& text, const char* family) {
        return !firstShape(shapedBy(shaper, text, faceOf(family, 700))).picture.isNull();
    };

    // Inter has a plain arrow, Sora has none.
    EXPECT_FALSE(isColoured("\u2194", "Inter"));
    EXPECT_TRUE(isColoured("\u2194\uFE0F", "Inter"));
    EXPECT_FALSE(isColoured("\u2194\uFE0E", "Inter"));
    EXPECT_TRUE(isColoured("\u2194", "Sora"));
    EXPECT_FALSE(isColoured("\u2194\uFE0E", "Sora"));
}

TEST(FontCatalog, RatherColoursAPlainSymbolThanShowsABox) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sources());
    shaper.registerFace("Layers", 400, testFonts / "Layers.ttf");

    EXPECT_FALSE(firstShape(shapedBy(shaper, "\U0001F600\uFE0E")).picture.isNull());
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST(FontCatalog, LetsLightTextsBecomeLighterAndBoldOnesBolder) {
    const std::vector<rasterbackend::FaceFile> faces{{"Kit", 300, "light"}, {"Kit", 600, "semibold"}, {"Kit", 900, "black"}};
    const auto nearest = [&](int weight) { return rasterbackend::nearestFace(faces, "kit", weight)->path; };

    EXPECT_EQ(nearest(200), "light");
    EXPECT_EQ(nearest(400), "light");
    EXPECT_EQ(nearest(500), "light");
    EXPECT_EQ(nearest(550), "semibold");
    EXPECT_EQ(nearest(700), "black");
    EXPECT_EQ(rasterbackend::nearestFace(faces, "Other", 400), nullptr);
}

TEST(FontCatalog, SharesAFileAmongItsWeights) {
    RasterTextShaper shaper;

    // The extra bold one is the nearest to both.
    EXPECT_EQ(&firstShape(shapedBy(shaper, "a", faceOf("Sora", 900))), &firstShape(shapedBy(shaper, "a", faceOf("Sora", 850))));
}

TEST(FontCatalog, GivesALineTheUsualHeightWithoutAnyFont) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sourcesWithoutShippedFaces());

    const ShapedRef text = shapedBy(shaper, "a", nullptr, 100);

    EXPECT_NEAR(text->metrics[0].ascent, 97, 1e-6);
    EXPECT_NEAR(text->metrics[0].descent, 24, 1e-6);
}

TEST(FontCatalog, AsksAgainForWhatNoFontHadOnceAFaceIsRegistered) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sources());
    ASSERT_TRUE(firstShape(shapedBy(shaper, "\U0001F600")).picture.isNull());

    shaper.registerFace("Layers", 400, testFonts / "Layers.ttf");

    EXPECT_FALSE(firstShape(shapedBy(shaper, "\U0001F600")).picture.isNull());
}

// No font of a bare machine has the mark, which is a Tibetan one.
TEST(FontCatalog, ShowsALetterWithoutTheMarkThatNoFontHas) {
    tests::LogRecorder log;
    const BareMachine machine;
    RasterTextShaper shaper(machine.sources());

    EXPECT_EQ(&firstShape(shapedBy(shaper, "Ж\u0F39", faceOf("Sora", 700))),
              &firstShape(shapedBy(shaper, "Ж", faceOf("Inter", 700))));
    EXPECT_EQ(&firstShape(shapedBy(shaper, "x\u0F39", faceOf("Sora", 700))),
              &firstShape(shapedBy(shaper, "x", faceOf("Sora", 700))));
}

// --- Typefaces that are shown instead ---

class TypefacesTest : public testing::Test {
protected:
    ~TypefacesTest() override { graphics::Typefaces::setCurrent({}); }

    double heading() { return widthOf(*shapedBy(shaper, "IIII", faceOf("Sora", 700))); }

    tests::LogRecorder log;
    RasterTextShaper shaper;
    const double own = heading();
};

TEST_F(TypefacesTest, ShowTheirFamilyForAnother) {
    shaper.registerFace("Brand", 700, testFonts / "Weighty.ttf");
    const double brand = widthOf(*shapedBy(shaper, "IIII", faceOf("Brand", 700)));
    const double text = widthOf(*shapedBy(shaper, "IIII", faceOf("Inter", 700)));
    ASSERT_NE(brand, own);

    graphics::Typefaces::setCurrent({.families = {{"Sora", "Brand"}}});

    EXPECT_EQ(heading(), brand);
    EXPECT_EQ(widthOf(*shapedBy(shaper, "IIII", faceOf("Inter", 700))), text);
}

TEST_F(TypefacesTest, BringFilesThatLeaveWithThem) {
    graphics::Typefaces::setCurrent(
        {.families = {{"Sora", "Brand"}}, .files = {{.family = "Brand", .weight = 700, .path = testFonts / "Weighty.ttf"}}});
    EXPECT_NE(heading(), own);

    graphics::Typefaces::setCurrent({.families = {{"Sora", "Brand"}}});
    EXPECT_EQ(heading(), own);
    EXPECT_THAT(log.messages(), ElementsAre("The font family \"Brand\" is not installed; \"Sora\" stays"));
}

TEST_F(TypefacesTest, ShowTheirTextFamilyWhereNoFaceIsNamed) {
    const double before = widthOf(*shapedBy(shaper, "IIII"));

    graphics::Typefaces::setCurrent(
        {.families = {{"Inter", "Brand"}}, .files = {{.family = "Brand", .weight = 400, .path = testFonts / "Weighty.ttf"}}});

    EXPECT_NE(widthOf(*shapedBy(shaper, "IIII")), before);
}

TEST_F(TypefacesTest, LeaveTheFamilyOfABrokenFileAndSaySoOnce) {
    const tests::TemporaryFolder folder;

    graphics::Typefaces::setCurrent({.families = {{"Sora", "Brand"}},
                                     .files = {{.family = "Brand", .weight = 700, .path = folder.write("broken.otf", "OTTO")}}});

    EXPECT_EQ(heading(), own);
    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("broken.otf is no font")));
    EXPECT_EQ(log.records().at(0).function, "FontCatalog::followTypefaces");
}

TEST_F(TypefacesTest, AreAskedBeforeTheFacesThatAHostRegistered) {
    shaper.registerFace("Brand", 700, testFonts / "Layers.ttf");
    const std::vector<graphics::Typefaces::File> files{{.family = "Brand", .weight = 700, .path = testFonts / "Weighty.ttf"}};
    graphics::Typefaces::setCurrent({.families = {{"Sora", "Brand"}}, .files = files});
    const double withBoth = heading();
    RasterTextShaper other;

    EXPECT_EQ(withBoth, widthOf(*shapedBy(other, "IIII", faceOf("Sora", 700))));
}

TEST_F(TypefacesTest, LeaveTheFacesThatAHostRegistered) {
    shaper.registerFace("Own", 700, testFonts / "Weighty.ttf");
    const double registered = widthOf(*shapedBy(shaper, "IIII", faceOf("Own", 700)));
    const std::vector<graphics::Typefaces::File> files{{.family = "Brand", .weight = 700, .path = testFonts / "Layers.ttf"},
                                                       {.family = "Brand", .weight = 400, .path = testFonts / "Layers.ttf"}};

    for (int time = 0; time < 2; ++time) {
        graphics::Typefaces::setCurrent({.files = files});
        EXPECT_EQ(widthOf(*shapedBy(shaper, "IIII", faceOf("Own", 700))), registered);
        graphics::Typefaces::setCurrent({});
        EXPECT_EQ(widthOf(*shapedBy(shaper, "IIII", faceOf("Own", 700))), registered);
    }
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST_F(TypefacesTest, MayHaveWhatNoFontHadBefore) {
    const BareMachine machine;
    RasterTextShaper bare(machine.sources());
    ASSERT_TRUE(firstShape(shapedBy(bare, "\U0001F600")).picture.isNull());

    graphics::Typefaces::setCurrent({.files = {{.family = "Brand", .weight = 400, .path = testFonts / "Layers.ttf"}}});
    EXPECT_FALSE(firstShape(shapedBy(bare, "\U0001F600")).picture.isNull());

    graphics::Typefaces::setCurrent({});
    EXPECT_TRUE(firstShape(shapedBy(bare, "\U0001F600")).picture.isNull());
}
