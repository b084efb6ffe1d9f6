// What is wrong with a theme, in words.
#include <gmock/gmock.h>

#include "ProUpsells/Theme.hpp"

namespace proupsells::tests {
namespace {

using graphics::rgb;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(ThemeProblems, AreNoneOfAnEmptyTheme) { EXPECT_THAT(Theme{}.problems(), IsEmpty()); }

TEST(ThemeProblems, NameAFaintPairAndItsContrast) {
    Theme theme;
    theme.colors["ContentColor.secondary"].dark = rgb(0x707070);

    EXPECT_THAT(theme.problems(), ElementsAre("ContentColor.secondary on velaBackground in dark: 3.7:1, at least 4.5:1 is needed"));
}

TEST(ThemeProblems, NameAFaintBorder) {
    Theme theme;
    theme.colors["velaBorder"].light = rgb(0xCCCCCC);

    EXPECT_THAT(theme.problems(),
                ElementsAre("velaBorder on velaBackground in light: 1.6:1, at least 3.0:1 is needed",
                            "velaBorder on velaSecondaryAppBackground in light: 1.4:1, at least 3.0:1 is needed"));
}

TEST(ThemeProblems, AreFoundInAColorThatFollowsAnother) {
    Theme theme;
    theme.colors["velaSecondaryLabel"].light = rgb(0xBBBBBB);

    EXPECT_THAT(theme.problems(), Contains("dynamicColor.10 on dynamicColor.2 in light: 1.9:1, at least 4.5:1 is needed"));
}

// 4.478 is not enough, and must not be told as 4.5.
TEST(ThemeProblems, RoundAContrastDown) {
    Theme theme;
    theme.colors["ContentColor.secondary"].light = rgb(0x777777);

    EXPECT_THAT(theme.problems(), ElementsAre(HasSubstr("in light: 4.4:1, at least 4.5:1")));
}

TEST(ThemeProblems, AreNamesThatDoNotExist) {
    Theme theme;
    theme.colors["velaBackgroud"] = {rgb(0xFFFFFF), rgb(0xFFFFFF)};
    theme.pictures["paywallHeaderE"] = {"e.png", {}};

    EXPECT_THAT(theme.problems(), ElementsAre("There is no colour \"velaBackgroud\"", "There is no picture \"paywallHeaderE\""));
}

TEST(ThemeProblems, AreColorsThatAreNotOpaque) {
    Theme theme;
    theme.colors["velaBackground"].light = rgb(0xFFFFFF, 254);
    theme.colors["focusRing"] = {rgb(0x000000, 255), rgb(0xFFFFFF, 254)};

    EXPECT_THAT(theme.problems(), ElementsAre("focusRing in dark is not opaque", "velaBackground in light is not opaque"));
}

} // namespace
} // namespace proupsells::tests
