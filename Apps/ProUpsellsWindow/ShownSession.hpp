// A session in a real window.
#pragma once

#include <QTimer>
#include <memory>

#include "Apps/ProUpsellsHost/CommandLine.hpp"
#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Apps/ProUpsellsHost/PreviewKeys.hpp"
#include "Apps/ProUpsellsHost/Recording.hpp"
#include "Apps/ProUpsellsHost/SourceWatch.hpp"
#include "Backends/Qt/Application.hpp"
#include "Backends/Qt/QtRunLoopDriver.hpp"
#include "Backends/Qt/QtWindow.hpp"

class QKeyEvent;

namespace proupsells::hostprogram {

class WindowClock;

// Follows the system and its sources, opens the screen asked for once the paywall is shown, and closes the window once the paywall
// is gone. Needs a qtbackend::Application.
class ShownSession {
public:
    static constexpr const char* title = "ProUpsells";

    // The recording and the watch may be null; they must live longer.
    ShownSession(const ShowArguments& arguments, const Offers& offers, const Device& device, Recording* recording,
                 SourceWatch* watch);
    ~ShownSession();
    ShownSession(const ShownSession&) = delete;
    ShownSession& operator=(const ShownSession&) = delete;

    // Until the window is closed, or the process is asked to end. Returns the exit status.
    int run(qtbackend::Application& application);

private:
    void lookAround();
    void lookAtSources();
    void adopt(const SourceChange& change);
    void followSystem();
    void setDevice(const Device& device);

    bool pressed(const QKeyEvent& event);
    class KeyFilter;

    ShowArguments m_arguments;
    Recording* const m_recording;
    SourceWatch* const m_sources;
    std::shared_ptr<WindowClock> m_clock;
    runloop::MainRunLoop m_loop;
    std::shared_ptr<EventLog> m_log;
    HostSession m_session;
    std::unique_ptr<qtbackend::QtWindow> m_window;
    qtbackend::QtRunLoopDriver m_driver;
    QTimer m_lookAround, m_lookAtSources;
    std::optional<PreviewKeys> m_keys; // absent unless the sources are watched
    std::unique_ptr<KeyFilter> m_keyFilter;
    bool m_hasOpened = false;
};

} // namespace proupsells::hostprogram
