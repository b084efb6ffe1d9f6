// Brings touches to the handlers that they belong to.
#pragma once

#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Host/WindowContent.hpp"

namespace swiftui {

class GestureHandler;
class Node;
class ViewHost;

// One touch at a time. See GestureHandler for the rules.
class TouchDispatcher {
public:
    explicit TouchDispatcher(ViewHost& host) : m_host(host) {}
    TouchDispatcher(const TouchDispatcher&) = delete;

    // Whether a handler has the touch.
    bool touch(const host::Touch& touch);
    bool scroll(geometry::Point location, geometry::Point delta);
    // Takes the touch away from whoever has it.
    void cancel();
    // The handler that has the touch; null when none has.
    GestureHandler* activeHandler() const { return m_active; }
    // The node, and with it its handler, goes away.
    void nodeGone(Node& node);

private:
    struct Candidate {
        Node* node = nullptr;
        GestureHandler* handler = nullptr;
    };

    void collectHandlers(Node* hit);
    bool begin(const host::Touch& touch);
    void offerToOuterHandlers(const struct TouchEvent& event);

    ViewHost& m_host;
    std::vector<Candidate> m_candidates; // deepest first
    GestureHandler* m_active = nullptr;
    geometry::Point m_start;
};

} // namespace swiftui
