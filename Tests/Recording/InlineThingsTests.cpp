// Devices, themes and translations as a recording has them: whole, in one file.
#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/InlineFiles.hpp"
#include "Apps/ProUpsellsHost/ThemeFile.hpp"
#include "Apps/ProUpsellsHost/Translations.hpp"
#include "Platform/Foundation/StringsFile.hpp"
#include "Platform/System/Files.hpp"
#include "Tests/Recording/Refusal.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::hostprogram {

using graphics::rgb;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

Theme themeOf(const char* text, const std::filesystem::path& folder = "themes", ThemePlace place = ThemePlace::insideAnotherFile) {
    const Json json = Json::parse(text);
    return readTheme(JsonCursor{json, "theme.json"}, folder, place);
}

} // namespace

// --- Devices ---

TEST(DeviceAsJson, HasEveryKey) {
    EXPECT_EQ(
        toJson(Device{}).dump(),
        R"({"size":[375.0,800.0],"scale":2.0,"appearance":"light","locale":"en_US","layoutDirection":"auto","textSize":"large",)"
        R"("reduceMotion":false,"safeArea":[0.0,0.0,0.0,0.0],"strings":{},"fonts":"bundled","theme":null})");
}

TEST(DeviceAsJson, IsReadBackToTheSameDevice) {
    const Device device{.size = {320.25, 1.0 / 3 + 500},
                        .scale = 1.1,
                        .appearance = graphics::ColorScheme::dark,
                        .locale = "de_AT",
                        .layoutDirection = DirectionChoice::rightToLeft,
                        .textSize = graphics::ContentSizeCategory::accessibilityExtraExtraLarge,
                        .reduceMotion = true,
                        .safeArea = {.top = 1.5, .left = 2, .bottom = 3, .right = 4},
                        .fonts = FontChoice::fixed,
                        .theme = themeOf(R"({"faces": {"text": "Ours"}})")};
    const Json json = toJson(device);

    Device read = readDevice(JsonCursor{json, "device.json"}, {});
    read.strings.clear(); // a folder of its own, with nothing in it
    EXPECT_EQ(read, device);
    EXPECT_EQ(json["layoutDirection"], "rtl");
    EXPECT_EQ(json["safeArea"], Json({1.5, 2.0, 3.0, 4.0}));
    EXPECT_EQ(json["theme"], Json({{"faces", {{"text", {{"family", "Ours"}}}}}}));
}

TEST(DeviceAsJson, OfChangesHasTheKeysThatDiffer) {
    const Device before;
    const std::vector<std::pair<std::string, std::function<void(Device&)>>> changes{
        {R"({"size":[320.0,568.0]})",
         [](Device& device) {
             device.size = {320, 568};
         }},
        {R"({"scale":3.0})", [](Device& device) { device.scale = 3; }},
        {R"({"appearance":"dark"})", [](Device& device) { device.appearance = graphics::ColorScheme::dark; }},
        {R"({"locale":"fr"})", [](Device& device) { device.locale = "fr"; }},
        {R"({"layoutDirection":"ltr"})", [](Device& device) { device.layoutDirection = DirectionChoice::leftToRight; }},
        {R"({"textSize":"small"})", [](Device& device) { device.textSize = graphics::ContentSizeCategory::small; }},
        {R"({"reduceMotion":true})", [](Device& device) { device.reduceMotion = true; }},
        {R"({"safeArea":[20.0,0.0,34.0,0.0]})",
         [](Device& device) {
             device.safeArea = {20, 0, 34, 0};
         }},
        {R"({"fonts":"fixed"})", [](Device& device) { device.fonts = FontChoice::fixed; }},
        {R"({"theme":{"faces":{"display":{"family":"Ours"}}}})", [](Device& device) { device.theme.families.display = "Ours"; }},
    };
    for (const auto& [expected, change] : changes) {
        Device after = before;
        change(after);
        EXPECT_EQ(changesBetween(before, after).dump(), expected);
    }
    EXPECT_THAT(changesBetween(before, before), IsEmpty());
    Device both = before;
    both.scale = 1;
    both.locale = "fr";
    EXPECT_EQ(changesBetween(before, both).dump(), R"({"scale":1.0,"locale":"fr"})");
}

TEST(DeviceKeys, AreReadOneByOneToo) {
    const Json two = 2, unknown = "x";
    Device device;
    device.size = {20000, 100};
    device.scale = 1;

    EXPECT_EQ(refusalOf([&] {
                  readDeviceKey(device, "scale", JsonCursor{two, "a"}, {});
              }),
              "a: /: the window is out of range, expected at most 32000 pixels a side");
    EXPECT_EQ(refusalOf([&] {
                  readDeviceKey(device, "colour", JsonCursor{unknown, "a"}, {});
              }),
              "a: /: unknown key \"colour\", expected a key of a device");
    device = {};
    const Json insets{400, 0, 400, 0};
    EXPECT_EQ(refusalOf([&] {
                  readDeviceKey(device, "safeArea", JsonCursor{insets, "a"}, {});
              }),
              "a: /: the safe area is out of range, expected insets that leave some of the window");
    EXPECT_TRUE(isDeviceKey("fonts"));
    EXPECT_FALSE(isDeviceKey("colour"));
}

