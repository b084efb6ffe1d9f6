#include "Apps/ProUpsellsWindow/ShowCommand.hpp"

#include <QGuiApplication>
#include <algorithm>
#include <iostream>
#include <tuple>
#include <utility>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsWindow/DesktopDevice.hpp"
#include "Apps/ProUpsellsWindow/SceneViewController.hpp"
#include "Apps/ProUpsellsWindow/WindowIcon.hpp"
#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtWindow.hpp"
#include "Platform/Foundation/Resources.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int done = 0, noDisplay = 3;
constexpr const char* programName = "ProUpsells";
// How often to look whether the paywall has been closed, which closes the window.
constexpr double closedCheckInterval_s = 0.25;

// What a desktop decides.
auto decided(const Device& device) { return std::tie(device.scale, device.appearance, device.textSize, device.reduceMotion); }

// The scale of the screen that the window is on now, and the system's settings.
void follow(HostSession& session, const QWindow& window, const ShowArguments& arguments) {
    Device device = followingDevice(arguments, qtbackend::DesktopSettings::shared(), session.device(), window.devicePixelRatio());
    if (decided(device) == decided(session.device())) return;
    device.size = {double(window.width()), double(window.height())};
    session.setDevice(device);
}

} // namespace

int showOffers(const ShowArguments& arguments) {
    const Offers offers = readOffersFile(arguments.offers ? *arguments.offers : foundation::requiredResource("offers.json"));
    if (!qtbackend::Application::hasDisplay()) {
        std::cerr << "There is no display to show a window on; `proupsells run SCENARIO.json` plays a script without one.\n";
        return noDisplay;
    }
    const bool givesScale = std::find(arguments.given.begin(), arguments.given.end(), "scale") != arguments.given.end();
    qtbackend::Application application(
        {.name = programName, .scale = givesScale ? std::optional(arguments.device.scale) : std::nullopt});
    QGuiApplication::setWindowIcon(windowIcon());
    const Device device = desktopDevice(arguments, qtbackend::DesktopSettings::shared(), *QGuiApplication::primaryScreen());
    runloop::MainRunLoop loop(std::make_shared<runloop::RealClock>());
    const auto log = std::make_shared<EventLog>(std::cout);
    const auto session = std::make_shared<HostSession>(offers, device, HostParts{.screen = std::make_shared<SceneViewController>()},
                                                       ffmpegbackend::Pace::realTime, log);
    qtbackend::QtWindow window(session->windowContent(), {.title = programName, .size = device.size, .safeArea = device.safeArea});
    const qtbackend::QtRunLoopDriver driver(loop);
    window.show();

    // Follows the system, opens the screen asked for once the paywall is shown, and closes the window once the paywall is gone.
    bool hasOpened = false;
    const auto watch = loop.scheduleRepeating(closedCheckInterval_s, [&] {
        follow(*session, window, arguments);
        if (log->isLost()) return qtbackend::Application::quit(done);
        if (session->window().isTransitioning()) return;
        if (!session->isShowing()) return qtbackend::Application::quit(done);
        if (!std::exchange(hasOpened, true)) session->open(arguments.start);
    });
    // At once, so that the first sight of the paywall is the desktop's where that has answered by then.
    const auto& desktop = qtbackend::DesktopSettings::shared();
    QObject::connect(&desktop, &qtbackend::DesktopSettings::changed, &window, [&] { follow(*session, window, arguments); });
    session->present();
    const int status = application.run();
    watch->invalidate();
    return status;
}

} // namespace proupsells::hostprogram
