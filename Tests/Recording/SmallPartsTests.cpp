// Small parts that every command stands on: lines, numbers, steps, files and what is told of them.
#include <gmock/gmock.h>

#include <fstream>
#include <functional>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/FileChanges.hpp"
#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"
#include "Apps/ProUpsellsHost/StepReading.hpp"
#include "Apps/ProUpsellsHost/WholeFile.hpp"
#include "Platform/System/WholeFile.hpp"
#include "Tests/Recording/Refusal.hpp"
#include "Tests/Support/PrintGeometry.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::hostprogram {

using ::testing::ElementsAre;

namespace {

std::int64_t wholeNumberIn(const char* text) {
    const Json json = Json::parse(text);
    return JsonCursor{json, "a"}.wholeNumber();
}

Step stepOf(const Json& json) {
    Surroundings surroundings;
    return readStep(JsonCursor{json, "a"}, surroundings);
}

SetStep setOf(const Json& json, Surroundings surroundings = {}) { return readSet(JsonCursor{json, "a"}, surroundings); }

} // namespace

// --- Lines ---

TEST(LineAboutInput, HasABlankForEveryControlCharacter) {
    EXPECT_EQ(oneLine(std::string("a\0b\nc\x1f", 6) + "d\x7f" + "e f!~\u00fc"), "a b c d e f!~\u00fc");
    EXPECT_STREQ(InputError("a\nb", "", "wrong").what(), "a b: /: wrong");
    EXPECT_STREQ(InputError("a", "/b", "wrong").what(), "a: /b: wrong");
}

// --- Numbers ---

TEST(WholeNumbers, AreAllThatFitInto64Bits) {
    EXPECT_EQ(wholeNumberIn("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(wholeNumberIn("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(wholeNumberIn("-9223372036854775808.0"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(wholeNumberIn("5.0"), 5);
    EXPECT_EQ(wholeNumberIn("-1e3"), -1000);
    for (const char* const tooLarge : {"9223372036854775808", "9223372036854775808.0", "-9223372036854777856.0", "1e300"})
        EXPECT_NE(refusalOf([&] { wholeNumberIn(tooLarge); }).find(" is out of range, expected a whole number in 64 bits"),
                  std::string::npos)
            << tooLarge;
    EXPECT_EQ(refusalOf([] { wholeNumberIn("\"1\""); }), "a: /: a text stands here, expected a whole number in 64 bits");
}

// --- Offers ---

TEST(OffersOfNothingButOptions, HaveTheUsualRest) {
    const Json json{{"options", Json::array()}};
    const Offers offers = readOffers(JsonCursor{json, "a"});

    EXPECT_TRUE(offers.options.empty());
    EXPECT_EQ(offers.referrer, Referrer{"proupsells"});
    EXPECT_TRUE(offers.showLoginOnSuccess);
    EXPECT_FALSE(offers.shouldMentioniCloudSync);
    EXPECT_FALSE(offers.annualSubscriptionPriceForComparisonWithPromotionalPrice);
    EXPECT_FALSE(offers.monthlySubscriptionPriceForComparisonWithPromotionalPrice);
}

TEST(OffersWithEverything, HaveAllOfIt) {
    const Json json =
        Json::parse(R"({"options": [], "referrer": {"name": "Home", "elementID": "A1"}, "variant": "comparisonPaywall",
        "entitlement": "velaPRO", "showLoginOnSuccess": false, "shouldMentioniCloudSync": true,
        "annualSubscriptionPriceForComparisonWithPromotionalPrice": "$120",
        "monthlySubscriptionPriceForComparisonWithPromotionalPrice": "$20"})");
    const Offers offers = readOffers(JsonCursor{json, "a"});

    EXPECT_EQ(offers.referrer, Referrer("Home", "A1"));
    EXPECT_FALSE(offers.showLoginOnSuccess);
    EXPECT_TRUE(offers.shouldMentioniCloudSync);
    EXPECT_EQ(offers.annualSubscriptionPriceForComparisonWithPromotionalPrice, "$120");
    EXPECT_EQ(offers.monthlySubscriptionPriceForComparisonWithPromotionalPrice, "$20");
}

TEST(OffersWithNulls, AreThoseWithoutThem) {
    const Json json = Json::parse(R"({"options": [{"SKU": "m", "type": "monthly", "price": "1", "introductoryPrice": null,
        "introductoryPeriodLength": null, "hasUsedFreeTrial": null}], "referrer": null,
        "annualSubscriptionPriceForComparisonWithPromotionalPrice": null})");
    const Offers offers = readOffers(JsonCursor{json, "a"});

    EXPECT_EQ(offers.referrer, Referrer{"proupsells"});
    EXPECT_FALSE(offers.options.at(0).hasUsedFreeTrial());
    EXPECT_FALSE(offers.options.at(0).introductoryPrice());
    const Json lifetime = Json::parse(R"([{"SKU": "l", "type": "lifetime", "price": "1", "hasUsedFreeTrial": true}])");
    EXPECT_TRUE(readOptions(JsonCursor{lifetime, "a"}).at(0).hasUsedFreeTrial());
}