// --- Themes ---

TEST(ThemeInAFile, HasColoursOfEitherAppearanceOrBoth) {
    const Theme theme = themeOf(R"({"colours": {"focusRing": "#8c6F39", "velaBackground": {"light": "#FfEeD9"},
        "velaSecondaryAppBackground": {"dark": "#100f0A"}}})");

    EXPECT_EQ(theme.colors.at("focusRing"), (Theme::Color{rgb(0x8C6F39), rgb(0x8C6F39)}));
    EXPECT_EQ(theme.colors.at("velaBackground"), (Theme::Color{rgb(0xFFEED9), std::nullopt}));
    EXPECT_EQ(theme.colors.at("velaSecondaryAppBackground"), (Theme::Color{std::nullopt, rgb(0x100F0A)}));
}

TEST(ThemeInAFile, HasFamiliesWithTheirFiles) {
    const Theme theme = themeOf(R"({"faces": {"text": "Plain", "display": {"family": "Alone"},
        "headings": {"family": "Ours", "files": [{"file": "a.ttf"}, {"file": "/fonts/b.ttf", "weight": 1},
                                                 {"file": "c.ttf", "weight": 1000}]}}})");

    EXPECT_EQ(theme.families, (Theme::Families{"Plain", "Alone", "Ours"}));
    EXPECT_THAT(theme.faceFiles,
                ElementsAre(Theme::FaceFile{"Ours", 400, "themes/a.ttf"}, Theme::FaceFile{"Ours", 1, "/fonts/b.ttf"},
                            Theme::FaceFile{"Ours", 1000, "themes/c.ttf"}));
}

TEST(ThemeInAFile, HasPicturesOfOneOrBothAppearances) {
    const Theme theme =
        themeOf(R"({"pictures": {"diamond24": "gem.png", "paywallHeaderA": {"light": "/day.png", "dark": "night.png"}}})");

    EXPECT_EQ(theme.pictures.at("diamond24"), (Theme::Picture{"themes/gem.png", std::nullopt}));
    EXPECT_EQ(theme.pictures.at("paywallHeaderA"), (Theme::Picture{"/day.png", "themes/night.png"}));
}

TEST(ThemeInAFile, HasItsOwnFilesOnlyInsideAnotherFile) {
    const char* const text = R"({"files": {"gem.png": "AAEC"}, "pictures": {"diamond24": "gem.png"}})";

    EXPECT_EQ(system::contentsOf(themeOf(text).pictures.at("diamond24").file), std::string("\0\1\2", 3));
    EXPECT_EQ(refusalOf([&] { themeOf(text, "themes", ThemePlace::fileOfItsOwn); }),
              R"(theme.json: /files: unknown key "files", expected one of "colours", "faces", "pictures")");
    EXPECT_EQ(refusalOf([] { themeOf(R"({"files": {"a\u0000": "AAEC"}})"); }),
              R"(theme.json: /files/a : "a " is no plain file name, expected one such as "header.png")");
}

TEST(ThemeInAFile, NamesEachFileOnceInOrder) {
    const Theme theme = themeOf(R"({"pictures": {"diamond24": {"light": "c.png", "dark": "a.png"}, "paywallHeaderA": "c.png"},
        "faces": {"text": {"family": "Ours", "files": [{"file": "d.ttf"}, {"file": "b.ttf"}, {"file": "d.ttf", "weight": 700}]}}})");

    EXPECT_THAT(filesNamedBy(theme), ElementsAre("themes/a.png", "themes/b.ttf", "themes/c.png", "themes/d.ttf"));
}

TEST(ThemeInAFile, KeepsTheFilesThatThereAreUnderTheirNames) {
    const tests::TemporaryFolder folder;
    folder.write("one/gem.png", "first");
    folder.write("two/gem.png", "second");
    const Theme theme =
        themeOf(R"({"pictures": {"diamond24": {"light": "one/gem.png", "dark": "two/gem.png"}, "paywallHeaderA": "none.png"}})",
                folder.path());

    const Theme kept = withKeptFiles(theme);

    EXPECT_EQ(system::contentsOf(kept.pictures.at("diamond24").file), "first");
    EXPECT_EQ(system::contentsOf(*kept.pictures.at("diamond24").darkFile), "second");
    EXPECT_TRUE(kept.pictures.at("diamond24").file.string().ends_with("-gem.png"));
    EXPECT_EQ(kept.pictures.at("paywallHeaderA").file, folder.path() / "none.png");
    const Theme withoutFiles = themeOf(R"({"pictures": {"diamond24": "none.png"}})", folder.path());
    EXPECT_EQ(withKeptFiles(withoutFiles), withoutFiles);
}

