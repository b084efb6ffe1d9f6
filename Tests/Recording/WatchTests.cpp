// Following the files that a session was made of, and the keys beside it.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/PreviewKeys.hpp"
#include "Apps/ProUpsellsHost/SourceWatch.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/System/Files.hpp"
#include "Tests/Recording/RecordedSession.hpp"

using namespace proupsells;
using namespace hostprogram;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class FollowedFiles : public testing::Test {
protected:
    // Another text has another length, for the file's time may be the same.
    void write(const std::string& bytes) { folder.write("offers.json", bytes); }
    void replace(const std::string& bytes) {
        folder.write("offers.json~", bytes);
        std::filesystem::rename(folder.path() / "offers.json~", file);
    }
    // As often as it takes at most.
    SourceChange lookOften() {
        SourceChange change;
        for (int look = 0; look < 12 && !change.offers && !change.strings && !change.theme && change.complaints.empty(); ++look)
            change = watch.look();
        return change;
    }

    tests::TemporaryFolder folder;
    std::filesystem::path file = folder.write("offers.json", R"({"options": []})");
    std::filesystem::path german = folder.write("de.lproj/Localizable.strings", "\"Pro\" = \"Pro\";");
    std::filesystem::path theme = folder.write("theme.json", "{}");
    SourceWatch watch{{file, folder.path(), theme}};
};

TEST_F(FollowedFiles, SayNothingWhileTheyStayAsTheyAre) {
    const SourceChange change = lookOften();

    EXPECT_FALSE(change.offers || change.strings || change.theme);
    EXPECT_THAT(change.complaints, IsEmpty());
}

TEST_F(FollowedFiles, AreReadAtTheSecondLookAfterAChange) {
    write(R"({"options": [], "referrer": "Home"})");

    EXPECT_FALSE(watch.look().offers);
    const SourceChange change = watch.look();

    ASSERT_TRUE(change.offers);
    EXPECT_EQ((*change.offers)["referrer"], "Home");
    EXPECT_FALSE(watch.look().offers);
}

TEST_F(FollowedFiles, MayBePutInThePlaceOfEachOther) {
    replace(R"({"options": [], "referrer": "Replaced"})");

    EXPECT_TRUE(lookOften().offers);
}

TEST_F(FollowedFiles, MayBeGoneForAMoment) {
    std::filesystem::remove(file);
    for (int look = 0; look < 5; ++look) EXPECT_THAT(watch.look().complaints, IsEmpty());

    write(R"({"options": [], "referrer": "Back"})");

    EXPECT_TRUE(lookOften().offers);
}

TEST_F(FollowedFiles, AreMissedOnceWhenTheyStayAway) {
    std::filesystem::remove(file);

    EXPECT_THAT(lookOften().complaints, ElementsAre(StartsWith(file.string() + ": /: there is no such file")));
    EXPECT_THAT(lookOften().complaints, IsEmpty());
}

TEST_F(FollowedFiles, AreToldOfOnceWhereTheyAreBroken) {
    write(R"({"options": [], "referrer":)");

    const SourceChange change = lookOften();

    EXPECT_FALSE(change.offers);
    EXPECT_THAT(change.complaints, ElementsAre(StartsWith(file.string() + ": /referrer: ")));
    EXPECT_THAT(lookOften().complaints, IsEmpty());
}

TEST_F(FollowedFiles, KeepTranslationsAsTheyWere) {
    folder.write("de.lproj/Localizable.strings", "\"Pro\" = \"Profi\";");
    const SourceChange change = lookOften();
    folder.write("de.lproj/Localizable.strings", "broken");

    ASSERT_TRUE(change.strings);
    foundation::Locale::setCurrent(foundation::Locale{"de_DE"});
    EXPECT_EQ(foundation::Bundle(*change.strings).localizedString("Pro"), "Profi");
    EXPECT_THAT(lookOften().complaints, ElementsAre(StartsWith(german.string() + ": /: ")));
}

