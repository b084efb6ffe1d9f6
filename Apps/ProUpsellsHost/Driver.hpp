// Moves virtual time and a finger over a session's window.
#pragma once

#include <functional>
#include <memory>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::hostprogram {

class Driver {
public:
    Driver(runloop::MainRunLoop& loop, HostSession& session) : m_loop(loop), m_session(session) {}

    void wait(double duration_s);
    // Lets time pass until no presentation or dismissal is under way.
    void finishTransitions();
    // Touches and lifts at once; takes no time.
    void tap(geometry::Point point);
    // Touches, waits, lifts.
    void press(geometry::Point point, double duration_s);
    // Presses and lifts a key at once; takes no time.
    void press(host::Key key);
    // Touches at `from`, moves evenly to `to`, lifts there.
    void drag(geometry::Point from, geometry::Point to, double duration_s);

private:
    void touch(host::TouchPhase phase, geometry::Point point);

    runloop::MainRunLoop& m_loop;
    HostSession& m_session;
};

} // namespace proupsells::hostprogram