TEST(ThemeAsJson, HasColoursAndEachFileOnceUnderAPlainName) {
    const tests::TemporaryFolder folder;
    folder.write("gem.png", std::string_view("\0\1\2", 3));
    folder.write("faces/ours.ttf", "face");
    const Theme theme =
        themeOf(R"({"colours": {"focusRing": {"light": "#0A7C78", "dark": "#F0E1D2"}, "velaBackground": {"light": "#FFFFFE"}},
        "pictures": {"diamond24": {"light": "gem.png", "dark": "gem.png"}, "paywallHeaderA": "gem.png"},
        "faces": {"text": {"family": "Ours", "files": [{"file": "faces/ours.ttf", "weight": 650}]}, "headings": "Ours", "display": "Other"}})",
                folder.path());

    EXPECT_EQ(toJson(theme), Json::parse(R"({
        "colours": {"focusRing": {"light": "#0A7C78", "dark": "#F0E1D2"}, "velaBackground": {"light": "#FFFFFE"}},
        "faces": {"text": {"family": "Ours", "files": [{"file": "1-ours.ttf", "weight": 650}]}, "display": {"family": "Other"},
                  "headings": {"family": "Ours"}},
        "pictures": {"diamond24": {"light": "2-gem.png", "dark": "2-gem.png"}, "paywallHeaderA": {"light": "2-gem.png"}},
        "files": {"1-ours.ttf": "ZmFjZQ==", "2-gem.png": "AAEC"}})"));
    EXPECT_EQ(toJson(Theme{}), Json::object());
}

TEST(ThemeAsJson, IsNoneWhereAFileCannotBeRead) {
    EXPECT_EQ(refusalOf([] { toJson(themeOf(R"({"pictures": {"diamond24": "none.png"}})")); }),
              "themes/none.png: /: the file cannot be read, expected one that can be recorded");
}

// --- Translations ---

TEST(TranslationsInline, AreReadBackWhateverIsInThem) {
    const Json texts{{"fr", {{"Close", "Fermer"}}},
                     {"de", {{"Say \"%@\"", "Sag \"%@\"\\\n"}, {"back\\slash", std::string("a\0b", 3)}, {"tab\t", "ü"}}},
                     {"z9Z-0aA_", {{"Pro", "Pro"}}}};

    const std::filesystem::path folder = readInlineTranslations(JsonCursor{texts, "a"});

    const Json found = translationsIn(folder);
    for (const char* const language : {"de", "fr", "z9Z-0aA_"})
        for (const auto& [key, text] : texts[language].items()) EXPECT_EQ(found[language][key], text) << language;
    EXPECT_EQ(found.size(), 3u);
    dropInlineFiles(folder);
    EXPECT_THAT(translationsIn(folder), IsEmpty());
}

TEST(TranslationsInline, MayBeNone) {
    EXPECT_THAT(translationsIn(readInlineTranslations(JsonCursor{Json::object(), "a"})), IsEmpty());
}

TEST(TranslationsInline, AreInLanguagesOf64CharactersAtMost) {
    const Json longest{{std::string(64, 'a'), Json::object()}}, longer{{std::string(65, 'a'), Json::object()}};

    EXPECT_EQ(refusalOf([&] { readInlineTranslations(JsonCursor{longest, "a"}); }), "");
    EXPECT_NE(refusalOf([&] { readInlineTranslations(JsonCursor{longer, "a"}); }), "");
    for (const char* const wrong : {"d/e", "d:e", "d@e", "d[e", "d`e", "d{e", "d.e", "d e", "d^e"}) {
        const Json texts{{wrong, Json::object()}};
        EXPECT_NE(refusalOf([&] { readInlineTranslations(JsonCursor{texts, "a"}); }), "") << wrong;
    }
}

TEST(TranslationsInAFolder, AreTheTablesOfItsLanguages) {
    const tests::TemporaryFolder folder;
    folder.write("fr.lproj/Localizable.strings", "\"B\" = \"b\"; \"A\" = \"a\";");
    folder.write("de.lproj/Localizable.strings", "");
    folder.write("es.lproj/Other.strings", "");
    folder.write("it/Localizable.strings", "");

    EXPECT_THAT(translationFilesIn(folder.path()),
                ElementsAre(folder.path() / "de.lproj/Localizable.strings", folder.path() / "fr.lproj/Localizable.strings"));
    EXPECT_EQ(translationsIn(folder.path()).dump(), R"({"de":{},"fr":{"A":"a","B":"b"}})");
}

TEST(TranslationsInAFolder, AreRefusedWithTheLineThatIsBroken) {
    const tests::TemporaryFolder folder;
    const std::string file = folder.write("de.lproj/Localizable.strings", "\"A\" = \"a\";\n\"B\" = ").string();
    const auto error = foundation::StringsFile::parse(tests::bytesOf(file)).error;
    ASSERT_TRUE(error);

    EXPECT_EQ(error->line, 2);
    EXPECT_EQ(refusalOf([&] { translationsIn(folder.path()); }),
              file + ": /: " + error->message + " on line 2, expected a file of translations");
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_EQ(refusalOf([&] { translationsIn(folder.path()); }),
              file + ": /: the file cannot be read, expected a file of translations");
}

} // namespace proupsells::hostprogram
