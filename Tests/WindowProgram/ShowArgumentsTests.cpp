// What is made of the words after `proupsells show`.
#include <gmock/gmock.h>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsWindow/ShowCommand.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::hostprogram {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

ShowArguments shownWith(std::vector<const char*> words) {
    words.insert(words.begin(), {"proupsells", "show"});
    return std::get<ShowArguments>(readCommandLine(int(words.size()), words.data()));
}

} // namespace

TEST(ShowArguments, AreTheSampleOffersOnThePaywallUnlessMoreIsSaid) {
    const ShowArguments arguments = shownWith({});

    EXPECT_FALSE(arguments.offers.has_value());
    EXPECT_EQ(arguments.device, Device{});
    EXPECT_THAT(arguments.given, IsEmpty());
    EXPECT_EQ(arguments.start, StartScreen::paywall);
    EXPECT_FALSE(arguments.recording.has_value());
    EXPECT_FALSE(arguments.isWatching);
}

TEST(ShowArguments, HaveEveryOptionOfADevice) {
    const tests::TemporaryFolder strings;
    const std::string folder = strings.path().string();
    const ShowArguments arguments = shownWith(
        {"offers.json", "--size", "320.5x600", "--scale", "1.5", "--appearance", "dark", "--locale", "de_AT", "--layout-direction",
         "rtl", "--text-size", "accessibilityLarge", "--reduce-motion", "--safe-area", "10,1,34,2", "--strings", folder.c_str()});

    EXPECT_EQ(arguments.offers, "offers.json");
    const Device& device = arguments.device;
    EXPECT_EQ(device.size, (geometry::Size{320.5, 600}));
    EXPECT_EQ(device.scale, 1.5);
    EXPECT_EQ(device.appearance, graphics::ColorScheme::dark);
    EXPECT_EQ(device.locale, "de_AT");
    EXPECT_EQ(device.layoutDirection, DirectionChoice::rightToLeft);
    EXPECT_EQ(device.textSize, graphics::ContentSizeCategory::accessibilityLarge);
    EXPECT_TRUE(device.reduceMotion);
    EXPECT_EQ(device.safeArea, (geometry::PhysicalInsets{10, 1, 34, 2}));
    EXPECT_EQ(device.strings, strings.path());
    EXPECT_THAT(arguments.given, ElementsAre("size", "scale", "appearance", "locale", "layoutDirection", "textSize", "reduceMotion",
                                             "safeArea", "strings"));
}

TEST(ShowArguments, SayNoToReducedMotionToo) {
    const ShowArguments arguments = shownWith({"--reduce-motion=false"});

    EXPECT_FALSE(arguments.device.reduceMotion);
    EXPECT_THAT(arguments.given, ElementsAre("reduceMotion"));
}

TEST(ShowArguments, NameTheThemeToBeFollowed) {
    const tests::TemporaryFolder folder;
    const std::string file = folder.write("theme.json", R"({"faces": {"text": "Ours"}})").string();

    const ShowArguments arguments = shownWith({"--theme", file.c_str()});

    EXPECT_EQ(arguments.theme, file);
    EXPECT_EQ(arguments.device.theme.families.text, "Ours");
    EXPECT_THAT(arguments.given, ElementsAre("theme"));
    EXPECT_FALSE(shownWith({}).theme.has_value());
}

TEST(ShowArguments, NameTheScreenToBeginWith) {
    EXPECT_EQ(shownWith({"--start", "paywall"}).start, StartScreen::paywall);
    EXPECT_EQ(shownWith({"--start", "comparison"}).start, StartScreen::comparison);
    EXPECT_EQ(shownWith({"--start", "store"}).start, StartScreen::store);
}

TEST(ShowArguments, SayWhatIsRecordedAndThatFilesAreFollowed) {
    const ShowArguments arguments = shownWith({"--record", "session.json", "--watch"});

    EXPECT_EQ(arguments.recording, "session.json");
    EXPECT_TRUE(arguments.isWatching);
}

TEST(ShowArguments, AreRefusedWithAPlaceWhereTheyCannotBeUsed) {
    const auto complaintAbout = [](std::vector<const char*> words) -> std::string {
        try {
            (void)shownWith(std::move(words));
        } catch (const InputError& error) {
            return error.what();
        }
        return "";
    };

    EXPECT_THAT(complaintAbout({"--size", "wide"}), HasSubstr("/device/size: "));
    EXPECT_THAT(complaintAbout({"--scale", "0"}), HasSubstr("/device/scale: "));
    EXPECT_THAT(complaintAbout({"--layout-direction", "up"}), HasSubstr("/device/layoutDirection: "));
    EXPECT_THAT(complaintAbout({"--text-size", "huge"}), HasSubstr("/device/textSize: "));
    EXPECT_THAT(complaintAbout({"--safe-area", "1,2,3"}), HasSubstr("/device/safeArea: "));
    EXPECT_THAT(complaintAbout({"--strings", "no-such-folder"}), HasSubstr("/device/strings: "));
    EXPECT_THAT(complaintAbout({"--start", "end"}), HasSubstr("end"));
}

TEST(ShowCommand, SaysWhereThereIsNoDisplayAndNamesTheCommandThatNeedsNone) {
    const tests::TemporaryFolder folder;
    const auto offers = folder.write("offers.json", R"({"options": []})");

    testing::internal::CaptureStderr();
    const int status = showOffers({.offers = offers});
    const std::string said = testing::internal::GetCapturedStderr();

    EXPECT_EQ(status, 3);
    EXPECT_EQ(said, "There is no display to show a window on; `proupsells run SCENARIO.json` plays a script without one.\n");
}

} // namespace proupsells::hostprogram