TEST_F(FollowedFiles, MayGetAnotherLanguage) {
    folder.write("fr.lproj/Localizable.strings", "\"Pro\" = \"Pro\";");

    EXPECT_TRUE(lookOften().strings);
}

TEST_F(FollowedFiles, MayBeAThemes) {
    folder.write("theme.json", R"({"faces": {"text": "DejaVu Sans"}})");

    const SourceChange change = lookOften();

    ASSERT_TRUE(change.theme);
    EXPECT_EQ(change.theme->families.text, "DejaVu Sans");
}

// --- The files of a theme ---

class FollowedPictures : public testing::Test {
protected:
    SourceChange lookOften() {
        SourceChange change;
        for (int look = 0; look < 12 && !change.theme && change.complaints.empty(); ++look) change = watch->look();
        return change;
    }

    tests::TemporaryFolder folder;
    std::filesystem::path theme = folder.write("theme.json", R"({ "pictures": { "diamond24": "gem.png" },
        "faces": { "headings": { "family": "Ours", "files": [{ "file": "ours.ttf" }] } } })");
    std::filesystem::path picture = folder.write("gem.png", "a picture");
    std::filesystem::path face = folder.write("ours.ttf", "a face");
    std::filesystem::path offers = folder.write("offers.json", R"({"options": []})");
    std::unique_ptr<SourceWatch> watch = std::make_unique<SourceWatch>(Sources{offers, std::nullopt, theme});
};

TEST_F(FollowedPictures, AreReadWhereTheThemeStaysAsItIs) {
    EXPECT_FALSE(lookOften().theme);
    folder.write("gem.png", "another picture");

    const SourceChange change = lookOften();

    ASSERT_TRUE(change.theme);
    EXPECT_EQ(system::contentsOf(change.theme->pictures.at("diamond24").file), "another picture");
    EXPECT_FALSE(lookOften().theme);
}

TEST_F(FollowedPictures, MayBeFaces) {
    folder.write("ours.ttf", "another face");

    const SourceChange change = lookOften();

    ASSERT_TRUE(change.theme);
    EXPECT_EQ(system::contentsOf(change.theme->faceFiles.at(0).file), "another face");
}

// A picture that is written anew must not change below the screen that shows it.
TEST_F(FollowedPictures, AreKeptAsTheyWere) {
    const Theme kept = withKeptFiles(readThemeFile(theme));

    folder.write("gem.png", "half");
    std::filesystem::remove(face);

    EXPECT_EQ(system::contentsOf(kept.pictures.at("diamond24").file), "a picture");
    EXPECT_EQ(system::contentsOf(kept.faceFiles.at(0).file), "a face");
}

TEST_F(FollowedPictures, AreOtherThingsToTheModuleWhenTheyHaveChanged) {
    folder.write("gem.png", "a second picture");
    const auto second = lookOften().theme;
    folder.write("gem.png", "a third picture again");
    const auto third = lookOften().theme;

    ASSERT_TRUE(second && third);
    EXPECT_NE(*second, *third);
}

TEST_F(FollowedPictures, MayComeLaterThanTheTheme) {
    folder.write("theme.json", R"({ "pictures": { "diamond24": "later.png" } })");
    const auto early = lookOften().theme;
    folder.write("later.png", "here it is");
    const auto late = lookOften().theme;

    ASSERT_TRUE(early && late);
    EXPECT_EQ(early->pictures.at("diamond24").file, folder.path() / "later.png");
    EXPECT_EQ(system::contentsOf(late->pictures.at("diamond24").file), "here it is");
}

TEST_F(FollowedPictures, AreFoundAgainInTheSecondLookWhileAnotherIsMissing) {
    std::filesystem::remove(face);
    for (int look = 0; look < 12; ++look) watch->look();

    folder.write("gem.png", "another picture");
    EXPECT_FALSE(watch->look().theme);

    EXPECT_TRUE(watch->look().theme);
}

// --- Keys ---

