// Lets Qt's event loop run in tests.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <functional>

namespace proupsells::tests {

// Handles events until the condition holds. False when it does not hold within ten seconds.
inline bool handleEventsUntil(const std::function<bool()>& condition) {
    // Something must wake the loop for the deadline to be looked at.
    QTimer alarm;
    alarm.start(100);
    for (const QDeadlineTimer deadline(10'000); !condition();) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace proupsells::tests
