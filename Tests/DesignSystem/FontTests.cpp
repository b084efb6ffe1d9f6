#include <gmock/gmock.h>

#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"

using namespace proupsells;

namespace {

using swiftui::SizeClass;
using velauikit::FontOption;

TEST(DefaultFont, HasThreeWeightsByNumber) {
    EXPECT_EQ(velauikit::velaDefaultFont(FontOption::regular, 16).face->weight, 400);
    EXPECT_EQ(velauikit::velaDefaultFont(FontOption::medium, 16).face->weight, 500);
    EXPECT_EQ(velauikit::velaDefaultFont(FontOption::bold, 16).face->weight, 700);
    EXPECT_EQ(velauikit::velaDefaultFont(FontOption(1), 16).weightOption, 1);
    EXPECT_EQ(velauikit::velaDefaultFont(FontOption(1), 16).name, "velaDefaultFont");
    EXPECT_EQ(velauikit::velaDefaultFont(FontOption(1), 16).size, 16);
}

TEST(DefaultFont, IsCutTighterForHeadlines) {
    const auto text = velauikit::velaDefaultFont(FontOption::bold, 19.5),
               headline = velauikit::velaDefaultFont(FontOption::bold, 20);

    EXPECT_EQ(text.face->family, "Inter");
    EXPECT_EQ(headline.face->family, "Inter Display");
    EXPECT_EQ(headline.face->weight, 700);
    EXPECT_EQ(headline.name, "velaDefaultFont");
}

TEST(DefaultFontDeathTest, StopsTheProgramForAWeightThatDoesNotExist) {
    EXPECT_DEATH((void)velauikit::velaDefaultFont(FontOption(3), 16), "The default font has no weight option 3");
}

TEST(FontRegistrar, MakesTheBrandFontsKnownByName) {
    velauikit::FontRegistrar::registerBundledFonts();
    velauikit::FontRegistrar::registerBundledFonts();

    EXPECT_EQ(velauikit::brandFont("Quenby-Bold", 14).face->weight, 700);
    EXPECT_EQ(velauikit::brandFont("Quenby-Semibold", 12).face->weight, 600);
    EXPECT_EQ(velauikit::brandFont("Quenby-Bold", 14).name, "Quenby-Bold");
    EXPECT_EQ(velauikit::brandFont("Quenby-Bold", 14).size, 14);
    EXPECT_NE(velauikit::brandFont("Quenby-Bold", 14).face->family, velauikit::velaDefaultFont(FontOption::bold, 14).face->family);
}

TEST(FontRegistrarDeathTest, StopsTheProgramForAFontThatNobodyRegistered) {
    EXPECT_DEATH((void)velauikit::brandFont("Quenby-Thin", 14), "The font Quenby-Thin is not registered");
}

TEST(TextStyle, TakesItsSizeByTheWidth) {
    const auto style = lumokit::TextStyle::based(lumokit::PlatformTextStyle::headline, 18, 24, 0.5);

    EXPECT_EQ(style.font(SizeClass::compact).size, 18);
    EXPECT_EQ(style.font(SizeClass::regular).size, 24);
}

TEST(TextStyle, SetsWhatTextsInherit) {
    swiftui::EnvironmentValues values;
    values.minimumScaleFactor = 0.7;
    values.textCase = swiftui::TextCase::uppercase;

    lumokit::TextStyle::based(lumokit::PlatformTextStyle::headline, 18, 24, 0.5).apply(values);
    EXPECT_EQ(values.font.name, "headline");
    EXPECT_EQ(values.minimumScaleFactor, 0.5);
    EXPECT_EQ(values.textCase, swiftui::TextCase::asWritten);

    lumokit::labelCapsSmall.apply(values);
    EXPECT_EQ(values.font.name, "labelCapsSmall");
    EXPECT_EQ(values.minimumScaleFactor, 1);
    EXPECT_EQ(values.textCase, swiftui::TextCase::uppercase);
}

TEST(TextStyle, IsNeverSmallerThan11Points) {
    for (const lumokit::TextStyle& style :
         {lumokit::headingH2, lumokit::bodyLarge, lumokit::labelSmall, lumokit::labelCapsSmall, lumokit::labelCapsLarge}) {
        EXPECT_GE(style.compactSize, 11) << style.name;
        EXPECT_GE(style.regularSize, 11) << style.name;
    }
}

} // namespace