class Keys : public testing::Test {
protected:
    Device press(char32_t key, bool isShifted = false) {
        const auto changed = keys.pressed(key, isShifted, device, direction);
        return device = changed.value_or(device);
    }

    PreviewKeys keys{{"de", "en_US", "ar_XB"}};
    Device device;
    geometry::LayoutDirection direction = geometry::LayoutDirection::leftToRight;
};

TEST_F(Keys, SwitchTheAppearance) {
    EXPECT_EQ(press(U'A').appearance, graphics::ColorScheme::dark);
    EXPECT_EQ(press(U'A').appearance, graphics::ColorScheme::light);
}

TEST_F(Keys, TurnTheDirectionRound) {
    EXPECT_EQ(press(U'D').layoutDirection, DirectionChoice::rightToLeft);
    direction = geometry::LayoutDirection::rightToLeft;
    EXPECT_EQ(press(U'D').layoutDirection, DirectionChoice::leftToRight);
}

TEST_F(Keys, StepTheTextSizeUpToItsEnds) {
    EXPECT_EQ(press(U'+').textSize, graphics::ContentSizeCategory::extraLarge);
    EXPECT_EQ(press(U'=').textSize, graphics::ContentSizeCategory::extraExtraLarge);
    for (int i = 0; i < 20; ++i) press(U'+');
    EXPECT_EQ(device.textSize, graphics::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
    EXPECT_FALSE(keys.pressed(U'+', false, device, direction));
    EXPECT_EQ(press(U'-').textSize, graphics::ContentSizeCategory::accessibilityExtraExtraLarge);
    for (int i = 0; i < 20; ++i) press(U'-');
    EXPECT_EQ(device.textSize, graphics::ContentSizeCategory::extraSmall);
    EXPECT_FALSE(keys.pressed(U'-', false, device, direction));
}

TEST_F(Keys, GoThroughTheLanguagesBothWays) {
    EXPECT_EQ(press(U'L').locale, "ar_XB");
    EXPECT_EQ(press(U'L').locale, "de");
    EXPECT_EQ(press(U'L', true).locale, "ar_XB");
}

TEST_F(Keys, BringTheDirectionWithTheLanguage) {
    press(U'D');
    ASSERT_EQ(device.layoutDirection, DirectionChoice::rightToLeft);

    EXPECT_EQ(press(U'L').layoutDirection, DirectionChoice::automatic);
}

TEST_F(Keys, GoThroughTheSizes) {
    EXPECT_EQ(press(U'S').size, (geometry::Size{768, 1024}));
    EXPECT_EQ(press(U'S', true).size, (geometry::Size{375, 800}));
    std::vector<double> widths;
    for (int times = 0; times < 4; ++times) widths.push_back(press(U'S').size.width);
    EXPECT_THAT(widths, ElementsAre(768, 960, 320, 375));
    EXPECT_EQ(press(U'S', true).size, (geometry::Size{320, 568}));
    EXPECT_EQ(press(U'S', true).size, (geometry::Size{960, 880}));
    device.size = {500, 500};
    EXPECT_EQ(press(U'S').size, (geometry::Size{320, 568}));
}

TEST_F(Keys, LeaveOthersToTheScreens) {
    for (const char32_t key : {U' ', U'\t', U'B', U'0'}) EXPECT_FALSE(keys.pressed(key, false, device, direction));
}

TEST(PreviewLocales, AreThoseThatThereAreTextsIn) {
    const tests::TemporaryFolder folder;
    folder.write("pt-BR.lproj/Localizable.strings", "");
    folder.write("de.lproj/Localizable.strings", "");

    EXPECT_THAT(previewLocales("fr_FR", folder.path()), ElementsAre("fr_FR", "en_US", "de", "pt-BR", "en_XA", "ar_XB"));
    EXPECT_THAT(previewLocales("en_US", {}), ElementsAre("en_US", "en_XA", "ar_XB"));
}

} // namespace
