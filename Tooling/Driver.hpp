// Moves virtual time and a finger over a window.
#pragma once

#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::tooling {

// The loop is on a virtual clock; both must live longer.
class PROUPSELLS_EXPORT Driver {
public:
    Driver(runloop::MainRunLoop& loop, uikit::UIWindow& window) : m_loop(loop), m_window(window) {}

    void wait(double duration_s);
    // Lets time pass until no presentation or dismissal is under way.
    void finishTransitions();
    // Touches and lifts at once; takes no time.
    void tap(geometry::Point point);
    // Touches, waits, lifts.
    void press(geometry::Point point, double duration_s);
    // Presses and lifts a key at once; takes no time. Returns whether the key meant something.
    bool press(host::Key key);
    // Touches at `from`, moves evenly to `to`, lifts there.
    void drag(geometry::Point from, geometry::Point to, double duration_s);

private:
    void touch(host::TouchPhase phase, geometry::Point point);

    runloop::MainRunLoop& m_loop;
    uikit::UIWindow& m_window;
};

} // namespace proupsells::tooling
