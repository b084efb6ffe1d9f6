// The design system's tables, as designers have them on paper.
#include <gmock/gmock.h>

#include <set>
#include <string_view>

#include "Backends/Headless/TestBed.hpp"
#include "Platform/LumoKit/Icon.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/SwiftUI/Tree/ViewHost.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "Platform/VelaUIKit/Fonts.hpp"
#include "Platform/VelaUIKit/Navigation.hpp"
#include "Platform/VelaUIKit/VelaPrimaryButtonStyle.hpp"

using namespace proupsells;

namespace {

using lumokit::TextStyle;
using swiftui::TextCase;
using Largest = graphics::ContentSizeCategory;

TEST(TextStyles, AreThoseOfTheDesign) {
    EXPECT_EQ(lumokit::headingH2, (TextStyle{.name = "headingH2",
                                             .family = "Sora",
                                             .weight = 700,
                                             .compactSize = 24,
                                             .regularSize = 24,
                                             .minimumScaleFactor = 1,
                                             .textCase = TextCase::asWritten,
                                             .largestTextSize = Largest::extraExtraExtraLarge}));
    EXPECT_EQ(lumokit::bodyLarge, (TextStyle{.name = "bodyLarge",
                                             .family = "Inter",
                                             .weight = 500,
                                             .compactSize = 17,
                                             .regularSize = 17,
                                             .minimumScaleFactor = 1,
                                             .textCase = TextCase::asWritten,
                                             .largestTextSize = Largest::accessibilityExtraLarge}));
    EXPECT_EQ(lumokit::labelSmall, (TextStyle{.name = "labelSmall",
                                              .family = "Inter",
                                              .weight = 400,
                                              .compactSize = 12,
                                              .regularSize = 12,
                                              .minimumScaleFactor = 1,
                                              .textCase = TextCase::asWritten,
                                              .largestTextSize = Largest::accessibilityLarge}));
    EXPECT_EQ(lumokit::labelCapsSmall, (TextStyle{.name = "labelCapsSmall",
                                                  .family = "Inter",
                                                  .weight = 600,
                                                  .compactSize = 11,
                                                  .regularSize = 11,
                                                  .minimumScaleFactor = 1,
                                                  .textCase = TextCase::uppercase,
                                                  .largestTextSize = Largest::extraExtraExtraLarge}));
    EXPECT_EQ(lumokit::labelCapsLarge, (TextStyle{.name = "labelCapsLarge",
                                                  .family = "Inter",
                                                  .weight = 600,
                                                  .compactSize = 13,
                                                  .regularSize = 13,
                                                  .minimumScaleFactor = 1,
                                                  .textCase = TextCase::uppercase,
                                                  .largestTextSize = Largest::accessibilityMedium}));
}

TEST(TextStyles, OfThePlatformHaveTheirNamesAndWeights) {
    const TextStyle headline = TextStyle::based(lumokit::PlatformTextStyle::headline, 1, 2, 0.5);
    EXPECT_EQ(headline.name, "headline");
    EXPECT_EQ(headline.weight, 600);
    EXPECT_EQ(headline.minimumScaleFactor, 0.5);
    const TextStyle subheadline = TextStyle::based(lumokit::PlatformTextStyle::subheadline, 1, 2);
    EXPECT_EQ(subheadline.name, "subheadline");
    EXPECT_EQ(subheadline.weight, 400);
    EXPECT_EQ(subheadline.minimumScaleFactor, 1);
    EXPECT_EQ(lumokit::labelSmall.font(swiftui::SizeClass::compact).face->weight, 400);
    EXPECT_EQ(lumokit::labelSmall.font(swiftui::SizeClass::compact).face->family, "Inter");
    EXPECT_EQ(lumokit::labelSmall.font(swiftui::SizeClass::compact).face->name, "labelSmall");
}

TEST(TextStyles, GrowUpToTheirLargestSizeOnly) {
    swiftui::EnvironmentValues values;
    values.contentSize = Largest::accessibilityExtraExtraExtraLarge;
    lumokit::labelCapsLarge.apply(values);
    EXPECT_EQ(values.contentSize, Largest::accessibilityMedium);
    lumokit::bodyLarge.apply(values);
    EXPECT_EQ(values.contentSize, Largest::accessibilityMedium);
}

TEST(Faces, HaveTheirNamesFamiliesAndWeights) {
    using namespace velauikit;
    const auto faceOf = [](FontOption option, double size) { return *velaDefaultFont(option, size).face; };
    EXPECT_EQ(faceOf(FontOption::regular, 19.9).name, "Vela-Regular");
    EXPECT_EQ(faceOf(FontOption::medium, 19.9).name, "Vela-Medium");
    EXPECT_EQ(faceOf(FontOption::bold, 19.9).name, "Vela-Bold");
    EXPECT_EQ(faceOf(FontOption::regular, 20).name, "Vela-Regular-Display");
    EXPECT_EQ(faceOf(FontOption::medium, 20).name, "Vela-Medium-Display");
    EXPECT_EQ(faceOf(FontOption::bold, 20).name, "Vela-Bold-Display");
    EXPECT_EQ(faceOf(FontOption::regular, 20).weight, 400);
    EXPECT_EQ(faceOf(FontOption::medium, 20).weight, 500);
    for (const FontOption option : {FontOption::regular, FontOption::medium, FontOption::bold}) {
        EXPECT_EQ(faceOf(option, 19.9).family, "Inter");
        EXPECT_EQ(faceOf(option, 20).family, "Inter Display");
    }
    EXPECT_EQ(quenbyBold(14).face->name, "Quenby-Bold");
    EXPECT_EQ(quenbyBold(14).face->family, "Sora");
    EXPECT_EQ(quenbySemibold(14).face->name, "Quenby-Semibold");
    EXPECT_EQ(quenbySemibold(14).face->family, "Sora");
    EXPECT_DEATH((void)brandFont("None", 14), "The font None is not registered");
    EXPECT_DEATH((void)velaDefaultFont(FontOption(7), 14), "The default font has no weight option 7");
}

TEST(DesignColors, HavePurposesOfTheirOwnAndFollowOneAnother) {
    std::set<std::string_view> purposes;
    for (const velauikit::DesignColor& entry : velauikit::designColors()) {
        EXPECT_FALSE(entry.purpose.empty()) << entry.color.name;
        EXPECT_TRUE(purposes.insert(entry.purpose).second) << entry.purpose;
        EXPECT_TRUE(entry.follows.empty() || velauikit::findDesignColor(entry.follows)) << entry.follows;
        EXPECT_NE(entry.follows, entry.color.name);
    }
    EXPECT_EQ(velauikit::findDesignColor("none"), nullptr);
}

TEST(Icons, AreTintedAndNamed) {
    const headless::TestBed bed;
    EXPECT_EQ(lumokit::Icon::diamond24()->name, "diamond24");
    EXPECT_EQ(lumokit::SystemSymbol::chevronRight()->name, "chevron.right");
    for (const auto& image : {lumokit::Icon::diamond24(), lumokit::SystemSymbol::chevronRight()})
        EXPECT_EQ(image->renderingMode, graphics::RenderingMode::tinted);
    const uikit::UIBarButtonItem close = velauikit::barButtonItem(velauikit::BarButtonStyle::close);
    EXPECT_EQ(close.image->name, "xmark");
    EXPECT_EQ(close.accessibilityLabel, "Close");
}

// --- The main button ---

class PrimaryButton : public testing::Test {
protected:
    void show(double width, double height, bool isDisabled = false) {
        host = swiftui::ViewHost::create([=]() -> swiftui::View {
            return swiftui::Button{.action = [] {}, .label = swiftui::Text{"Buy"}} |
                   swiftui::buttonStyle(velauikit::VelaPrimaryButtonStyle::rounded()) | swiftui::disabled(isDisabled) |
                   swiftui::frame(width, height);
        });
        host->setSize({400, 400}, {});
        bed.settle();
    }
    graphics::Command plate() { return host->displayList().commands.at(0); }

