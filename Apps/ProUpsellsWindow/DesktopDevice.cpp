#include "Apps/ProUpsellsWindow/DesktopDevice.hpp"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <algorithm>

#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/Qt/ScreenTraits.hpp"
#include "ProUpsells/ContrastTheme.hpp"

namespace proupsells::hostprogram {

namespace {

// Around the paywall, so that it is seen on the host's screen.
constexpr geometry::Size usualSize{960, 880};
// A title bar and a border, whose sizes nobody knows before the window is shown.
constexpr double frameHeight = 40, frameWidth = 8;

bool gives(const ShowArguments& arguments, const char* key) {
    return std::find(arguments.given.begin(), arguments.given.end(), key) != arguments.given.end();
}

} // namespace

Device followingDevice(const ShowArguments& arguments, const qtbackend::DesktopSettings& desktop, Device device, double scale) {
    if (!gives(arguments, "scale")) device.scale = scale;
    if (!gives(arguments, "appearance"))
        device.appearance = desktop.colorScheme().value_or(qtbackend::colorSchemeOf(QGuiApplication::palette()));
    if (!gives(arguments, "textSize")) device.textSize = desktop.textSize(scale);
    // A recording holds no theme that stands in no file.
    if (!gives(arguments, "theme") && !arguments.recording) device.theme = desktop.increasesContrast() ? contrastTheme() : Theme{};
    if (!gives(arguments, "reduceMotion")) device.reduceMotion = desktop.reducesMotion();
    return device;
}

Device desktopDevice(const ShowArguments& arguments, const qtbackend::DesktopSettings& desktop, const QScreen& screen) {
    Device device = followingDevice(arguments, desktop, arguments.device, screen.devicePixelRatio());
    const bool isGivenWhole = gives(arguments, "size") && gives(arguments, "scale");
    if (isGivenWhole) return device;

    if (!gives(arguments, "size")) device.size = usualSize;
    const QSize free = screen.availableSize();
    const auto& insets = device.safeArea;
    const geometry::Size least{insets.left + insets.right + 1, insets.top + insets.bottom + 1};
    device.size = {std::max(std::min(device.size.width, free.width() - frameWidth), least.width),
                   std::max(std::min(device.size.height, free.height() - frameHeight), least.height)};
    return device;
}

} // namespace proupsells::hostprogram