// --- Steps ---

TEST(StepThatSets, LeavesAloneWhatItDoesNotName) {
    const SetStep options = setOf({{"options", Json::array()}});
    EXPECT_TRUE(options.options.has_value());
    EXPECT_FALSE(options.device || options.annualPrice || options.monthlyPrice || options.shouldMentioniCloudSync);

    const SetStep price = setOf({{"annualSubscriptionPriceForComparisonWithPromotionalPrice", nullptr}});
    ASSERT_TRUE(price.annualPrice.has_value());
    EXPECT_FALSE(price.annualPrice->has_value());
    EXPECT_FALSE(price.options || price.device || price.monthlyPrice);
    EXPECT_EQ(setOf({{"monthlySubscriptionPriceForComparisonWithPromotionalPrice", "$1"}}).monthlyPrice,
              std::optional<std::string>("$1"));
    EXPECT_EQ(setOf({{"shouldMentioniCloudSync", false}}).shouldMentioniCloudSync, false);
}

TEST(StepThatSets, HasTheWholeDeviceAsItIsFromThereOn) {
    Device device;
    device.locale = "de_AT";
    Surroundings surroundings{{}, device};
    const Json first{{"scale", 3}}, second{{"appearance", "dark"}};

    const SetStep scaled = readSet(JsonCursor{first, "a"}, surroundings);
    const SetStep dark = readSet(JsonCursor{second, "a"}, surroundings);

    ASSERT_TRUE(scaled.device && dark.device);
    device.scale = 3;
    EXPECT_EQ(*scaled.device, device);
    device.appearance = graphics::ColorScheme::dark;
    EXPECT_EQ(*dark.device, device);
}

TEST(StepThatSets, HoldsNewLengthsAgainstTheDevicesOthers) {
    Device wide;
    wide.size = {16000.25, 60};
    wide.scale = 1;
    wide.safeArea = {20, 0, 20, 0};

    EXPECT_EQ(refusalOf([&] {
                  setOf({{"scale", 2}}, {{}, wide});
              }),
              "a: /scale: the window is out of range, expected at most 32000 pixels a side");
    EXPECT_EQ(refusalOf([&] {
                  setOf({{"size", {100, 40}}}, {{}, wide});
              }),
              "a: /size: the safe area is out of range, expected insets that leave some of the window");
    EXPECT_EQ(refusalOf([&] { setOf({{"size", {100, 41}}}, {{}, wide}); }), "");
}

TEST(StepThatTakesAPicture, NamesAPlainFile) {
    EXPECT_EQ(std::get<SnapshotStep>(stepOf({{"snapshot", std::string(255, 'a')}})).file, std::string(255, 'a'));
    EXPECT_EQ(std::get<SnapshotStep>(stepOf({{"snapshot", "..."}})).file, "...");
    EXPECT_EQ(refusalOf([] {
                  stepOf({{"snapshot", std::string("a\0.png", 6)}});
              }),
              "a: /snapshot: \"a .png\" is no plain file name, expected one such as \"paywall.png\"");
}

TEST(StepThatExpects, HasWhatIsNamedAndNothingElse) {
    const auto bare = std::get<ExpectStep>(stepOf({{"expect", {{"identifier", "a"}}}}));
    EXPECT_FALSE(bare.isAbsent || bare.label || bare.value || bare.text || bare.onScreen || bare.traits || bare.frame);
    EXPECT_TRUE(std::get<ExpectStep>(stepOf({{"expect", {{"absent", "a"}}}})).isAbsent);

    const auto framed = std::get<ExpectStep>(stepOf({{"expect", {{"identifier", "a"}, {"frame", {-1e6, 2, 3, 1e6}}}}}));
    EXPECT_EQ(framed.frame, (geometry::Rect{{-1e6, 2}, {3, 1e6}}));
    EXPECT_EQ(refusalOf([] {
                  stepOf({{"expect", {{"identifier", "a"}, {"frame", {-1000001, 0, 0, 0}}}}});
              }),
              "a: /expect/frame/0: the number -1000001 is out of range, expected a frame, x, y, width and height");
}

TEST(StepThatWaits, TakesADayAtMost) {
    EXPECT_EQ(std::get<WaitStep>(stepOf({{"wait", 86400}})).duration_s, 86400);
    EXPECT_EQ(std::get<WaitStep>(stepOf({{"wait", 0}})).duration_s, 0);
}

