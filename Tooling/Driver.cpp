#include "Tooling/Driver.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::tooling {

namespace {

// A finger's position is reported this often while it moves.
constexpr double reportInterval_s = 1.0 / 60;

} // namespace

void Driver::wait(double duration_s) { m_loop.runUntil(m_loop.now_s() + duration_s); }

void Driver::finishTransitions() {
    m_loop.settle();
    while (m_window.isTransitioning()) {
        const auto due_s = m_loop.nextDueTime_s();
        if (!due_s) return;
        m_loop.runUntil(*due_s);
    }
}

void Driver::tap(geometry::Point point) {
    touch(host::TouchPhase::began, point);
    touch(host::TouchPhase::ended, point);
}

void Driver::press(geometry::Point point, double duration_s) {
    touch(host::TouchPhase::began, point);
    wait(duration_s);
    touch(host::TouchPhase::ended, point);
}

bool Driver::press(host::Key key) {
    const bool meantSomething = m_window.key(key);
    m_loop.settle();
    return meantSomething;
}

void Driver::drag(geometry::Point from, geometry::Point to, double duration_s) {
    const double start_s = m_loop.now_s();
    const int reports = std::max(1, static_cast<int>(std::ceil(duration_s / reportInterval_s - 1e-9)));
    touch(host::TouchPhase::began, from);
    for (int i = 1; i <= reports; ++i) {
        const double share = static_cast<double>(i) / reports;
        m_loop.runUntil(start_s + duration_s * share);
        touch(host::TouchPhase::moved, {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
    }
    touch(host::TouchPhase::ended, to);
}

void Driver::touch(host::TouchPhase phase, geometry::Point point) {
    m_window.touch({phase, point, m_loop.now_s()});
    m_loop.settle();
}

} // namespace proupsells::tooling
