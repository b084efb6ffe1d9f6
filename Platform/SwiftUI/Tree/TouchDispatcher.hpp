// Brings touches to the handlers that they belong to.
#pragma once

#include <optional>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Host/WindowContent.hpp"

namespace proupsells::swiftui {

class GestureHandler;
class Node;
class ViewHost;
struct TouchEvent;

// One touch at a time: another one that begins meanwhile is ignored. See GestureHandler for the rules.
class TouchDispatcher {
public:
    explicit TouchDispatcher(ViewHost& host) : m_host(host) {}
    TouchDispatcher(const TouchDispatcher&) = delete;

    // Whether a handler has the touch.
    bool touch(const host::Touch& touch);
    // Where the mouse rests, or that it has left. Whether a control that can be used is there.
    bool hover(std::optional<geometry::Point> location);
    // The innermost handler that the movement means something to gets it.
    bool scroll(geometry::Point location, geometry::Point delta);
    // Takes the touch away from whoever has it.
    void cancel();
    // The node goes away with everything inside, handlers included. The touch stays with the handlers around it, who may still
    // claim it.
    void nodeGone(const Node& node);

private:
    struct Candidate {
        Node* node = nullptr;
        GestureHandler* handler = nullptr;
    };

    void collectHandlers(Node* hit);
    Candidate controlUnder(geometry::Point location) const;
    bool hasControl() const;
    TouchEvent eventAt(geometry::Point location) const;
    GestureHandler* interceptor(const TouchEvent& event) const;
    bool begin(const host::Touch& touch);
    void move(const host::Touch& touch);
    void offerToOthers(const TouchEvent& event);
    // Ends the touch and tells who had it.
    GestureHandler* release();

    ViewHost& m_host;
    std::vector<Candidate> m_candidates; // deepest first; empty between touches
    GestureHandler* m_active = nullptr;
    Candidate m_hovered; // null while the mouse rests on no control
    geometry::Point m_start;
    geometry::Point m_location;
    geometry::Point m_shift; // from the finger to the place that handlers are told
};

} // namespace proupsells::swiftui
