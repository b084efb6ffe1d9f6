// What is said about bad steps, inputs, matrices, themes and lists of known findings, word for word.
#include "Tests/HostProgram/Complaint.hpp"

namespace proupsells::tests {

TEST(ComplaintsAboutSteps, SayWhatIsExpected) {
    const std::string time = " is out of range, expected seconds, not negative, a day at most";
    const std::string name = R"( is no plain file name, expected one such as "paywall.png")";
    expectComplaintsOfRun(aboutSteps({
        {"{}", "/steps/0: 0 keys stand here, expected exactly one"},
        {R"({"wait": 1, "dump": "screen"})", "/steps/0: 2 keys stand here, expected exactly one"},
        {R"({"jump": 1})",
         R"(/steps/0/jump: unknown key "jump", expected one of "tap", "drag", "press", "key", "wait", "send", "set", )"
         R"("release", "dump", "snapshot", "expect")"},
        {R"({"wait": 1}, {"wait": -0.5})", "/steps/1/wait: the number -0.5" + time},
        {R"({"wait": 86400.5})", "/steps/0/wait: the number 86400.5" + time},
        {R"({"wait": "1"})", "/steps/0/wait: a text stands here, expected seconds, not negative, a day at most"},
        {R"({"tap": 1})", "/steps/0/tap: this cannot be tapped, expected a text, a point or an object with an identifier"},
        {R"({"tap": {"name": "a"}})", R"(/steps/0/tap/name: unknown key "name", expected one of "identifier")"},
        {R"({"tap": {}})", "/steps/0/tap: the key \"identifier\" is missing, expected it here"},
        {R"({"tap": [1]})", "/steps/0/tap: 1 elements stand here, expected a point, x and y"},
        {R"({"tap": [1, 1000001]})", "/steps/0/tap/1: the number 1000001 is out of range, expected a point, x and y"},
        {R"({"tap": [-1000001, 1]})", "/steps/0/tap/0: the number -1000001 is out of range, expected a point, x and y"},
        {R"({"drag": {"by": 1}})", R"(/steps/0/drag/by: unknown key "by", expected one of "from", "to", "duration")"},
        {R"({"drag": {"from": [0, 0], "to": [1, 1]}})", "/steps/0/drag: the key \"duration\" is missing, expected it here"},
        {R"({"drag": {"to": [1, 1], "duration": 1}})", "/steps/0/drag: the key \"from\" is missing, expected it here"},
        {R"({"press": {"from": [1, 1]}})", R"(/steps/0/press/from: unknown key "from", expected one of "at", "duration")"},
        {R"({"press": {"duration": 1}})", "/steps/0/press: the key \"at\" is missing, expected it here"},
        {R"({"press": {"at": [1, 1]}})", "/steps/0/press: the key \"duration\" is missing, expected it here"},
        {R"({"key": "enter"})",
         R"(/steps/0/key: "enter" is not known, expected one of "tab", "backTab", "return", "space", "escape", )"
         R"("up", "down", "left", "right", "pageUp", "pageDown", "home", "end")"},
        {R"({"send": "purchase"})", R"(/steps/0/send: "purchase" is not known, expected one of "cancel", "restorePurchases", )"
                                    R"("whatIsPro", "privacyPolicy", "termsOfService", "comparePlans")"},
        {R"({"set": {}})", "/steps/0/set: nothing is set here, expected at least one key"},
        {R"({"set": {"colour": 1}})", R"(/steps/0/set/colour: unknown key "colour", expected options, a comparison price, )"
                                      "shouldMentioniCloudSync or a key of a device"},
        {R"({"set": {"shouldMentioniCloudSync": null}})",
         "/steps/0/set/shouldMentioniCloudSync: null stands here, expected true or false"},
        {R"({"set": {"annualSubscriptionPriceForComparisonWithPromotionalPrice": 1}})",
         "/steps/0/set/annualSubscriptionPriceForComparisonWithPromotionalPrice: the number 1 stands here, expected a text"},
        {R"({"set": {"options": 1}})", "/steps/0/set/options: the number 1 stands here, expected an array"},
        {R"({"release": "window"})", R"(/steps/0/release: "window" is not known, expected one of "delegate", "tracker")"},
        {R"({"dump": "window"})", R"(/steps/0/dump: "window" is not known, expected one of "screen")"},
        {R"({"snapshot": "a/b.png"})", "/steps/0/snapshot: \"a/b.png\"" + name},
        {R"({"snapshot": ""})", "/steps/0/snapshot: \"\"" + name},
        {R"({"snapshot": "."})", "/steps/0/snapshot: \".\"" + name},
        {R"({"snapshot": ".."})", "/steps/0/snapshot: \"..\"" + name},
        {"{\"snapshot\": \"" + std::string(256, 'a') + "\"}", "/steps/0/snapshot: \"" + std::string(256, 'a') + "\"" + name},
        {R"({"expect": {}})", "/steps/0/expect: the key \"identifier\" is missing, expected it here"},
        {R"({"expect": {"absent": "a", "label": "b"}})", R"(/steps/0/expect/label: unknown key "label", expected one of "absent")"},
        {R"({"expect": {"identifier": "a", "colour": "b"}})",
         R"(/steps/0/expect/colour: unknown key "colour", expected one of "identifier", "label", "value", "text", "onScreen", )"
         R"("traits", "frame")"},
        {R"({"expect": {"identifier": "a", "frame": [1, 2, 3]}})",
         "/steps/0/expect/frame: 3 elements stand here, expected a frame, x, y, width and height"},
        {R"({"expect": {"identifier": "a", "traits": "button"}})", "/steps/0/expect/traits: a text stands here, expected an array"},
        {R"({"expect": {"identifier": "a", "traits": [1]}})",
         "/steps/0/expect/traits/0: the number 1 stands here, expected a text"},
        {R"({"expect": {"identifier": "a", "onScreen": "yes"}})",
         "/steps/0/expect/onScreen: a text stands here, expected true or false"},
    }));
}

TEST(ComplaintsAboutInputs, SayWhatIsExpected) {
    const std::string size = "/inputs/0/size: a length is out of range, expected a width and a height up to 20000 points";
    expectComplaintsOfRun(aboutInputs({
        {R"({"time": -1})", "/inputs/0/time: the number -1 is out of range, expected seconds, not negative"},
        {R"({"time": 10000001})", "/inputs/0/time: the number 10000001 is out of range, expected seconds, not negative"},
        {R"({"time": 2, "key": "tab"}, {"time": 1.9, "key": "tab"})",
         "/inputs/1/time: the time lies before the last one, expected times that do not go back"},
        {R"({"frames": [1], "time": 1})", R"(/inputs/0/time: unknown key "time", expected one of "frames", "areRead")"},
        {R"({"frames": 1})", "/inputs/0/frames: the number 1 stands here, expected an array"},
        {R"({"time": 1, "wait": 1})",
         R"(/inputs/0/wait: unknown key "wait", expected one of "time", "touch", "at", "pointer", "scroll", "key", "isRepeated", )"
         R"("focusLeaves", "focus", "isSeen", "size", "safeArea", "assist", "element", "look", "isEarly", "set", "send", "offers")"},
        {R"({"time": 1, "at": [1, 1]})", R"(/inputs/0/at: unknown key "at", expected one of "time")"},
        {R"({"time": 1, "touch": "hovered", "at": [1, 1]})",
         R"(/inputs/0/touch: "hovered" is not known, expected one of "began", "moved", "ended", "cancelled")"},
        {R"({"time": 1, "touch": "began", "at": [1, 1], "key": "tab"})",
         R"(/inputs/0/key: unknown key "key", expected one of "time", "touch", "at")"},
        {R"({"time": 1, "pointer": [1, 1], "at": [1, 1]})", R"(/inputs/0/at: unknown key "at", expected one of "time", "pointer")"},
        {R"({"time": 1, "scroll": [1, 1]})", "/inputs/0: the key \"at\" is missing, expected it here"},
        {R"({"time": 1, "scroll": [1, 1], "at": [1, 1], "isEarly": true})",
         R"(/inputs/0/isEarly: unknown key "isEarly", expected one of "time", "scroll", "at")"},
        {R"({"time": 1, "key": "tab", "isRepeated": 1})", "/inputs/0/isRepeated: the number 1 stands here, expected true or false"},
        {R"({"time": 1, "focusLeaves": 1})", "/inputs/0/focusLeaves: the number 1 stands here, expected true or false"},
        {R"({"time": 1, "focus": "middle"})", R"(/inputs/0/focus: "middle" is not known, expected one of "first", "last")"},
        {R"({"time": 1, "isSeen": 1})", "/inputs/0/isSeen: the number 1 stands here, expected true or false"},
        {R"({"time": 1, "size": [20001, 1], "safeArea": [0, 0, 0, 0]})", size},
        {R"({"time": 1, "size": [1, 20001], "safeArea": [0, 0, 0, 0]})", size},
        {R"({"time": 1, "size": [1], "safeArea": [0, 0, 0, 0]})",
         "/inputs/0/size: 1 elements stand here, expected a width and a height in points"},
        {R"({"time": 1, "size": [1, 1]})", "/inputs/0: the key \"safeArea\" is missing, expected it here"},
        {R"({"time": 1, "size": [1, 1], "safeArea": [0, 0, 0]})",
         "/inputs/0/safeArea: 3 elements stand here, expected the insets top, left, bottom, right in points, not negative"},
        {R"({"time": 1, "assist": "focus"})", "/inputs/0: the key \"element\" is missing, expected it here"},
        {R"({"time": 1, "assist": "focus", "element": -1})",
         "/inputs/0/element: the number is negative, expected that of an element of the reading, from 0"},
        {R"({"time": 1, "assist": "push", "element": 0})",
         R"(/inputs/0/assist: "push" is not known, expected one of "activate", "increase", "decrease", "reveal", "revealWhole", )"
         R"("focus")"},
        {R"({"time": 1, "look": "picture"})", R"(/inputs/0/look: "picture" is not known, expected one of "frame", "reading")"},
        {R"({"time": 1, "look": "frame", "isEarly": 1})", "/inputs/0/isEarly: the number 1 stands here, expected true or false"},
        {R"({"time": 1, "set": {"appearance": "dark"}, "send": "cancel"})",
         R"(/inputs/0/send: unknown key "send", expected one of "time", "set")"},
        {R"({"time": 1, "offers": {"options": []}, "send": "cancel"})",
         R"(/inputs/0/send: unknown key "send", expected one of "time", "offers")"},
        {R"({"time": 1, "send": "cancel", "isEarly": true})",
         R"(/inputs/0/isEarly: unknown key "isEarly", expected one of "time", "send")"},
    }));
}

TEST(ComplaintsAboutInputs, AreNoneAtTheirBounds) {
    const Json inputs{{{"frames", {0.5, 0.5}}, {"areRead", true}},
                      {{"time", 0.5}, {"size", {20000, 20000}}, {"safeArea", {0, 0, 0, 0}}},
                      {{"time", 0.5}, {"size", {0, 0}}, {"safeArea", {1, 2, 3, 4}}},
                      {{"time", 0.5}, {"assist", "focus"}, {"element", 0}}};

    const Outcome outcome = play({{"inputs", inputs}});

    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST(ComplaintsAboutMatrices, SayWhatIsExpected) {
    const std::string arrays = ": the array is empty, expected at least one value";
    std::vector<Complaint> shared{
        {R"({"screens": []})", "/screens" + arrays},
        {R"({"locales": []})", "/locales" + arrays},
        {R"({"sizes": []})", "/sizes" + arrays},
        {R"({"textSizes": []})", "/textSizes" + arrays},
        {R"({"appearances": []})", "/appearances" + arrays},
        {R"({"screens": ["login"]})", R"(/screens/0: "login" is not known, expected one of "paywall", "comparison", "store")"},
        {R"({"locales": ["de", "?"]})", R"(/locales/1: "?" is no locale, expected one such as "de_AT")"},
        {R"({"sizes": [[0, 1]]})", "/sizes/0: a length is out of range, expected a width and a height from 1 to 20000 points"},
    };
    expectComplaints({"audit", "--matrix", "FILE"}, shared);
    expectComplaints({"audit", "--matrix", "FILE"},
                     {{R"({"scale": 2})", R"(/scale: unknown key "scale", expected one of "screens", "locales", "sizes", )"
                                          R"("textSizes", "appearances")"}});
    const Folder folder;
    const std::string out = (folder.path() / "out").string();
    expectComplaints({"gallery", "--matrix", "FILE", "--out", out}, shared);
    expectComplaints({"gallery", "--matrix", "FILE", "--out", out},
                     {{R"({"colour": 2})", R"(/colour: unknown key "colour", expected one of "screens", "locales", "sizes", )"
                                           R"("textSizes", "appearances", "scale")"},
                      {R"({"scale": 9})", "/scale: the number 9 is out of range, expected pixels a point, from 0.25 to 8"},
                      {R"({"scale": 8, "sizes": [[100, 100], [4001, 1]]})",
                       "/scale: the window is out of range, expected at most 32000 pixels a side"}});
}

TEST(ComplaintsAboutAcceptedFindings, SayWhatIsExpected) {
    const std::string offers = PROUPSELLS_SOURCES "/Examples/offers.json";
    expectComplaints(
        {"lint", offers, "--accept", "FILE"},
        {{"{}", "/: the key \"accepted\" is missing, expected it here"},
         {R"({"accepted": [], "rule": 1})", R"(/rule: unknown key "rule", expected one of "accepted")"},
         {R"({"accepted": [{"rule": "a"}]})", "/accepted/0: the key \"reason\" is missing, expected it here"},
         {R"({"accepted": [{"rule": "a", "reason": ""}]})",
          "/accepted/0/reason: the reason is empty, expected why the finding is let be"},
         {R"({"accepted": [{"reason": "a"}]})", "/accepted/0: this would cover every finding, expected a rule or another key"},
         {R"({"accepted": [{"rule": 1, "reason": "a"}]})", "/accepted/0/rule: the number 1 stands here, expected a text"},
         {R"({"accepted": [{"rules": "a", "reason": "a"}]})",
          R"(/accepted/0/rules: unknown key "rules", expected one of "rule", "file", "place", "screen", "identifier", )"
          R"("path", "reason")"}});
}

TEST(ComplaintsAboutThemes, SayWhatIsExpected) {
    const std::string colour = " is no colour, expected one such as \"#0A7C78\"";
    expectComplaints(
        {"audit", "--theme", "FILE"},
        {{R"({"colors": {}})", R"(/colors: unknown key "colors", expected one of "colours", "faces", "pictures")"},
         {R"({"files": {}})", R"(/files: unknown key "files", expected one of "colours", "faces", "pictures")"},
         {R"({"colours": {"focusRing": "#12345"}})", "/colours/focusRing: \"#12345\"" + colour},
         {R"({"colours": {"focusRing": "#1234567"}})", "/colours/focusRing: \"#1234567\"" + colour},
         {R"({"colours": {"focusRing": "0123456"}})", "/colours/focusRing: \"0123456\"" + colour},
         {R"({"colours": {"focusRing": "#12345G"}})", "/colours/focusRing: \"#12345G\"" + colour},
         {R"({"colours": {"focusRing": "#/23456"}})", "/colours/focusRing: \"#/23456\"" + colour},
         {R"({"colours": {"focusRing": "#:23456"}})", "/colours/focusRing: \"#:23456\"" + colour},
         {R"({"colours": {"focusRing": "#@23456"}})", "/colours/focusRing: \"#@23456\"" + colour},
         {R"({"colours": {"focusRing": {"light": "#12345g"}}})", "/colours/focusRing/light: \"#12345g\"" + colour},
         {R"({"colours": {"focusRing": {"dark": "blue"}}})", "/colours/focusRing/dark: \"blue\"" + colour},
         {R"({"colours": {"focusRing": {"day": "#123456"}}})",
          R"(/colours/focusRing/day: unknown key "day", expected one of "light", "dark")"},
         {R"({"faces": {"small": "A"}})", R"(/faces/small: unknown key "small", expected one of "text", "display", "headings")"},
         {R"({"faces": {"text": ""}})", "/faces/text: the name is empty, expected that of a typeface's family"},
         {R"({"faces": {"display": {"family": "A", "size": 1}}})",
          R"(/faces/display/size: unknown key "size", expected one of "family", "files")"},
         {R"({"faces": {"headings": {"files": []}}})", "/faces/headings: the key \"family\" is missing, expected it here"},
         {R"({"faces": {"text": {"family": "A", "files": [{"weight": 400}]}}})",
          "/faces/text/files/0: the key \"file\" is missing, expected it here"},
         {R"({"faces": {"text": {"family": "A", "files": [{"file": "a.ttf", "size": 1}]}}})",
          R"(/faces/text/files/0/size: unknown key "size", expected one of "file", "weight")"},
         {R"({"faces": {"text": {"family": "A", "files": [{"file": "a.ttf", "weight": 0}]}}})",
          "/faces/text/files/0/weight: the weight is out of range, expected 1 to 1000"},
         {R"({"faces": {"text": {"family": "A", "files": [{"file": "a.ttf", "weight": 1001}]}}})",
          "/faces/text/files/0/weight: the weight is out of range, expected 1 to 1000"},
         {R"({"pictures": {"diamond24": ""}})", "/pictures/diamond24: the file name is empty, expected one relative to the theme"},
         {R"({"pictures": {"diamond24": {"dark": "a.png"}}})",
          "/pictures/diamond24: the key \"light\" is missing, expected it here"},
         {R"({"pictures": {"diamond24": {"light": "a.png", "day": "a.png"}}})",
          R"(/pictures/diamond24/day: unknown key "day", expected one of "light", "dark")"}});
}

TEST(ComplaintsAboutThemes, AreToldOfThoseInsideAScenario) {
    expectComplaintsOfRun(aboutDevices({
        {R"({"theme": {"file": {}}})",
         R"(/device/theme/file: unknown key "file", expected one of "colours", "faces", "pictures", "files")"},
        {R"({"theme": {"files": {"a.png": "AB=C"}}})",
         "/device/theme/files/a.png: the bytes cannot be read, expected a text in Base64"},
        {R"({"theme": {"files": {"a/b": "AAAA"}}})",
         R"(/device/theme/files/a~1b: "a/b" is no plain file name, expected one such as "header.png")"},
        {R"({"theme": {"files": {"": "AAAA"}}})",
         R"(/device/theme/files/: "" is no plain file name, expected one such as "header.png")"},
    }));
}

} // namespace proupsells::tests
