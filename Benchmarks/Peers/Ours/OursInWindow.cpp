// The paywall and the store page in a host with a Qt window. The platform's windows are in memory.

#include <ProUpsells/Qt.hpp>
#include <QFont>
#include <QPainter>
#include <QRasterWindow>
#include <cstdlib>

#include "Common/QtEvents.hpp"
#include "Ours/Modes.hpp"

namespace peers::ours {
namespace {

using namespace proupsells;

// A window of the host's own, with the texts of the Qt peers' hosts, painted by Qt.
class HostWindow : public QRasterWindow {
public:
    HostWindow() { resize(int(screenSize.width), int(screenSize.height)); }
    bool isPainted() const { return m_isPainted; }

private:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(QRect({}, size()), Qt::white);
        QFont font("Liberation Sans");
        font.setPixelSize(17);
        painter.setFont(font);
        painter.drawText(100, 400, "Host application");
        font.setBold(true);
        painter.setFont(font);
        painter.drawText(16, 40, "Go Pro");
        m_isPainted = true;
    }

    bool m_isPainted = false;
};

class WindowScreen {
public:
    explicit WindowScreen(std::shared_ptr<runloop::Clock> clock)
        : m_host(std::move(clock)), m_window(m_host.window(), {.title = "Shop", .size = screenSize, .safeArea = safeArea}) {}

    Host& host() { return m_host; }
    void showHostsOwnText() {
        m_hostWindow.show();
        while (!m_hostWindow.isPainted()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    // Until the window has shown a frame. It shows them at the display's pace, which costs no processor time; where nothing has
    // changed, none comes.
    void show() {
        if (!m_window.isVisible()) m_window.show();
        const int before = m_window.frameCount();
        m_host.loop().runDueTurns();
        QTimer end;
        end.setSingleShot(true);
        end.start(frameAtMost_ms);
        while (m_window.frameCount() == before && end.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void passTime(double duration_s) { m_host.loop().runUntil(m_host.loop().now_s() + duration_s); }
    // Until the window would show the next frame without delay.
    void rest() {
        runEventLoop(0.02);
        passTime(1);
    }
    // A window's picture is the platform's.
    void save(const std::string&) const {}

private:
    static constexpr int frameAtMost_ms = 50;

    HostWindow m_hostWindow;
    Host m_host;
    qtbackend::QtWindow m_window;
};

void idle(const Command& command, Report& report) {
    WindowScreen screen(realClock());
    screen.host().present(makePaywall());
    const qtbackend::QtRunLoopDriver driver(screen.host().loop());
    screen.show();
    measureIdle(command, report);
}

} // namespace
} // namespace peers::ours

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const peers::Command command = peers::Command::parse(argc, argv);
    const proupsells::qtbackend::Application application({.name = "shop", .scale = peers::ours::scale});
    using namespace peers::ours;
    peers::runMode(command, {{"first", first<WindowScreen>},
                             {"warm", warm<WindowScreen>},
                             {"tap", tap<WindowScreen>},
                             {"store", store<WindowScreen>},
                             {"idle", idle}});
}
