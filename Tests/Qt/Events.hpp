// Lets Qt's event loop run in tests.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <functional>

namespace proupsells::tests {

// Handles events until the condition holds. False when it does not hold within a minute.
inline bool handleEventsUntil(const std::function<bool()>& condition) {
    // Something must wake the loop for the deadline to be looked at.
    QTimer alarm;
    alarm.start(100);
    for (const QDeadlineTimer deadline(60'000); !condition();) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

// Until nothing is left to be done now: what an event brings about comes in two frames at most. Time in which the machine was busy
// with something else does not count.
inline void settle() {
    constexpr int quiet_ms = 60, disturbed_ms = 90, mostRounds = 50;
    QTimer timer;
    timer.setSingleShot(true);
    for (int round = 0; round < mostRounds; ++round) {
        QElapsedTimer taken;
        taken.start();
        timer.start(quiet_ms);
        handleEventsUntil([&] { return !timer.isActive(); });
        if (taken.elapsed() < disturbed_ms) return;
    }
}

} // namespace proupsells::tests
