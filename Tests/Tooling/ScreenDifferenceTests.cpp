#include <gmock/gmock.h>

#include "Tooling/ScreenDifference.hpp"

namespace proupsells::tooling {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A screen as text is the shortest way to write one down.
ScreenTree treeOf(const std::string& text) { return readScreenText(text).value(); }

std::vector<std::string> changes(const std::string& before, const std::string& after) {
    return differences(treeOf(before), treeOf(after));
}

const std::string plans = "Screen [0 0 375 800]\n"
                          "  Card [16 100 343 72] identifier=\"plan.yearly\" traits=\"button\"\n"
                          "    Text [32 110 200 22] text=\"Annually\" colour=\"velaLabel\"\n"
                          "    Text [32 132 200 22] text=\"$99.99\" colour=\"velaLabel\"\n"
                          "  Card [16 180 343 72] identifier=\"plan.monthly\" traits=\"button\"\n"
                          "    Text [32 190 200 22] text=\"Monthly\" colour=\"velaLabel\"\n";

std::string with(std::string text, const std::string& old, const std::string& current) {
    for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at + current.size()))
        text.replace(at, old.size(), current);
    return text;
}

TEST(ScreenDifference, SaysNothingOfTheSameScreen) { EXPECT_THAT(changes(plans, plans), IsEmpty()); }

TEST(ScreenDifference, SaysNothingOfWhatRoundingDoes) {
    EXPECT_THAT(changes(plans, with(plans, "[32 190 ", "[32.005 189.999 ")), IsEmpty());
}

TEST(ScreenDifference, TellsWhichTextColourOrRoleHasChanged) {
    EXPECT_THAT(changes(plans, with(plans, "text=\"$99.99\"", "text=\"$89.99\"")),
                ElementsAre("Text \"$89.99\" in plan.yearly reads \"$89.99\" instead of \"$99.99\""));
    EXPECT_THAT(changes(plans, with(plans, "text=\"Monthly\" colour=\"velaLabel\"", "text=\"Monthly\" colour=\"velaAccent\"")),
                ElementsAre("Text \"Monthly\" in plan.monthly colour is \"velaAccent\" instead of \"velaLabel\""));
    EXPECT_THAT(changes(plans, with(plans, "\"plan.monthly\" traits=\"button\"", "\"plan.monthly\"")),
                ElementsAre("plan.monthly traits are none instead of \"button\""));
}

TEST(ScreenDifference, TellsOnceHowFarSomethingHasMovedWithAllThatIsInIt) {
    const std::string moved = with(with(plans, "[16 180", "[16 192"), "[32 190", "[32 202");
    EXPECT_THAT(changes(plans, moved), ElementsAre("plan.monthly moved by 0, 12"));
}

TEST(ScreenDifference, TellsWhatHasStayedWhereWhatItStandsInHasMoved) {
    EXPECT_THAT(changes(plans, with(plans, "[16 180", "[16 192")),
                ElementsAre("plan.monthly moved by 0, 12",
                            "Text \"Monthly\" in plan.monthly stays where it is, and what it stands in has moved"));
}

TEST(ScreenDifference, TellsOnlyTheOffsetOfWhatHasBeenScrolled) {
    const std::string page = "Page [0 0 375 800] offset=\"0 0\"\n  Row [0 300 375 40]\n  Bar [0 760 375 40]\n";
    EXPECT_THAT(changes(page, with(with(with(page, "0 0\"", "0 100\""), "[0 300", "[0 200"), "[0 760", "[0 660")),
                ElementsAre("Page offset is \"0 100\" instead of \"0 0\""));
}

TEST(ScreenDifference, TellsAnotherSize) {
    EXPECT_THAT(changes(plans, with(plans, "[16 180 343 72]", "[16 180 343 80.5]")),
                ElementsAre("plan.monthly is 343 x 80.5 instead of 343 x 72"));
}

TEST(ScreenDifference, TellsWhatHasComeAndGoneWithoutMistakingWhatFollowsForIt) {
    const std::string without = with(plans,
                                     "  Card [16 100 343 72] identifier=\"plan.yearly\" traits=\"button\"\n"
                                     "    Text [32 110 200 22] text=\"Annually\" colour=\"velaLabel\"\n"
                                     "    Text [32 132 200 22] text=\"$99.99\" colour=\"velaLabel\"\n",
                                     "");
    EXPECT_THAT(changes(plans, without), ElementsAre("plan.yearly is gone"));
    EXPECT_THAT(changes(without, plans), ElementsAre("plan.yearly is new, at 16 100 343 72"));
}

TEST(ScreenDifference, PairsTextsByWhatTheyReadWhenOneComesBetween) {
    const std::string between = with(plans, "    Text [32 132 200 22] text=\"$99.99\"",
                                     "    Text [32 121 200 11] text=\"Save 45%\"\n    Text [32 132 200 22] text=\"$99.99\"");
    EXPECT_THAT(changes(plans, between), ElementsAre("Text \"Save 45%\" in plan.yearly is new, at 32 121 200 11"));
}

TEST(ScreenDifference, TellsAnotherScreenAsAWhole) {
    EXPECT_THAT(changes("Paywall [0 0 375 800]\n", "Store [0 0 375 800]\n"), ElementsAre("Store is shown instead of Paywall"));
}

TEST(ScreenDifference, TakesLongListsByTheirPlaces) {
    std::string before = "Screen [0 0 375 800]\n", after = before;
    for (int i = 0; i < 5'000; ++i) {
        const std::string start = "  Row [0 " + std::to_string(i) + " 375 1] text=\"";
        before += start + std::to_string(i) + "\"\n";
        after += start + std::to_string(i == 4'000 ? -1 : i) + "\"\n";
    }
    EXPECT_THAT(changes(before, after), ElementsAre("Row \"-1\" reads \"-1\" instead of \"4000\""));
}

} // namespace
} // namespace proupsells::tooling
