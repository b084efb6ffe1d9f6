// What answers touches.
#pragma once

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::swiftui {

// A finger's place and time. `location` is in the coordinates of the view host.
struct TouchEvent {
    geometry::Point location;
    geometry::Point start; // where it came down
    double time_s = 0;     // on the main run loop's clock
};

// A node that answers touches returns one from Node::gestureHandler().
//
// Who gets a touch: the handlers of the deepest node hit and of the nodes around it are asked from the inside outwards. The first
// whose touchBegan returns true has the touch.
//
// Who may take it away: while the finger moves, the others among them are asked, from the inside outwards, whether they claim the
// touch; a scroll view does after 10 points along its axis. Nobody is asked while the one that has the touch holds it. When a
// handler claims it, the one that had it is told touchCancelled. The claimer gets touchBegan for the place where the finger came
// down, then touchMoved for the place where it is.
//
// A control's target is at least 44 points wide and high, however small it is drawn: a finger that comes down beside it and hits no
// control touches it at its nearest edge, and every place of that touch is told as far moved.
//
// A handler is not called after its node has left the tree. The host stays alive during a call, whatever the call does.
class GestureHandler {
public:
    virtual ~GestureHandler() = default;

    // Asked before anything else when a touch comes down, from the outside inwards. The first that says true has the touch, and
    // nothing inside it learns of it: a scroll view that is still moving is stopped like this. touchBegan follows.
    virtual bool interceptsTouch(const TouchEvent&) { return false; }
    virtual bool touchBegan(const TouchEvent& event) = 0;
    virtual void touchMoved(const TouchEvent&) {}
    virtual void touchEnded(const TouchEvent&) {}
    virtual void touchCancelled() {}
    // The mouse rests on what would get its touch, a control, or has left it.
    virtual void hovered(bool /*isHovered*/) {}
    // Whether it is something to be tapped.
    virtual bool isControl() const { return false; }
    // Whether to take the touch away from the handler that has it.
    virtual bool claims(const TouchEvent&) { return false; }
    // Whether the touch that this one has must not be claimed by others.
    virtual bool holdsTouch() const { return false; }
    // A wheel or trackpad over the node; returns whether it moved anything.
    virtual bool scrolled(geometry::Point delta) {
        (void)delta;
        return false;
    }
};

} // namespace proupsells::swiftui
