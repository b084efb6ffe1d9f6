// What the desktop decides about a window, and what the arguments do.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

#include "Apps/ProUpsellsWindow/DesktopDevice.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "ProUpsells/ContrastTheme.hpp"
#include "Tests/Support/PrintGeometry.hpp"

namespace proupsells::hostprogram {

namespace {

// A desktop of somebody who wants it dark, large, calm and rich in contrast.
class DesktopDevice : public testing::Test {
protected:
    DesktopDevice() {
        desktop.adopt("org.freedesktop.appearance", "color-scheme", 1u);
        desktop.adopt("org.freedesktop.appearance", "contrast", 1u);
        desktop.adopt("org.gnome.desktop.interface", "text-scaling-factor", 1.5);
        desktop.adopt("org.gnome.desktop.interface", "enable-animations", false);
    }

    static const QScreen& screen() { return *QGuiApplication::primaryScreen(); }
    static geometry::Size freeSize() { return {screen().availableSize().width() - 8.0, screen().availableSize().height() - 40.0}; }

    qtbackend::DesktopSettings desktop;
};

} // namespace

TEST_F(DesktopDevice, IsTheDesktopsWhereNothingIsGiven) {
    const Device device = desktopDevice({}, desktop, screen());

    EXPECT_EQ(device.appearance, graphics::ColorScheme::dark);
    EXPECT_GT(device.textSize, graphics::ContentSizeCategory::large);
    EXPECT_TRUE(device.reduceMotion);
    EXPECT_EQ(device.theme, contrastTheme());
    EXPECT_EQ(device.scale, screen().devicePixelRatio());
    EXPECT_EQ(device.size, (geometry::Size{std::min(960.0, freeSize().width), std::min(880.0, freeSize().height)}));
}

TEST_F(DesktopDevice, IsTheOneThatIsGiven) {
    const Device given{.size = {320, 500},
                       .scale = 3,
                       .appearance = graphics::ColorScheme::light,
                       .textSize = graphics::ContentSizeCategory::small,
                       .reduceMotion = false};
    const ShowArguments arguments{.device = given, .given = {"size", "scale", "appearance", "textSize", "reduceMotion", "theme"}};

    EXPECT_EQ(desktopDevice(arguments, desktop, screen()), given);
}

TEST_F(DesktopDevice, DecidesAboutEachKeyByItself) {
    const Device given{.textSize = graphics::ContentSizeCategory::small};

    const Device withTextSize = desktopDevice({.device = given, .given = {"textSize"}}, desktop, screen());
    EXPECT_EQ(withTextSize.textSize, graphics::ContentSizeCategory::small);
    EXPECT_EQ(withTextSize.appearance, graphics::ColorScheme::dark);
    EXPECT_TRUE(withTextSize.reduceMotion);
    const Device withAppearance = desktopDevice({.device = given, .given = {"appearance"}}, desktop, screen());
    EXPECT_EQ(withAppearance.appearance, graphics::ColorScheme::light);
    EXPECT_GT(withAppearance.textSize, graphics::ContentSizeCategory::large);
    EXPECT_EQ(withAppearance.theme, contrastTheme());
}

TEST_F(DesktopDevice, RecordsNoThemeThatStandsInNoFile) {
    EXPECT_EQ(desktopDevice({.recording = "recording.json"}, desktop, screen()).theme, Theme{});
}

TEST_F(DesktopDevice, IsNeverLargerThanTheScreenUnlessItIsGivenWhole) {
    const Device huge{.size = {9000, 9000}, .scale = 1};

    EXPECT_EQ(desktopDevice({.device = huge, .given = {"size"}}, desktop, screen()).size, freeSize());
    EXPECT_EQ(desktopDevice({.device = huge, .given = {"size", "scale"}}, desktop, screen()).size, huge.size);
}

TEST_F(DesktopDevice, LeavesRoomBetweenItsUnsafeEdges) {
    const Device device{.size = {375, 800}, .safeArea = {3000, 0, 2000, 0}};

    EXPECT_EQ(desktopDevice({.device = device, .given = {"size"}}, desktop, screen()).size.height, 5001);
}

TEST_F(DesktopDevice, FollowsTheDesktopLaterOnButKeepsItsSize) {
    const Device device = desktopDevice({}, desktop, screen());
    desktop.adopt("org.freedesktop.appearance", "color-scheme", 2u);
    desktop.adopt("org.gnome.desktop.interface", "enable-animations", true);

    const Device following = followingDevice({}, desktop, device, 2.5);

    EXPECT_EQ(following.appearance, graphics::ColorScheme::light);
    EXPECT_FALSE(following.reduceMotion);
    EXPECT_EQ(following.scale, 2.5);
    EXPECT_EQ(following.size, device.size);
}

} // namespace proupsells::hostprogram
