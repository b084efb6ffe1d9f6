#include "ProUpsells/ContrastTheme.hpp"

#include <gtest/gtest.h>

#include "Platform/Graphics/Contrast.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"

namespace proupsells::tests {
namespace {

using graphics::ColorScheme;
using velauikit::ColorPair;
using velauikit::ContrastNeed;

class ContrastThemeOnScreens : public ::testing::TestWithParam<ColorScheme> {
protected:
    ~ContrastThemeOnScreens() override { setTheme({}); }

    static double contrastOf(const ColorPair& pair) {
        return graphics::contrast(pair.foreground.resolved(GetParam()), pair.background.resolved(GetParam()));
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(InEitherAppearance, ContrastThemeOnScreens, ::testing::Values(ColorScheme::light, ColorScheme::dark));

TEST_P(ContrastThemeOnScreens, LetsEveryTextAndShapeStandOutMore) {
    ASSERT_TRUE(setTheme(contrastTheme()));

    for (const ColorPair& pair : velauikit::colorPairs())
        EXPECT_GE(contrastOf(pair), pair.need == ContrastNeed::shape ? 4.5 : 7)
            << pair.foreground.name << " on " << pair.background.name;
}

TEST_P(ContrastThemeOnScreens, IsWorseForNoPair) {
    for (const ColorPair& pair : velauikit::colorPairs()) {
        setTheme({});
        const double ours = contrastOf(pair);
        setTheme(contrastTheme());
        EXPECT_GE(contrastOf(pair), ours - 1e-9) << pair.foreground.name << " on " << pair.background.name;
    }
}

} // namespace proupsells::tests
