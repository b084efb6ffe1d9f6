// What real typefaces make of the texts.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {
namespace {

// The first node with a text that begins like this; null when there is none.
Json findText(const Json& root, const std::string& beginning) {
    if (root.contains("text") && root["text"].get<std::string>().starts_with(beginning)) return root;
    if (root.contains("children"))
        for (const Json& child : root["children"])
            if (Json found = findText(child, beginning); !found.is_null()) return found;
    return nullptr;
}

double bottomOf(const Json& node) { return node["frame"][1].get<double>() + node["frame"][3].get<double>(); }

// The store page at its end.
Json endOfStorePage(double width, double height) {
    Json steps = Json::array({{{"send", "whatIsPro"}}});
    for (int i = 0; i < 12; ++i) {
        steps.push_back({{"drag", {{"from", {width / 2, height * 0.7}}, {"to", {width / 2, 10}}, {"duration", 0.2}}}});
        steps.push_back({{"wait", 2}});
    }
    steps.push_back({{"dump", "screen"}});
    const Outcome outcome = play({{"device", {{"size", {width, height}}, {"fonts", "bundled"}}}, {"steps", steps}});
    return outcome.events("screen").at(0)["root"];
}

class StorePageEnd : public ::testing::TestWithParam<double> {};

TEST_P(StorePageEnd, ShowsTheLastTextAboveTheBar) {
    const Json root = endOfStorePage(GetParam(), 667);
    const Json text = findText(root, "Exclusive access"), button = find(root, "store.choosePlan");
    ASSERT_FALSE(text.is_null());

    constexpr double barAboveButton = 22;
    EXPECT_LE(bottomOf(text), button["frame"][1].get<double>() - barAboveButton);
    EXPECT_GE(text["size"].get<double>(), 0.8 * 16);
    EXPECT_EQ(text["truncated"], false);
}

INSTANTIATE_TEST_SUITE_P(Widths, StorePageEnd, ::testing::Values(320, 360, 375, 390));

// The lower third of the pictures, which is dark, has room for three.
TEST(HeaderTitle, HasThreeLinesAtMost) {
    for (const std::string locale : {"de_DE", "fr_FR", "ru_RU"}) {
        Json steps = Json::array();
        for (int page = 0; page < 4; ++page) {
            steps.push_back({{"dump", "screen"}});
            steps.push_back({{"wait", 5}});
        }
        const Json device{{"size", {320, 568}},
                          {"fonts", "bundled"},
                          {"locale", locale},
                          {"textSize", "accessibilityLarge"},
                          {"strings", std::filesystem::absolute("Examples/Translations").string()}};
        const Outcome outcome = play({{"device", device}, {"steps", steps}});

        for (const Json& screen : outcome.events("screen")) {
            const Json title = findText(screen["root"], ""); // the first text of the page
            ASSERT_FALSE(title.is_null()) << locale;
            EXPECT_LE(bottomOf(title), 254) << title;
            EXPECT_LE(title["lines"].get<int>(), 3) << title;
            EXPECT_EQ(title["truncated"], false) << title;
        }
    }
}

} // namespace
} // namespace proupsells::tests
