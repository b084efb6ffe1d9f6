#include <thread>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Tests/Foundation/LocaleFixture.hpp"
#include "Tests/Foundation/Utf16.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using foundation::Bundle;
using foundation::Locale;
using foundation::localizedString;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Localized : public tests::LocaleFixture {
protected:
    // Looks the key up as a host would whose user has set that locale.
    std::string lookUp(const std::string& key, const std::string& locale) {
        Locale::setCurrent(Locale(locale));
        return bundle().localizedString(key);
    }
    const Bundle& bundle() {
        if (!m_bundle) m_bundle = std::make_unique<Bundle>(folder.path());
        return *m_bundle;
    }

    tests::TemporaryFolder folder;
    tests::LogRecorder log;

private:
    std::unique_ptr<Bundle> m_bundle;
};

TEST_F(Localized, FallsBackFromTheRegionToTheLanguageToTheKey) {
    folder.write("de-AT.lproj/Localizable.strings", "\"January\" = \"J\u00E4nner\";");
    folder.write("de.lproj/Localizable.strings", "\"January\" = \"Januar\"; \"Monthly\" = \"Monatlich\";");

    EXPECT_EQ(lookUp("January", "de_AT"), "J\u00E4nner");
    EXPECT_EQ(lookUp("Monthly", "de_AT"), "Monatlich");
    EXPECT_EQ(lookUp("Annually", "de_AT"), "Annually");
    EXPECT_EQ(lookUp("January", "de_CH"), "Januar");
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST_F(Localized, FollowsTheCurrentLocale) {
    folder.write("de.lproj/Localizable.strings", "Monthly = Monatlich;");
    folder.write("fr.lproj/Localizable.strings", "Monthly = Mensuel;");

    EXPECT_EQ(lookUp("Monthly", "de"), "Monatlich");
    EXPECT_EQ(lookUp("Monthly", "fr"), "Mensuel");
    EXPECT_EQ(lookUp("Monthly", "de"), "Monatlich");
    EXPECT_EQ(lookUp("Monthly", "en"), "Monthly");
}

TEST_F(Localized, FindsFoldersInAnyCaseAndWithEitherSign) {
    folder.write("PT_br.lproj/Localizable.strings", "Monthly = Mensal;");
    folder.write("zh-hant.LPROJ/Localizable.strings", "\"Monthly\" = \"\u6BCF\u6708\";");

    EXPECT_EQ(lookUp("Monthly", "pt_BR"), "Mensal");
    EXPECT_EQ(lookUp("Monthly", "pt-br"), "Mensal");
    EXPECT_EQ(lookUp("Monthly", "zh_Hant_TW"), "\u6BCF\u6708");
    EXPECT_EQ(lookUp("Monthly", "pt"), "Monthly");
}

TEST_F(Localized, TakesTheFirstByNameOfTwoFoldersForOneLanguage) {
    folder.write("de_at.lproj/Localizable.strings", "a = underscore;");
    folder.write("de-AT.lproj/Localizable.strings", "a = hyphen;");

    EXPECT_EQ(lookUp("a", "de_AT"), "hyphen");
}

TEST_F(Localized, DoesNotLookIntoTheBaseFolder) {
    folder.write("Base.lproj/Localizable.strings", "Monthly = base;");
    folder.write("Localizable.strings", "Monthly = root;");

    EXPECT_EQ(lookUp("Monthly", "de"), "Monthly");
}

TEST_F(Localized, MayBeEmptyOnPurpose) {
    folder.write("de.lproj/Localizable.strings", "\"Monthly\" = \"\";");

    EXPECT_EQ(lookUp("Monthly", "de"), "");
}

TEST_F(Localized, ReadsUtf16) {
    using tests::ByteOrder;
    const std::string german = "\"Annually\" = \"J\u00E4hrlich\";";
    folder.write("de.lproj/Localizable.strings",
                 tests::byteOrderMark(ByteOrder::littleEndian) + tests::utf16(german, ByteOrder::littleEndian));

    EXPECT_EQ(lookUp("Annually", "de"), "J\u00E4hrlich");
}

TEST_F(Localized, CostsOneLogLineForABrokenTable) {
    folder.write("de-AT.lproj/Localizable.strings",
                 "/* Titles */\n\"Monthly\" = \"Monatlich\"\n\"Annually\" = \"J\u00E4hrlich\";\n");
    folder.write("de.lproj/Localizable.strings", "Monthly = Monatlich;");

    EXPECT_EQ(lookUp("Monthly", "de_AT"), "Monatlich"); // from the next table
    EXPECT_EQ(lookUp("Annually", "de_AT"), "Annually");

    ASSERT_THAT(log.records(), SizeIs(1));
    EXPECT_EQ(log.records()[0].severity, 4);
    EXPECT_THAT(log.records()[0].message,
                HasSubstr("de-AT.lproj/Localizable.strings:2: expected \";\" after the text; none of its translations are used"));
    EXPECT_EQ(log.records()[0].function, "Bundle.localizedString");
}

TEST_F(Localized, NamesABrokenTableInUtf8) {
    folder.write("\u00DCbersetzungen/de.lproj/Localizable.strings", "Monthly");
    const Bundle translations(folder.path() / u8"\u00DCbersetzungen");
    Locale::setCurrent(Locale("de"));

    EXPECT_EQ(translations.localizedString("Monthly"), "Monthly");

    EXPECT_THAT(log.messages(), ElementsAre(HasSubstr("\u00DCbersetzungen/de.lproj/Localizable.strings:1: ")));
}

TEST_F(Localized, IsSilentAboutMissingFilesAndFolders) {
    folder.write("de.lproj/Other.strings", "a = b;");
    folder.write("fr.lproj", "a file, not a folder");

    EXPECT_EQ(lookUp("a", "de"), "a");
    EXPECT_EQ(lookUp("a", "fr"), "a");
    EXPECT_EQ(lookUp("a", ""), "a");
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST_F(Localized, LogsATableThatIsNoFile) {
    folder.write("de.lproj/Localizable.strings/inside", "");

    EXPECT_EQ(lookUp("a", "de"), "a");

    EXPECT_THAT(log.messages(),
                ElementsAre(HasSubstr("de.lproj/Localizable.strings: the file cannot be read; none of its translations are used")));
}

TEST_F(Localized, ReadsEachTableOnce) {
    folder.write("de.lproj/Localizable.strings", "a = before;");
    EXPECT_EQ(lookUp("a", "de"), "before");

    folder.write("de.lproj/Localizable.strings", "a = after;");

    EXPECT_EQ(lookUp("a", "de_AT"), "before");
}

TEST_F(Localized, StaysWhereItIsWhileOtherTablesAreRead) {
    folder.write("de.lproj/Localizable.strings", "a = stays;");
    Locale::setCurrent(Locale("de"));
    const std::string& text = bundle().localizedString("a");

    for (char letter = 'a'; letter <= 'z'; ++letter) lookUp("a", std::string("x") + letter);

    EXPECT_EQ(text, "stays");
}

TEST_F(Localized, ComesFromTheMainBundle) {
    folder.write("de.lproj/Localizable.strings", "Monthly = Monatlich;");
    Locale::setCurrent(Locale("de"));
    EXPECT_EQ(localizedString("Monthly", "Plan title"), "Monthly");

    Bundle::setMain(folder.path());

    EXPECT_EQ(localizedString("Monthly", "Plan title"), "Monatlich");
    EXPECT_EQ(Bundle::main().folder(), folder.path());
}

TEST_F(Localized, StopsTheProgramOnAnotherThread) {
    runloop::MainRunLoop loop{std::make_shared<runloop::VirtualClock>()};

    EXPECT_DEATH(std::thread([] { localizedString("a"); }).join(), "main thread");
}

class Resources : public testing::Test {
protected:
    tests::TemporaryFolder folder;
};

TEST_F(Resources, AreFoundInTheFolderAndOneBelow) {
    folder.write("logo.svg", "");
    folder.write("Images/Layout collections_.svg", "");
    const Bundle bundle(folder.path());

    EXPECT_EQ(bundle.pathForResource("logo", "svg"), folder.path() / "logo.svg");
    EXPECT_EQ(bundle.pathForResource("Layout collections_", "svg"), folder.path() / "Images/Layout collections_.svg");
}

TEST_F(Resources, InTheFolderComeBeforeThoseBelowAndThoseByName) {
    folder.write("b/logo.svg", "");
    folder.write("a/logo.svg", "");
    EXPECT_EQ(Bundle(folder.path()).pathForResource("logo", "svg"), folder.path() / "a/logo.svg");

    folder.write("logo.svg", "");
    EXPECT_EQ(Bundle(folder.path()).pathForResource("logo", "svg"), folder.path() / "logo.svg");
}

TEST_F(Resources, AreAbsentDeeperDownAndUnderOtherNames) {
    folder.write("a/b/logo.svg", "");
    folder.write("Clip.mp4", "");
    folder.write("Folder.svg/inside", "");
    const Bundle bundle(folder.path());

    EXPECT_EQ(bundle.pathForResource("logo", "svg"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("clip", "mp4"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("Clip", "mov"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("Folder", "svg"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("", ""), std::nullopt);
}

TEST_F(Resources, MayHaveNoExtension) {
    folder.write("LICENSE", "");

    EXPECT_EQ(Bundle(folder.path()).pathForResource("LICENSE", ""), folder.path() / "LICENSE");
}

TEST_F(Resources, OfAnAbsentFolderAreAbsent) {
    EXPECT_EQ(Bundle(folder.path() / "absent").pathForResource("logo", "svg"), std::nullopt);
}

// The working folder's files are not the bundle's.
TEST_F(Resources, OfAnEmptyPathAreAbsent) {
    EXPECT_EQ(Bundle({}).pathForResource("CMakeLists", "txt"), std::nullopt);
    EXPECT_EQ(Bundle({}).localizedString("key"), "key");
}

} // namespace
