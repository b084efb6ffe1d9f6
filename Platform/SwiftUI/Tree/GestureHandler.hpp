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

// A node that answers touches returns one from Node::gestureHandler(). A touch goes to the deepest node hit and looks for its
// handler from there outwards: the first whose touchBegan returns true has the touch. While it moves, and unless the one that has
// it holds it, the other handlers on its way are asked, from the inside outwards, whether they claim it (a scroll view does after
// 10 points along its axis); then the one that had it is told touchCancelled, and the claimer gets touchBegan for the place where
// the finger came down and touchMoved for where it is. A handler is not called after its node has left the tree. The host stays
// alive during a call, whatever the call does.
class GestureHandler {
public:
    virtual ~GestureHandler() = default;

    // Asked before anything else, from the outside inwards, of the handlers around the place where a touch comes down. The first
    // that says true has the touch, and nothing inside it learns of it: a scroll view that is still moving. touchBegan follows.
    virtual bool interceptsTouch(const TouchEvent&) { return false; }
    virtual bool touchBegan(const TouchEvent& event) = 0;
    virtual void touchMoved(const TouchEvent&) {}
    virtual void touchEnded(const TouchEvent&) {}
    virtual void touchCancelled() {}
    // Whether a touch that another handler has should be this one's now.
    virtual bool claims(const TouchEvent&) { return false; }
    // Whether nobody may claim the touch that this one has.
    virtual bool holdsTouch() const { return false; }
    // A wheel or trackpad over the node; returns whether it moved anything.
    virtual bool scrolled(geometry::Point delta) {
        (void)delta;
        return false;
    }
};

} // namespace proupsells::swiftui
