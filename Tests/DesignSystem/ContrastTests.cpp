#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "Platform/Graphics/Contrast.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/SwiftUI/Tree/EnvironmentValues.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "Platform/VelaUIKit/VelaPrimaryButtonStyle.hpp"

using namespace proupsells;

namespace proupsells::velauikit {

void PrintTo(const ColorPair& pair, std::ostream* out) { *out << pair.foreground.name << " on " << pair.background.name; }

} // namespace proupsells::velauikit

namespace {

using graphics::Color;
using graphics::ColorScheme;
using velauikit::ColorPair;

class Contrast : public ::testing::TestWithParam<ColorPair> {
protected:
    static void expectAtLeast(const ColorPair& pair, double least) {
        for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark})
            EXPECT_GE(contrast(pair.foreground.own(scheme), pair.background.own(scheme)), least)
                << (scheme == ColorScheme::dark ? "dark" : "light");
    }
};

TEST_P(Contrast, IsEnoughInBothAppearances) { expectAtLeast(GetParam(), GetParam().leastContrast()); }

// Ours do better than they must.
TEST_P(Contrast, OfWhatIsReadFirstIsAtLeast7) {
    const Color readFirst[] = {lumokit::ContentColor::primary, lumokit::platformPrimary, velauikit::velaLabel,
                               velauikit::dynamicColor(9)};
    if (std::find(std::begin(readFirst), std::end(readFirst), GetParam().foreground) == std::end(readFirst)) return;

    expectAtLeast(GetParam(), 7);
}

// The accent is a border on screens, and strong enough for texts.
TEST_P(Contrast, OfTheAccentIsEnoughForTexts) {
    if (GetParam().foreground == velauikit::marwickContentAccent) expectAtLeast(GetParam(), 4.5);
}

INSTANTIATE_TEST_SUITE_P(OfColors, Contrast, ::testing::ValuesIn(velauikit::colorPairs().begin(), velauikit::colorPairs().end()));

// Of a color that is laid over another.
graphics::RGBA blended(graphics::RGBA over, graphics::RGBA below, double opacity) {
    const auto channel = [&](std::uint8_t a, std::uint8_t b) { return std::uint8_t(std::lround(a * opacity + b * (1 - opacity))); };
    return {channel(over.red, below.red), channel(over.green, below.green), channel(over.blue, below.blue), 255};
}

TEST(DisabledPrimaryButton, KeepsItsTextReadable) {
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        const graphics::RGBA page = velauikit::velaBackground.own(scheme);
        const graphics::RGBA plate =
            blended(velauikit::marwickContentAccent.own(scheme), page, velauikit::VelaPrimaryButtonStyle::disabledPlateOpacity);
        EXPECT_GE(contrast(velauikit::velaLabel.own(scheme), plate), 4.5);
    }
}

TEST(DesignColors, HaveOneInk) {
    const Color defaultForeground = swiftui::EnvironmentValues{}.foregroundStyle;
    for (const Color& color : {velauikit::velaLabel, lumokit::ContentColor::primary, lumokit::platformPrimary, defaultForeground}) {
        EXPECT_EQ(color.light, graphics::rgb(0x15191C)) << color.name;
        EXPECT_EQ(color.dark, graphics::rgb(0xF3F5F4)) << color.name;
    }
}

TEST(DesignColors, HaveEveryNameOnce) {
    std::set<std::string_view> names;

    for (const velauikit::DesignColor& entry : velauikit::designColors()) EXPECT_TRUE(names.insert(entry.color.name).second);
}

TEST(DesignColors, AreFoundByName) {
    EXPECT_EQ(velauikit::findDesignColor("velaBorder")->color, velauikit::velaBorder);
    EXPECT_EQ(velauikit::findDesignColor("velaborder"), nullptr);
}

TEST(DesignColors, HaveTheValuesOfThoseThatTheyFollow) {
    for (const velauikit::DesignColor& entry : velauikit::designColors()) {
        if (entry.follows.empty()) continue;
        const velauikit::DesignColor* followed = velauikit::findDesignColor(entry.follows);
        ASSERT_NE(followed, nullptr) << entry.follows;
        EXPECT_EQ(entry.color.light, followed->color.light) << entry.color.name;
        EXPECT_EQ(entry.color.dark, followed->color.dark) << entry.color.name;
        EXPECT_TRUE(followed->follows.empty()) << entry.color.name;
    }
}

TEST(DesignColors, HaveEveryColorOfAPair) {
    for (const ColorPair& pair : velauikit::colorPairs())
        for (const Color& color : {pair.foreground, pair.background})
            EXPECT_NE(velauikit::findDesignColor(color.name), nullptr) << color.name;
}

TEST(DynamicColorDeathTest, StopsTheProgramForANumberThatDoesNotExist) {
    EXPECT_DEATH((void)velauikit::dynamicColor(3), "There is no dynamic colour number 3");
}

} // namespace
