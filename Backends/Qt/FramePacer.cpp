#include "Backends/Qt/FramePacer.hpp"

#include <QScreen>
#include <algorithm>
#include <chrono>
#include <cmath>

namespace proupsells::qtbackend {

FramePacer::FramePacer(rasterbackend::PixelView& view, std::function<void()> paint) : m_view(view), m_paint(std::move(paint)) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        // A copy, because painting may destroy the pacer.
        const auto paint = m_paint;
        paint();
    });
    m_view.setFrameHandler([this] { arm(); });
    m_view.setSeen(false);
}

double framesPerSecondFor(double refreshRate) {
    constexpr double slowest = 30, fastest = 240;
    return std::clamp(refreshRate, slowest, fastest);
}

FramePacer::~FramePacer() { m_view.setFrameHandler({}); }

void FramePacer::setRunning(bool isRunning, const QScreen* screen) {
    m_isRunning = isRunning;
    m_view.setSeen(isRunning);
    schedule(screen);
}

void FramePacer::schedule(const QScreen* screen) {
    constexpr double usual = 60;
    m_view.setRefreshRate(framesPerSecondFor(screen ? screen->refreshRate() : usual));
    arm();
}

void FramePacer::arm() {
    const std::optional<double> delay_s = m_isRunning ? m_view.nextFrameDelay_s() : std::nullopt;
    if (!delay_s)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start(std::chrono::milliseconds(std::lround(*delay_s * 1000)));
}

} // namespace proupsells::qtbackend
