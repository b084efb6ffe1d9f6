#include "Backends/Qt/QtRunLoopDriver.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace proupsells::qtbackend {

QtRunLoopDriver::QtRunLoopDriver(runloop::MainRunLoop& loop) : m_loop(loop) {
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        m_loop.runDueTurns();
        arm();
    });
    m_loop.setWakeUpHandler([this] { arm(); });
    arm();
}

QtRunLoopDriver::~QtRunLoopDriver() { m_loop.setWakeUpHandler({}); }

void QtRunLoopDriver::arm() {
    const std::optional<double> delay_s = m_loop.nextDueDelay_s();
    if (!delay_s) return m_timer.stop();
    // Never early, which would wake up for nothing; and at most an hour, which no timer overflows at.
    constexpr double longest_ms = 3'600'000;
    const double delay_ms = std::ceil(std::min(*delay_s * 1000, longest_ms));
    m_timer.start(std::chrono::milliseconds(std::int64_t(delay_ms)));
}

} // namespace proupsells::qtbackend
