#include "Apps/ProUpsellsWindow/ShowCommand.hpp"

#include <iostream>
#include <utility>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtWindow.hpp"
#include "Platform/Foundation/Resources.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int done = 0, noDisplay = 3;
// How often to look whether the paywall has been closed, which closes the window.
constexpr double closedCheckInterval_s = 0.25;

} // namespace

int showOffers(const ShowArguments& arguments) {
    const Offers offers = readOffersFile(arguments.offers ? *arguments.offers : foundation::requiredResource("offers.json"));
    const Device& device = arguments.device;
    if (!qtbackend::Application::hasDisplay()) {
        std::cerr << "There is no display to show a window on; `proupsells run SCENARIO.json` plays a script without one.\n";
        return noDisplay;
    }
    qtbackend::Application application({.name = "proupsells", .scale = device.scale});
    runloop::MainRunLoop loop(std::make_shared<runloop::RealClock>());
    const auto log = std::make_shared<EventLog>(std::cout);
    const auto session = std::make_shared<HostSession>(offers, device, HostParts{}, ffmpegbackend::Pace::realTime, log);
    qtbackend::QtWindow window(session->windowContent(), {.title = "ProUpsells", .size = device.size, .safeArea = device.safeArea});
    const qtbackend::QtRunLoopDriver driver(loop);
    window.show();

    // Opens the screen asked for once the paywall is shown, and closes the window once the paywall is gone.
    bool hasOpened = false;
    const auto watch = loop.scheduleRepeating(closedCheckInterval_s, [&] {
        if (session->window().isTransitioning()) return;
        if (!session->isShowing()) return qtbackend::Application::quit(done);
        if (!std::exchange(hasOpened, true)) session->open(arguments.start);
    });
    session->present();
    const int status = application.run();
    watch->invalidate();
    return status;
}

} // namespace proupsells::hostprogram
