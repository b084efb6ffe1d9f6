#include "Apps/ProUpsellsWindow/ShownSession.hpp"

#include <QKeyEvent>
#include <chrono>
#include <iostream>
#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/InlineFiles.hpp"
#include "Apps/ProUpsellsWindow/DesktopDevice.hpp"
#include "Apps/ProUpsellsWindow/EndRequest.hpp"
#include "Apps/ProUpsellsWindow/WindowClock.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
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

// The keys that mean something to the screens go on to them.
class ShownSession::KeyFilter final : public QObject {
public:
    explicit KeyFilter(ShownSession& session) : m_session(session) {}

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        return event->type() == QEvent::KeyPress && m_session.pressed(static_cast<QKeyEvent&>(*event));
    }

private:
    ShownSession& m_session;
};

ShownSession::ShownSession(const ShowArguments& arguments, const Offers& offers, const Device& device, Recording* recording,
                           SourceWatch* watch)
    : m_arguments(arguments), m_recording(recording), m_sources(watch), m_clock(std::make_shared<WindowClock>()),
      m_loop(sessionClock(m_clock, recording)), m_log(std::make_shared<EventLog>(std::cout)),
      m_session(offers, device, {.screen = HostScreen::scene}, paceOf(recording), m_log), m_driver(m_loop) {
    m_session.present();
    m_window = std::make_unique<qtbackend::QtWindow>(
        m_recording ? m_recording->begin(m_session) : m_session.windowContent(),
        qtbackend::WindowOptions{.title = title, .size = device.size, .safeArea = device.safeArea});
    QObject::connect(&m_lookAround, &QTimer::timeout, &m_lookAround, [this] { lookAround(); });
    // At once, so that the first sight of the paywall is the desktop's where that has answered by then.
    QObject::connect(&qtbackend::DesktopSettings::shared(), &qtbackend::DesktopSettings::changed, m_window.get(), [this] {
        m_loop.runDueTurns();
        followSystem();
    });
    QObject::connect(&m_lookAtSources, &QTimer::timeout, &m_lookAtSources, [this] { lookAtSources(); });
    if (!m_sources) return;
    m_keys.emplace(previewLocales(device.locale, device.strings));
    m_keyFilter = std::make_unique<KeyFilter>(*this);
    m_window->installEventFilter(m_keyFilter.get());
}

ShownSession::~ShownSession() = default;

int ShownSession::run(qtbackend::Application& application) {
    using namespace std::chrono_literals;
    std::optional<EndRequest> endRequest;
    if (m_recording) endRequest.emplace();
    m_window->show();
    m_clock->start();
    m_lookAround.start(250ms);
    if (m_sources) m_lookAtSources.start(40ms);
    const int status = application.run();
    if (m_recording) m_recording->write();
    EndRequest::obey();
    return status;
}

void ShownSession::lookAround() {
    if (EndRequest::isThere() || m_log->isLost()) return qtbackend::Application::quit(done);
    m_loop.runDueTurns();
    followSystem();
    if (m_session.window().isTransitioning()) return;
    if (!m_session.isShowing()) return qtbackend::Application::quit(done);
    if (std::exchange(m_hasOpened, true)) return;
    if (m_arguments.start == StartScreen::paywall) return;
    if (m_recording) m_recording->willOpen(m_arguments.start);
    m_session.open(m_arguments.start);
}

// The scale of the screen that the window is on now, and the system's settings.
void ShownSession::followSystem() {
    setDevice(followingDevice(m_arguments, qtbackend::DesktopSettings::shared(), m_session.device(), m_window->devicePixelRatio()));
}

// In the window's own size, whatever the session was begun with.
void ShownSession::setDevice(const Device& device) {
    m_session.noteSize({double(m_window->width()), double(m_window->height())}, device.safeArea);
    Device sized = device;
    sized.size = m_session.device().size;
    if (sized == m_session.device()) return;
    if (m_recording) m_recording->willSetDevice(sized);
    m_session.setDevice(sized);
}

// --- Watching ---

// A screen that comes or goes is let finish: another one may have to take its place.
void ShownSession::lookAtSources() {
    if (m_session.window().isTransitioning()) return;
    const SourceChange change = m_sources->look();
    for (const std::string& complaint : change.complaints) std::cerr << complaint << std::endl;
    try {
        adopt(change);
    } catch (const std::runtime_error& error) {
        // A recording has no place for files that cannot be read.
        std::cerr << error.what() << std::endl;
    }
}

void ShownSession::adopt(const SourceChange& change) {
    if (change.offers) {
        m_loop.runDueTurns();
        if (m_recording) m_recording->willReplaceOffers(*change.offers);
        m_session.replaceOffers(readOffers(JsonCursor{*change.offers, title}));
    }
    if (!change.strings && !change.theme) return;
    Device device = m_session.device();
    const std::filesystem::path former = device.strings;
    if (change.strings) device.strings = *change.strings;
    if (change.theme) device.theme = *change.theme;
    m_loop.runDueTurns();
    setDevice(device);
    if (change.strings) dropInlineFiles(former);
}

bool ShownSession::pressed(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    const bool isShifted = event.modifiers() & Qt::ShiftModifier;
    Device shown = m_session.device();
    shown.size = {double(m_window->width()), double(m_window->height())};
    const auto direction = m_session.window().traits().layoutDirection;
    const auto device = m_keys->pressed(char32_t(event.key()), isShifted, shown, direction);
    if (!device) return false;
    // What was chosen by hand no longer follows the system.
    if (device->appearance != shown.appearance) m_arguments.given.push_back("appearance");
    if (device->textSize != shown.textSize) m_arguments.given.push_back("textSize");
    m_loop.runDueTurns();
    setDevice(*device);
    if (device->size != shown.size) m_window->resize(int(device->size.width), int(device->size.height));
    return true;
}

} // namespace proupsells::hostprogram
