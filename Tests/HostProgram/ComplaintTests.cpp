// What is said about bad input, word for word: people search for these lines, and machines show them beside the file.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "Tests/HostProgram/Complaint.hpp"

namespace proupsells::tests {

TEST(ComplaintsAboutJson, SayWhereItIsBroken) {
    expectComplaintsOfRun({
        {"", "/: the file is empty, expected a JSON object"},
        {"hello", "/: malformed JSON at line 1, column 1, expected well-formed JSON"},
        {"{\n  \"offers\": {},\n}", "/offers: malformed JSON at line 3, column 1, expected well-formed JSON"},
        {"{\"a\":\n \"\xC3\x28\"}", "/: invalid UTF-8 at line 2, column 3, expected UTF-8"},
        {R"({"offers": 1, "offers": 2})", "/offers: the key \"offers\" stands here twice, expected every key once"},
        {R"({"offers": 1e999})", "/offers: the number 1e999 is out of range, expected a smaller one"},
        {R"({"offers": {"options": [{}, {"price": 1, "price": 2}]}})",
         "/offers/options/1/price: the key \"price\" stands here twice, expected every key once"},
        {R"({"offers": [1, 2, [1e999]]})", "/offers/2/0: the number 1e999 is out of range, expected a smaller one"},
        {std::string(101, '['),
         [] {
             std::string pointer;
             for (int level = 0; level < 100; ++level) pointer += "/0";
             return pointer + ": nested too deeply, expected at most 100 levels";
         }()},
    });
}

TEST(ComplaintsAboutJson, AreNoneAboutAHundredLevels) {
    const std::string deep = std::string(99, '[') + std::string(99, ']');
    expectComplaintsOfRun({{"{\"offers\": " + deep + "}", "/offers: no offers stand here, expected an object or a file name"}});
}

// An object, an array and its numbers.
TEST(ComplaintsAboutJson, AreNoneAboutTwoMillionValues) {
    const auto offersOf = [](int count) {
        std::string numbers = "0";
        for (int number = 1; number < count; ++number) numbers += ",0";
        return "{\"options\":[" + numbers + "]}";
    };

    expectComplaints({"lint", "FILE"},
                     {{offersOf(1'999'998), "/options/0: the number 0 stands here, expected an object"},
                      {offersOf(1'999'999), "/options/1999998: there are more than 2000000 values, expected fewer"}});
}

TEST(ComplaintsAboutFiles, AreNoneAbout64Megabytes) {
    expectComplaints({"lint", "FILE"},
                     {{std::string(64u << 20, ' '), "/: malformed JSON at line 1, column 67108865, expected well-formed JSON"},
                      {std::string((64u << 20) + 1, ' '), "/: the file is larger than 64 MB, expected a smaller one"}});
}

// Files are read in parts of 65536 bytes.
TEST(ComplaintsAboutFiles, AreNoneAboutAnyLength) {
    for (const std::size_t length : {65535u, 65536u, 65537u, 131073u}) {
        const Folder folder;
        const std::string begin = "{\"options\":[]";
        const auto file = folder.write("offers.json", begin + std::string(length - begin.size() - 1, ' ') + "}");
        EXPECT_EQ(runProgram({"lint", file.string()}).errors, "") << length;
    }
}

TEST(ComplaintsAboutFiles, SayThatTheyCannotBeRead) {
    const Folder folder;
    const std::string expected = ": /: the file cannot be read, expected a readable JSON file\n";
    // Nobody opens a socket.
    const std::string path = (folder.path() / "socket").string();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(runProgram({"run", path}).errors, path + expected);
    close(socket);

    // Nothing stands where this one begins.
    const std::string memory = "/proc/self/mem";
    if (std::filesystem::exists(memory)) {
        EXPECT_EQ(runProgram({"run", memory}).errors, memory + expected);
    }
}

TEST(ComplaintsAboutFiles, SayWhatTheyAre) {
    const Folder folder;

    EXPECT_EQ(runProgram({"run", folder.path().string()}).errors,
              folder.path().string() + ": /: this is a folder, expected a JSON file\n");
    EXPECT_EQ(runProgram({"run", "nowhere.json"}).errors, "nowhere.json: /: there is no such file, expected a JSON file\n");
}

TEST(ComplaintsAboutScenarios, NameTheKeysThatThereAre) {
    expectComplaintsOfRun({
        {"[]", "/: an array stands here, expected an object"},
        {"7", "/: the number 7 stands here, expected an object"},
        {"null", "/: null stands here, expected an object"},
        {"true", "/: true stands here, expected an object"},
        {"false", "/: false stands here, expected an object"},
        {"\"a\"", "/: a text stands here, expected an object"},
        {"{}", "/: the key \"offers\" is missing, expected it here"},
        {R"({"offers": {"options": []}, "colour": 1})",
         R"(/colour: unknown key "colour", expected one of "offers", "device", "host", "inputs", "steps")"},
        {R"({"offers": {"options": []}, "host": {"name": 1}})",
         R"(/host/name: unknown key "name", expected one of "tracker", "delegate", "screen")"},
        {R"({"offers": {"options": []}, "host": {"tracker": 1}})",
         "/host/tracker: the number 1 stands here, expected true or false"},
        {R"({"offers": {"options": []}, "host": {"screen": "desk"}})",
         R"(/host/screen: "desk" is not known, expected one of "plain", "scene")"},
        {R"({"offers": {"options": []}, "steps": {}})", "/steps: an object stands here, expected an array"},
    });
}

TEST(ComplaintsAboutOffers, NameTheKeysThatThereAre) {
    expectComplaintsOfRun(aboutOffers({
        {"1", "/offers: no offers stand here, expected an object or a file name"},
        {R"("")", "/offers: the file name is empty, expected one relative to the scenario"},
        {"{}", "/offers: the key \"options\" is missing, expected it here"},
        {R"({"options": [], "price": 1})",
         R"(/offers/price: unknown key "price", expected one of "options", "referrer", "variant", "entitlement", "showLoginOnSuccess", )"
         R"("annualSubscriptionPriceForComparisonWithPromotionalPrice", "monthlySubscriptionPriceForComparisonWithPromotionalPrice", )"
         R"("shouldMentioniCloudSync")"},
        {R"({"options": [], "variant": "a"})", R"(/offers/variant: "a" is not known, expected one of "comparisonPaywall")"},
        {R"({"options": [], "entitlement": "a"})", R"(/offers/entitlement: "a" is not known, expected one of "velaPRO")"},
        {R"({"options": [], "showLoginOnSuccess": null})", "/offers/showLoginOnSuccess: null stands here, expected true or false"},
        {R"({"options": [], "shouldMentioniCloudSync": "yes"})",
         "/offers/shouldMentioniCloudSync: a text stands here, expected true or false"},
        {R"({"options": [], "annualSubscriptionPriceForComparisonWithPromotionalPrice": 1})",
         "/offers/annualSubscriptionPriceForComparisonWithPromotionalPrice: the number 1 stands here, expected a text"},
        {R"({"options": [], "monthlySubscriptionPriceForComparisonWithPromotionalPrice": 1})",
         "/offers/monthlySubscriptionPriceForComparisonWithPromotionalPrice: the number 1 stands here, expected a text"},
        {R"({"options": [], "referrer": {"elementID": 1}})", "/offers/referrer: the key \"name\" is missing, expected it here"},
        {R"({"options": [], "referrer": {"name": "a", "id": 1}})",
         R"(/offers/referrer/id: unknown key "id", expected one of "name", "elementID")"},
        {R"({"options": [], "referrer": {"name": "a", "elementID": 1.5}})",
         "/offers/referrer/elementID: the number 1.5 has a fraction, expected a whole number in 64 bits"},
        {R"({"options": [], "referrer": {"name": "a", "elementID": 9223372036854775808}})",
         "/offers/referrer/elementID: the number 9223372036854775808 is out of range, expected a whole number in 64 bits"},
        {R"({"options": [], "referrer": {"name": "a", "elementID": -1e19}})",
         "/offers/referrer/elementID: the number -1e+19 is out of range, expected a whole number in 64 bits"},
        {R"({"options": [], "referrer": {"name": "a", "elementID": 9.3e18}})",
         "/offers/referrer/elementID: the number 9.3e+18 is out of range, expected a whole number in 64 bits"},
        {R"({"options": [], "referrer": {"name": "a", "elementID": true}})",
         "/offers/referrer/elementID: neither a whole number nor a text stands here, expected one of them"},
        {R"({"options": [], "referrer": 1})", "/offers/referrer: neither a text nor an object stands here, expected one of them"},
        {R"({"options": [{"type": "weekly"}]})",
         R"(/offers/options/0/type: "weekly" is not known, expected one of "monthly", "yearly", "lifetime")"},
        {R"({"options": [{"SKU": "a", "price": "1"}]})", "/offers/options/0: the key \"type\" is missing, expected it here"},
        {R"({"options": [{"type": "monthly", "SKU": "a"}]})", "/offers/options/0: the key \"price\" is missing, expected it here"},
        {R"({"options": [{"type": "monthly", "SKU": "a", "price": "1", "hasUsedFreeTrial": 1}]})",
         "/offers/options/0/hasUsedFreeTrial: the number 1 stands here, expected true or false"},
        {R"({"options": [{"type": "monthly", "SKU": "a", "price": "1", "monthlyEffectivePrice": "1"}]})",
         R"(/offers/options/0/monthlyEffectivePrice: unknown key "monthlyEffectivePrice", expected one of "SKU", "type", "price", )"
         R"("introductoryPrice", "introductoryPeriodLength", "hasUsedFreeTrial")"},
        {R"({"options": [{"type": "lifetime", "SKU": "a", "price": "1", "introductoryPrice": "1"}]})",
         R"(/offers/options/0/introductoryPrice: unknown key "introductoryPrice", expected one of "SKU", "type", "price", )"
         R"("hasUsedFreeTrial")"},
        {R"({"options": [{"type": "yearly", "SKU": "a", "price": "1", "monthlyEffectivePrice": "1", "colour": "1"}]})",
         R"(/offers/options/0/colour: unknown key "colour", expected one of "SKU", "type", "price", "monthlyEffectivePrice", )"
         R"("introductoryPrice", "introductoryPeriodLength", "hasUsedFreeTrial")"},
    }));
}

TEST(ComplaintsAboutDevices, SayWhatIsExpected) {
    const std::string size = "/device/size: a length is out of range, expected a width and a height from 1 to 20000 points";
    const std::string scale = " is out of range, expected pixels a point, from 0.25 to 8";
    const std::string pixels = ": the window is out of range, expected at most 32000 pixels a side";
    const std::string edges = ": the safe area is out of range, expected insets that leave some of the window";
    const std::string folder = ", expected one with <language>.lproj folders";
    expectComplaintsOfRun(aboutDevices({
        {R"({"colour": 1})", R"(/device/colour: unknown key "colour", expected one of "size", "scale", "appearance", "locale", )"
                             R"("layoutDirection", "textSize", "reduceMotion", "safeArea", "strings", "fonts", "theme")"},
        {R"({"size": 375})", "/device/size: the number 375 stands here, expected a width and a height in points"},
        {R"({"size": [375]})", "/device/size: 1 elements stand here, expected a width and a height in points"},
        {R"({"size": [1, 2, 3]})", "/device/size: 3 elements stand here, expected a width and a height in points"},
        {R"({"size": [1, "2"]})", "/device/size/1: a text stands here, expected a width and a height in points"},
        {R"({"size": [-1, 2]})", "/device/size/0: the number -1 is out of range, expected a width and a height in points"},
        {R"({"size": [0.9, 800]})", size},
        {R"({"size": [375, 0.9]})", size},
        {R"({"size": [20001, 800]})", size},
        {R"({"size": [375, 20001]})", size},
        {R"({"scale": 0.2})", "/device/scale: the number 0.2" + scale},
        {R"({"scale": 8.1})", "/device/scale: the number 8.1" + scale},
        {R"({"scale": "2"})", "/device/scale: a text stands here, expected pixels a point, from 0.25 to 8"},
        {R"({"size": [16001, 100]})", "/device/size" + pixels},
        {R"({"size": [100, 16001], "scale": 2})", "/device/size" + pixels},
        {R"({"appearance": "blue"})", R"(/device/appearance: "blue" is not known, expected one of "light", "dark")"},
        {R"({"appearance": 1})", R"(/device/appearance: the number 1 stands here, expected one of "light", "dark")"},
        {R"({"layoutDirection": "up"})", R"(/device/layoutDirection: "up" is not known, expected one of "auto", "ltr", "rtl")"},
        {R"({"fonts": "own"})", R"(/device/fonts: "own" is not known, expected one of "bundled", "fixed")"},
        {R"({"textSize": "huge"})",
         R"(/device/textSize: "huge" is not known, expected one of "extraSmall", "small", "medium", "large", "extraLarge", )"
         R"("extraExtraLarge", "extraExtraExtraLarge", "accessibilityMedium", "accessibilityLarge", "accessibilityExtraLarge", )"
         R"("accessibilityExtraExtraLarge", "accessibilityExtraExtraExtraLarge")"},
        {R"({"reduceMotion": 1})", "/device/reduceMotion: the number 1 stands here, expected true or false"},
        {R"({"safeArea": [1, 2, 3]})",
         "/device/safeArea: 3 elements stand here, expected the insets top, left, bottom, right in points, not negative"},
        {R"({"safeArea": [1, 2, 3, -1]})", "/device/safeArea/3: the number -1 is out of range, expected the insets top, left, "
                                           "bottom, right in points, not negative"},
        {R"({"safeArea": [400, 0, 400, 0]})", "/device/safeArea" + edges},
        {R"({"safeArea": [0, 300, 0, 75]})", "/device/safeArea" + edges},
        {R"({"size": [100, 100], "safeArea": [50, 0, 50, 0]})", "/device/safeArea" + edges},
        {R"({"locale": ""})", R"(/device/locale: "" is no locale, expected one such as "de_AT")"},
        {R"({"locale": "1de"})", R"(/device/locale: "1de" is no locale, expected one such as "de_AT")"},
        {R"({"locale": "de AT"})", R"(/device/locale: "de AT" is no locale, expected one such as "de_AT")"},
        {R"({"locale": "_de"})", R"(/device/locale: "_de" is no locale, expected one such as "de_AT")"},
        {"{\"locale\": \"" + std::string(65, 'a') + "\"}",
         "/device/locale: \"" + std::string(65, 'a') + R"(" is no locale, expected one such as "de_AT")"},
        {R"({"strings": "nowhere"})", R"(/device/strings: there is no folder "nowhere")" + folder},
        {R"({"strings": ""})", R"(/device/strings: there is no folder "")" + folder},
        {R"({"strings": 1})", "/device/strings: the number 1 stands here, expected a text"},
        {R"({"strings": {"../de": {}}})",
         R"(/device/strings/..~1de: "../de" is no language, expected one such as "de" or "pt-BR")"},
        {R"({"strings": {"": {}}})", R"(/device/strings/: "" is no language, expected one such as "de" or "pt-BR")"},
        {"{\"strings\": {\"" + std::string(65, 'a') + "\": {}}}", "/device/strings/" + std::string(65, 'a') + ": \"" +
                                                                      std::string(65, 'a') +
                                                                      R"(" is no language, expected one such as "de" or "pt-BR")"},
        {R"({"strings": {"de": {"Pro": 1}}})", "/device/strings/de/Pro: the number 1 stands here, expected a text"},
        {R"({"strings": {"de": 1}})", "/device/strings/de: the number 1 stands here, expected an object"},
        {R"({"theme": ""})", "/device/theme: the file name is empty, expected a theme's file"},
    }));
}

TEST(ComplaintsAboutDevices, AreNoneAtTheirBounds) {
    for (const char* device :
         {R"({"size": [1, 1]})", R"({"size": [20000, 1], "scale": 1})", R"({"size": [1, 20000], "scale": 0.25})",
          R"({"size": [16000, 1]})", R"({"scale": 8, "size": [10, 10]})", R"({"safeArea": [400, 300, 399, 74]})",
          R"({"locale": "Zz-9_a"})", R"({"locale": "z0"})", R"({"locale": "A"})"}) {
        const Outcome outcome = play({{"device", Json::parse(device)}, {"offers", {{"options", Json::array()}}}});
        EXPECT_EQ(outcome.errors, "") << device;
        EXPECT_EQ(outcome.status, 0) << device;
    }
    EXPECT_EQ(play({{"device", {{"locale", std::string(64, 'a')}}}}).status, 0);
}

} // namespace proupsells::tests
