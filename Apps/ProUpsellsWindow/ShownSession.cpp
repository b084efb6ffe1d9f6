#include "Apps/ProUpsellsWindow/ShownSession.hpp"

#include <chrono>
#include <iostream>
#include <utility>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsWindow/DesktopDevice.hpp"
#include "Apps/ProUpsellsWindow/EndRequest.hpp"
#include "Apps/ProUpsellsWindow/WindowClock.hpp"
#include "Platform/RunLoop/SteppedClock.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int done = 0;

std::shared_ptr<runloop::Clock> sessionClock(const std::shared_ptr<WindowClock>& clock, bool isRecorded) {
    if (isRecorded) return std::make_shared<runloop::SteppedClock>(clock);
    return clock;
}

// What is recorded is what was seen: no clip shows a later picture because the machine was slow.
ffmpegbackend::Pace paceOf(bool isRecorded) { return isRecorded ? ffmpegbackend::Pace::exact : ffmpegbackend::Pace::realTime; }

} // namespace

ShownSession::ShownSession(const ShowArguments& arguments, const Offers& offers, const Device& device, Recording* recording)
    : m_arguments(arguments), m_recording(recording), m_clock(std::make_shared<WindowClock>()),
      m_loop(sessionClock(m_clock, recording)),
      m_session(offers, device, {.screen = HostScreen::scene}, paceOf(recording), std::make_shared<EventLog>(std::cout)),
      m_driver(m_loop) {
    m_session.present();
    m_window = std::make_unique<qtbackend::QtWindow>(
        m_recording ? m_recording->begin(m_session) : m_session.windowContent(),
        qtbackend::WindowOptions{.title = title, .size = device.size, .safeArea = device.safeArea});
    QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] { watch(); });
}

ShownSession::~ShownSession() = default;

int ShownSession::run(qtbackend::Application& application) {
    std::optional<EndRequest> endRequest;
    if (m_recording) endRequest.emplace();
    m_window->show();
    m_clock->start();
    constexpr auto interval = std::chrono::milliseconds(250);
    m_watch.start(interval);
    const int status = application.run();
    m_watch.stop();
    if (m_recording) m_recording->write();
    EndRequest::obey();
    return status;
}

void ShownSession::watch() {
    if (EndRequest::isThere()) return qtbackend::Application::quit(done);
    m_loop.runDueTurns();
    followSystem();
    if (m_session.window().isTransitioning()) return;
    if (!m_session.isShowing()) return qtbackend::Application::quit(done);
    if (std::exchange(m_hasOpened, true)) return;
    if (m_recording) m_recording->willOpen(m_arguments.start);
    m_session.open(m_arguments.start);
}

// The scale of the screen that the window is on now, and the system's appearance.
void ShownSession::followSystem() {
    Device device = followingDevice(m_arguments, m_session.device(), m_window->devicePixelRatio());
    if (device.scale == m_session.device().scale && device.appearance == m_session.device().appearance) return;
    setDevice(device);
}

// In the window's own size, whatever the session was begun with.
void ShownSession::setDevice(const Device& device) {
    Device sized = device;
    m_session.noteSize({double(m_window->width()), double(m_window->height())}, device.safeArea);
    sized.size = m_session.device().size;
    if (changesBetween(m_session.device(), sized).empty()) return;
    if (m_recording) m_recording->willSetDevice(sized);
    m_session.setDevice(sized);
}

} // namespace proupsells::hostprogram
