// Bad input gets one line that names the file, the place and what was expected, and nothing else.

#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace {

struct BadScenario {
    const char* name;
    std::string bytes;
    const char* pointer;
    const char* complaint;
};

void PrintTo(const BadScenario& scenario, std::ostream* stream) { *stream << scenario.name; }

class BadScenarioFile : public testing::TestWithParam<BadScenario> {};

// A scenario around one bad thing.
std::string offers(const std::string& bad) { return R"({"offers": )" + bad + "}"; }
std::string option(const std::string& bad) { return offers(R"({"options": [)" + bad + "]}"); }
std::string device(const std::string& bad) { return R"({"offers": {"options": []}, "device": )" + bad + "}"; }
std::string step(const std::string& bad) { return R"({"offers": {"options": []}, "steps": [)" + bad + "]}"; }
std::string input(const std::string& bad) { return R"({"offers": {"options": []}, "inputs": [)" + bad + "]}"; }

const std::string yearly = R"({"SKU": "a", "type": "yearly", "price": "1", "monthlyEffectivePrice": "1"})";

} // namespace

TEST_P(BadScenarioFile, IsRefusedInOneLine) {
    const Folder folder;
    const auto file = folder.write("scenario.json", GetParam().bytes);

    const Outcome outcome = runProgram({"run", file.string(), "--out", (folder.path() / "out").string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.output, IsEmpty());
    ASSERT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
    EXPECT_THAT(outcome.errors, StartsWith(file.string() + ": " + GetParam().pointer + ": "));
    EXPECT_THAT(outcome.errors, HasSubstr(GetParam().complaint));
    EXPECT_THAT(outcome.errors, HasSubstr("expected"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "out"));
}

INSTANTIATE_TEST_SUITE_P(
    HostProgram, BadScenarioFile,
    testing::Values(
        BadScenario{"Empty", "", "/", "empty"}, BadScenario{"NotJson", "hello", "/", "malformed JSON"},
        BadScenario{"CutShort", R"({"offers": {"options": [)", "/offers/options/0", "malformed JSON"},
        BadScenario{"InvalidUtf8", "{\"offers\": \"\xC3\x28\"}", "/", "invalid UTF-8"},
        BadScenario{"OverlongUtf8", "{\"offers\": \"\xC0\xAF\"}", "/", "invalid UTF-8"},
        BadScenario{"NotAnObject", "[]", "/", "an array"}, BadScenario{"NoOffers", "{}", "/", "\"offers\" is missing"},
        BadScenario{"TwiceTheSameKey", R"({"offers": {"options": [], "options": []}})", "/offers/options", "twice"},
        BadScenario{"UnknownKey", R"({"offers": {"options": []}, "colour": 1})", "/colour", "unknown key"},
        BadScenario{"NoOptions", offers("{}"), "/offers", "\"options\" is missing"},
        BadScenario{"OptionsAreNoArray", offers(R"({"options": {}})"), "/offers/options", "an object"},
        BadScenario{"OptionIsNoObject", option("5"), "/offers/options/0", "the number 5"},
        BadScenario{"UnknownType", option(R"({"SKU": "a", "type": "weekly", "price": "1"})"), "/offers/options/0/type", "weekly"},
        BadScenario{"NoSKU", option(R"({"type": "monthly", "price": "1"})"), "/offers/options/0", "\"SKU\" is missing"},
        BadScenario{"NoMonthlyEffectivePrice", option(R"({"SKU": "a", "type": "yearly", "price": "1"})"), "/offers/options/0",
                    "\"monthlyEffectivePrice\" is missing"},
        BadScenario{"KeyOfAnotherType", option(R"({"SKU": "a", "type": "lifetime", "price": "1", "introductoryPrice": "1"})"),
                    "/offers/options/0/introductoryPrice", "unknown key"},
        BadScenario{"PriceIsNoText", option(R"({"SKU": "a", "type": "monthly", "price": 1})"), "/offers/options/0/price",
                    "the number 1"},
        BadScenario{"ElementIdTooLarge", offers(R"({"options": [], "referrer": {"name": "a", "elementID": 9223372036854775808}})"),
                    "/offers/referrer/elementID", "64 bits"},
        BadScenario{"ElementIdWithFraction", offers(R"({"options": [], "referrer": {"name": "a", "elementID": 1.5}})"),
                    "/offers/referrer/elementID", "fraction"},
        BadScenario{"NumberOutOfRange", device(R"({"scale": 1e999})"), "/device/scale", "out of range"},
        BadScenario{"SizeWithOneLength", device(R"({"size": [375]})"), "/device/size", "width and a height"},
        BadScenario{"NegativeSize", device(R"({"size": [-1, 800]})"), "/device/size/0", "out of range"},
        BadScenario{"NoScale", device(R"({"scale": 0})"), "/device/scale", "out of range"},
        BadScenario{"UnknownAppearance", device(R"({"appearance": "blue"})"), "/device/appearance", "blue"},
        BadScenario{"UnknownTextSize", device(R"({"textSize": "huge"})"), "/device/textSize", "huge"},
        BadScenario{"MissingStrings", device(R"({"strings": "nowhere"})"), "/device/strings", "no folder"},
        BadScenario{"SafeAreaLeavesNothing", device(R"({"size": [300, 100], "safeArea": [50, 0, 50, 0]})"), "/device/safeArea",
                    "out of range"},
        BadScenario{"StepWithTwoKeys", step(R"({"wait": 1, "dump": "screen"})"), "/steps/0", "exactly one"},
        BadScenario{"StepWithoutKey", step("{}"), "/steps/0", "exactly one"},
        BadScenario{"UnknownStep", step(R"({"jump": 1})"), "/steps/0/jump", "unknown key"},
        BadScenario{"NegativeWait", step(R"({"wait": -1})"), "/steps/0/wait", "not negative"},
        BadScenario{"WaitOfMonths", step(R"({"wait": 10000000})"), "/steps/0/wait", "out of range"},
        BadScenario{"DragOfMonths", step(R"({"drag": {"from": [0, 0], "to": [0, 9], "duration": 10000000}})"),
                    "/steps/0/drag/duration", "out of range"},
        BadScenario{"TooManyPixels", device(R"({"size": [20000, 100], "scale": 2})"), "/device/size", "32000 pixels"},
        BadScenario{"DragWithoutEnd", step(R"({"drag": {"from": [0, 0], "duration": 1}})"), "/steps/0/drag", "\"to\" is missing"},
        BadScenario{"SentPurchase", step(R"({"send": "purchase"})"), "/steps/0/send", "purchase"},
        BadScenario{"SetNothing", step(R"({"set": {}})"), "/steps/0/set", "at least one"},
        BadScenario{"SetUnknown", step(R"({"set": {"a/b~c": 1}})"), "/steps/0/set/a~1b~0c", "unknown key"},
        BadScenario{"SnapshotInAFolder", step(R"({"snapshot": "../x.png"})"), "/steps/0/snapshot", "plain file name"},
        BadScenario{"ExpectWithoutIdentifier", step(R"({"expect": {"label": "x"}})"), "/steps/0/expect",
                    "\"identifier\" is missing"},
        BadScenario{"InputWithoutTime", input(R"({"key": "tab"})"), "/inputs/0", "\"time\" is missing"},
        BadScenario{"InputThatGoesBack", input(R"({"time": 2, "key": "tab"}, {"frames": [2, 1]})"), "/inputs/1/frames/1",
                    "do not go back"},
        BadScenario{"InputOfTwoKinds", input(R"({"time": 1, "key": "tab", "focus": null})"), "/inputs/0/focus", "unknown key"},
        BadScenario{"TouchWithoutPlace", input(R"({"time": 1, "touch": "began"})"), "/inputs/0", "\"at\" is missing"},
        BadScenario{"UnknownTouch", input(R"({"time": 1, "touch": "hovered", "at": [1, 1]})"), "/inputs/0/touch", "hovered"},
        BadScenario{"NegativeElement", input(R"({"time": 1, "assist": "focus", "element": -1})"), "/inputs/0/element", "negative"},
        BadScenario{"SetOfARecordingIsEmpty", input(R"({"time": 1, "set": {}})"), "/inputs/0/set", "at least one"},
        BadScenario{"HugeWindow", input(R"({"time": 1, "size": [30000, 1], "safeArea": [0, 0, 0, 0]})"), "/inputs/0/size",
                    "out of range"},
        BadScenario{"UnknownHostScreen", R"({"offers": {"options": []}, "host": {"screen": "desk"}})", "/host/screen", "desk"},
        BadScenario{"InlineStringsInNoLanguage", device(R"({"strings": {"../de": {}}})"), "/device/strings/..~1de", "no language"},
        BadScenario{"InlineStringIsNoText", device(R"({"strings": {"de": {"Pro": 1}}})"), "/device/strings/de/Pro", "the number 1"},
        BadScenario{"InlineThemeWithUnknownColour", device(R"({"theme": {"colours": {"ink": "#000000"}}})"),
                    "/device/theme/colours/ink", "unknown key"},
        BadScenario{"InlineFileIsNoBase64", device(R"({"theme": {"files": {"a.png": "AB=C"}}})"), "/device/theme/files/a.png",
                    "Base64"},
        BadScenario{"InlineFileInAFolder", device(R"({"theme": {"files": {"../a.png": "AAAA"}}})"), "/device/theme/files/..~1a.png",
                    "plain file name"},
        BadScenario{"LaterStepIsBad", step(R"({"snapshot": "x.png"}, {"wait": "long"})"), "/steps/1/wait", "a text"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(HostProgram, RefusesAFolder) {
    const Folder folder;

    const Outcome outcome = runProgram({"run", folder.path().string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(outcome.errors, HasSubstr("folder"));
}

TEST(HostProgram, RefusesAMissingFile) {
    const Outcome outcome = runProgram({"run", "nowhere.json"});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, StartsWith("nowhere.json: /: "));
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
}

TEST(HostProgram, RefusesAFileOver64Megabytes) {
    const Folder folder;
    const auto file = folder.write("scenario.json", std::string((64u << 20) + 1, ' '));

    const Outcome outcome = runProgram({"run", file.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("64 MB"));
}

TEST(HostProgram, RefusesMoreValuesThanItReads) {
    const Folder folder;
    std::string options = "{\"options\":[0";
    for (int count = 0; count < 10'000'000; ++count) options += ",0";
    const auto file = folder.write("offers.json", options + "]}");

    const Outcome outcome = runProgram({"lint", file.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("there are more than 2000000 values, expected fewer"));
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
}

TEST(HostProgram, RefusesAbsurdNesting) {
    const Folder folder;
    const auto file = folder.write("scenario.json", std::string(1'000'000, '['));

    const Outcome outcome = runProgram({"run", file.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(outcome.errors, HasSubstr("nested"));
}

TEST(HostProgram, NamesTheOffersFileThatIsBad) {
    const Folder folder;
    const auto offersFile = folder.write("offers.json", std::string(R"({"options": 1})"));
    const auto file = folder.write("scenario.json", std::string(R"({"offers": "offers.json"})"));

    const Outcome outcome = runProgram({"run", file.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, StartsWith(offersFile.string() + ": /options: "));
}

TEST(HostProgram, RefusesUnknownArguments) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{{},
                                                                                           {"fly"},
                                                                                           {"run"},
                                                                                           {"run", "a.json", "--speed", "2"},
                                                                                           {"show", "--size", "wide"},
                                                                                           {"show", "--size", "375x"},
                                                                                           {"show", "--appearance", "blue"},
                                                                                           {"show", "--start", "end"},
                                                                                           {"show", "--safe-area", "1,2,3"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));

        const Outcome outcome = runProgram(arguments);

        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.output, IsEmpty());
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
    }
}
