// Runs the main run loop's work from Qt's event loop.
#pragma once

#include <QTimer>

#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

// Sleeps until the next turn is due: between turns it costs nothing. Needs a QGuiApplication; the loop must live longer.
class PROUPSELLS_EXPORT QtRunLoopDriver {
public:
    // Takes the loop's wake-up handler.
    explicit QtRunLoopDriver(runloop::MainRunLoop& loop);
    ~QtRunLoopDriver();
    QtRunLoopDriver(const QtRunLoopDriver&) = delete;
    QtRunLoopDriver& operator=(const QtRunLoopDriver&) = delete;

private:
    void arm();

    runloop::MainRunLoop& m_loop;
    QTimer m_timer; // each time that it fires it is started anew, or stopped
};

} // namespace proupsells::qtbackend