    headless::TestBed bed;
    std::shared_ptr<swiftui::ViewHost> host;
};

TEST_F(PrimaryButton, IsACapsuleOfFiftySixPointsAtMost) {
    show(200, 44);
    EXPECT_EQ(plate().frame, (geometry::Rect{{100, 178}, {200, 44}}));
    EXPECT_EQ(plate().cornerRadius, 22);
    show(200, 100);
    EXPECT_EQ(plate().frame, (geometry::Rect{{100, 194}, {200, 56}}));
    EXPECT_EQ(plate().cornerRadius, 28);
}

TEST_F(PrimaryButton, ShrinksAndFadesALittleWhileItIsPressed) {
    show(200, 44);
    EXPECT_EQ(plate().opacity, 1);

    host->touch({host::TouchPhase::began, {200, 200}, 0});
    bed.settle();

    EXPECT_FLOAT_EQ(plate().opacity, 0.85f);
    EXPECT_NEAR(plate().bounds.width(), 196, 1e-6);
    EXPECT_NEAR(plate().bounds.height(), 44 * 0.98, 1e-6);
}

TEST_F(PrimaryButton, IsPaleWhileItIsDisabled) {
    show(200, 44, true);
    EXPECT_FLOAT_EQ(plate().opacity, 0.4f);
    EXPECT_FLOAT_EQ(host->displayList().commands.at(1).opacity, 1);
}

} // namespace
