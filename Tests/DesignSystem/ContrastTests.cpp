#include <cmath>
#include <string>

#include <gmock/gmock.h>

#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

using namespace proupsells;

namespace {

using graphics::Color;
using graphics::ColorScheme;
using graphics::RGBA;

double linear(std::uint8_t component) {
    const double share = component / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(RGBA color) { return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue); }

double contrast(RGBA a, RGBA b) {
    const double lighter = std::max(luminance(a), luminance(b)), darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

struct Pair {
    Color foreground;
    Color background;
    double least;
};

void PrintTo(const Pair& pair, std::ostream* out) { *out << pair.foreground.name << " on " << pair.background.name; }

class Contrast : public ::testing::TestWithParam<Pair> {};

TEST_P(Contrast, IsEnoughInBothAppearances) {
    const auto& [foreground, background, least] = GetParam();

    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark})
        EXPECT_GE(contrast(foreground.resolved(scheme), background.resolved(scheme)), least)
            << (scheme == ColorScheme::dark ? "dark" : "light");
}

const Color card = velauikit::velaSecondaryAppBackground;
const Color page = velauikit::velaBackground;

INSTANTIATE_TEST_SUITE_P(
    OfTexts, Contrast,
    ::testing::Values(Pair{lumokit::ContentColor::primary, page, 7}, Pair{lumokit::ContentColor::primary, card, 7},
                      Pair{lumokit::ContentColor::secondary, page, 4.5}, Pair{lumokit::ContentColor::secondary, card, 4.5},
                      Pair{lumokit::ContentColor::inverse, lumokit::BackgroundColor::level4, 7},
                      Pair{velauikit::velaLabel, card, 7}, Pair{velauikit::velaLabel, page, 7},
                      Pair{velauikit::velaSecondaryLabel, card, 4.5}, Pair{velauikit::velaSecondaryLabel, page, 4.5},
                      Pair{lumokit::platformPrimary, page, 7}, Pair{lumokit::platformPrimary, card, 7},
                      Pair{velauikit::marwickContentAccent, page, 4.5}, Pair{velauikit::marwickContentAccent, card, 4.5},
                      Pair{velauikit::velaLightText, velauikit::marwickContentAccent, 4.5},
                      Pair{lumokit::DecorativeColor::tealProminent, lumokit::DecorativeColor::tealBackground, 4.5},
                      Pair{lumokit::ValidationColor::neutralImportant, lumokit::ValidationColor::neutralSubdued, 4.5},
                      Pair{velauikit::dynamicColor(9), velauikit::dynamicColor(2), 7},
                      Pair{velauikit::dynamicColor(10), velauikit::dynamicColor(2), 4.5},
                      Pair{velauikit::dynamicColor(16), velauikit::dynamicColor(22), 4.5}));

// The empty radio circle is nothing but its border.
INSTANTIATE_TEST_SUITE_P(OfShapes, Contrast,
                         ::testing::Values(Pair{velauikit::velaBorder, card, 3}, Pair{velauikit::velaBorder, page, 3},
                                           Pair{velauikit::dynamicColor(22), velauikit::dynamicColor(2), 3}));

TEST(Contrast, OfBlackOnWhiteIs21) { EXPECT_NEAR(contrast(graphics::rgb(0x000000), graphics::rgb(0xFFFFFF)), 21, 1e-9); }

TEST(DynamicColorDeathTest, StopsTheProgramForANumberThatDoesNotExist) {
    EXPECT_DEATH((void)velauikit::dynamicColor(3), "dynamic colour number 3");
}

} // namespace