TEST(StepWithPlaces, HasThemInTheirOrder) {
    const auto drag = std::get<DragStep>(stepOf({{"drag", {{"from", {1, 2}}, {"to", {3, 4}}, {"duration", 5}}}}));
    EXPECT_EQ(drag.from, (geometry::Point{1, 2}));
    EXPECT_EQ(drag.to, (geometry::Point{3, 4}));
    EXPECT_EQ(drag.duration_s, 5);
    const auto press = std::get<PressStep>(stepOf({{"press", {{"at", {1, 2}}, {"duration", 5}}}}));
    EXPECT_EQ(press.at, (geometry::Point{1, 2}));
    EXPECT_EQ(press.duration_s, 5);
}

TEST(StepThatOpens, IsTheOneThatLeadsToTheScreen) {
    EXPECT_EQ(sentToOpen(StartScreen::comparison), "comparePlans");
    EXPECT_EQ(sentToOpen(StartScreen::store), "whatIsPro");
}

// --- Changes of files ---

namespace {

class ChangesOfAFile : public ::testing::Test {
protected:
    // How many looks it takes until a change is told of; 0 where none of twenty tells of one.
    int looksUntilToldOf() {
        for (int count = 1; count <= 20; ++count)
            if (changes.look()) return count;
        return 0;
    }

    tests::TemporaryFolder folder;
    std::filesystem::path file = folder.write("a.json", "one");
    FileChanges changes{[this] { return std::vector{file, folder.path() / "b.json"}; }};
};

} // namespace

TEST_F(ChangesOfAFile, AreToldOfOnceAtTheSecondLook) {
    EXPECT_EQ(looksUntilToldOf(), 0);
    folder.write("a.json", "three");
    EXPECT_EQ(looksUntilToldOf(), 2);
    EXPECT_EQ(looksUntilToldOf(), 0);
}

TEST_F(ChangesOfAFile, AreToldOfByItsTimeWhereTheSizeIsTheSame) {
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + std::chrono::seconds(5));

    EXPECT_EQ(looksUntilToldOf(), 2);
}

TEST_F(ChangesOfAFile, AreNotToldOfWhileItIsBeingWritten) {
    for (const char* const bytes : {"o", "on", "one more", "one more line"}) {
        folder.write("a.json", bytes);
        EXPECT_FALSE(changes.look()) << bytes;
    }
    EXPECT_TRUE(changes.look());
}

TEST_F(ChangesOfAFile, AreForgottenWhereItIsAsItWas) {
    const auto time = std::filesystem::last_write_time(file);
    folder.write("a.json", "three");
    EXPECT_FALSE(changes.look());

    folder.write("a.json", "one");
    std::filesystem::last_write_time(file, time);

    EXPECT_EQ(looksUntilToldOf(), 0);
}

TEST_F(ChangesOfAFile, AreALossAtTheTenthLook) {
    std::filesystem::remove(file);
    EXPECT_EQ(looksUntilToldOf(), 10);
    EXPECT_EQ(looksUntilToldOf(), 0);
    folder.write("a.json", "here again");
    EXPECT_EQ(looksUntilToldOf(), 2);
}

TEST_F(ChangesOfAFile, AreALossWhereAFolderHasItsName) {
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);

    EXPECT_EQ(looksUntilToldOf(), 10);
}

TEST_F(ChangesOfAFile, AreToldOfWhereThereWasNone) {
    folder.write("b.json", "new");

    EXPECT_EQ(looksUntilToldOf(), 2);
}

// --- Whole files ---

TEST(FileToBeWritten, StaysAsItIsWhileThatIsTried) {
    const tests::TemporaryFolder folder;
    const auto file = folder.write("a.html", "before");
    const auto other = folder.write("precious", "mine");
    std::filesystem::create_symlink(other, system::draftOf(file));

    expectWritable(file);

    EXPECT_EQ(tests::bytesOf(file), "before");
    EXPECT_EQ(tests::bytesOf(other), "mine");
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(system::draftOf(file))));
    expectWritable(folder.path() / "new.html");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "new.html"));
}

TEST(FileToBeWritten, IsRefusedWhereNoneCanBe) {
    const tests::TemporaryFolder folder;
    const std::string reason = ": /: the file cannot be written, expected a place where one can be";

    for (const std::filesystem::path& file : {folder.path(), folder.path() / "nowhere" / "a.html", std::filesystem::path()}) {
        EXPECT_EQ(refusalOf([&] { expectWritable(file); }), file.string() + reason);
        EXPECT_EQ(refusalOf([&] { writeWhole(file, "bytes"); }), file.string() + reason);
    }
    writeWhole(folder.path() / "a.html", "bytes");
    EXPECT_EQ(tests::bytesOf(folder.path() / "a.html"), "bytes");
}

} // namespace proupsells::hostprogram
