#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Raster/SystemFonts.hpp"
#include "Tests/Raster/Shaping.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using rasterbackend::RasterTextShaper;
using rasterbackend::SystemFonts;
using testing::Field;
using testing::IsEmpty;

namespace {

const std::filesystem::path testFonts = PROUPSELLS_TEST_FONTS;

// A machine that has the tests' own fonts, and no others.
class SmallMachine {
public:
    explicit SmallMachine(const std::string& rules = "")
        : m_configuration(m_folder.write("fonts.conf", "<fontconfig><dir>" + testFonts.string() + "</dir><cachedir>" +
                                                           cache().string() + "</cachedir>" + rules + "</fontconfig>")) {}

    const std::filesystem::path& configuration() const { return m_configuration; }
    // fontconfig makes it when it looks at the fonts.
    std::filesystem::path cache() const { return m_folder.path() / "cache"; }

private:
    tests::TemporaryFolder m_folder;
    std::filesystem::path m_configuration;
};

} // namespace

TEST(SystemFonts, FindFamiliesByTheirName) {
    const SmallMachine machine;
    SystemFonts fonts(machine.configuration());

    EXPECT_FALSE(fonts.isEmpty());
    // By the name that was asked for.
    EXPECT_THAT(fonts.facesOf("layers"),
                testing::ElementsAre(testing::AllOf(Field(&rasterbackend::FaceFile::family, "layers"),
                                                    Field(&rasterbackend::FaceFile::path, testFonts / "Layers.ttf"))));
    EXPECT_THAT(fonts.facesOf("Nowhere"), IsEmpty());
}

TEST(SystemFonts, HaveNoUprightFaceInASlantedOne) {
    const auto styled = [](const std::string& style, const std::string& slant) {
        return "<match target='scan'><test name='family'><string>Layers</string></test><edit name='style'><string>" + style +
               "</string></edit><edit name='slant'><const>" + slant + "</const></edit></match>";
    };
    const SmallMachine slanted(styled("Italic", "italic")), upright(styled("Plain", "roman"));

    EXPECT_THAT(SystemFonts(slanted.configuration()).facesOf("Layers"), IsEmpty());
    EXPECT_THAT(SystemFonts(upright.configuration()).facesOf("Layers"), testing::SizeIs(1));
}

TEST(SystemFonts, TellColouredEmojiFromPlainFonts) {
    const SmallMachine machine;
    SystemFonts fonts(machine.configuration());

    ASSERT_TRUE(fonts.emojiFor(U"\U0001F600"));
    EXPECT_FALSE(fonts.emojiFor(U"I"));
    EXPECT_FALSE(fonts.faceFor(U"\U0001F600", {}, 400));
    ASSERT_TRUE(fonts.faceFor(U"I", {}, 700));
    EXPECT_EQ(fonts.faceFor(U"I", {}, 700)->path, testFonts / "Weighty.ttf");
}

TEST(SystemFonts, FollowTheRulesOfASystemForColouredEmoji) {
    for (const std::string preferred : {"Pixels", "Strikes"}) {
        const SmallMachine machine("<match target='pattern'><test name='color'><bool>true</bool></test><edit name='family' "
                                   "mode='prepend' binding='strong'><string>" +
                                   preferred + "</string></edit></match>");

        const auto face = SystemFonts(machine.configuration()).emojiFor(U"\U0001F600");

        EXPECT_THAT(face, testing::Optional(Field(&rasterbackend::FaceFile::path, testFonts / (preferred + ".ttf"))));
    }
}

TEST(SystemFonts, HaveNothingForACharacterThatOneOfThemLacks) {
    const SmallMachine machine;
    SystemFonts fonts(machine.configuration());

    EXPECT_FALSE(fonts.faceFor(U"I\u0301", {}, 400));
}

TEST(SystemFonts, AreNotAskedBeforeTheyAreNeeded) {
    const SmallMachine machine;
    RasterTextShaper shaper({rasterbackend::shippedFaceFolder(), machine.configuration()});

    tests::shapedBy(shaper, "Start your free trial", tests::faceOf("Sora", 700));
    tests::shapedBy(shaper, "Год, έτος", tests::faceOf("Sora", 700));
    const bool wereAskedForOurOwn = std::filesystem::exists(machine.cache());
    tests::shapedBy(shaper, "漢");

    EXPECT_FALSE(wereAskedForOurOwn);
    EXPECT_TRUE(std::filesystem::exists(machine.cache()));
}

TEST(SystemFonts, ColourAnEmojiOfTheSystems) {
    const SmallMachine machine;
    RasterTextShaper shaper({rasterbackend::shippedFaceFolder(), machine.configuration()});

    EXPECT_FALSE(tests::firstShape(tests::shapedBy(shaper, "\U0001F600")).picture.isNull());
}

// The README's packages bring these families, and other packages bring others that have the same letters.
TEST(SystemFonts, ShowOtherScriptsInFacesOfOneFamily) {
    SystemFonts fonts{{}};

    EXPECT_THAT(fonts.faceFor(U"\u0633", "ar", 400),
                testing::Optional(Field(&rasterbackend::FaceFile::family, "Noto Sans Arabic")));
    EXPECT_THAT(fonts.faceFor(U"\u05D0", "he", 700),
                testing::Optional(Field(&rasterbackend::FaceFile::family, "Noto Sans Hebrew")));
}

TEST(SystemFonts, ShowIdeographsAsTheLanguageWritesThem) {
    SystemFonts fonts{{}};
    if (fonts.facesOf("Noto Sans CJK JP").empty()) GTEST_SKIP() << "fonts-noto-cjk is not installed";

    const std::pair<const char*, const char*> families[] = {
        {"ja", "Noto Sans CJK JP"}, {"ko", "Noto Sans CJK KR"}, {"zh-cn", "Noto Sans CJK SC"}, {"zh-tw", "Noto Sans CJK TC"}};
    for (const auto& [language, family] : families)
        EXPECT_THAT(fonts.faceFor(U"\u76F4", language, 400), testing::Optional(Field(&rasterbackend::FaceFile::family, family)));
}
