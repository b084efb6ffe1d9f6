// What the peers that are made with Qt share: taps, and time that passes.
#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTimer>

#include "Common/Measure.hpp"

namespace peers {

// A press and a release in the same place.
inline void sendTap(QObject& target, QPointF inTarget, QPointF inWindow) {
    QMouseEvent press(QEvent::MouseButtonPress, inTarget, inWindow, inWindow, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, inTarget, inWindow, inWindow, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &release);
}

inline void runEventLoop(double duration_s) {
    QEventLoop loop;
    QTimer::singleShot(int(duration_s * 1000), &loop, &QEventLoop::quit);
    loop.exec();
}

// What a screen that is shown costs while nobody touches it.
inline void measureIdle(const Command& command, Report& report) {
    runEventLoop(3);
    const Stopwatch watch;
    runEventLoop(command.seconds());
    report.add("cpu_s_per_min", watch.cpu_ms() / watch.wall_ms() * 60);
    report.add(Memory::now());
}

} // namespace peers
