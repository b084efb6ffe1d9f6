// What a backend's window shows and feeds with input.
#pragma once

#include <functional>
#include <optional>

#include "Platform/Accessibility/Reading.hpp"
#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

// A finger comes down, moves and leaves, or the system takes the touch away.
enum class TouchPhase { began, moved, ended, cancelled };

// One finger, or the mouse with its button held.
struct Touch {
    TouchPhase phase = TouchPhase::began;
    geometry::Point location; // window points
    double time_s = 0;        // on the main run loop's clock
};

// Which end of the content the focus comes in at.
enum class FocusEnd { first, last };

// Keys that mean something to every content; the backend says which of its own they are.
enum class Key { escape, tab, backTab, activate, space, up, down, left, right, pageUp, pageDown, home, end };

class PROUPSELLS_EXPORT WindowContent {
public:
    virtual ~WindowContent() = default;

    // How large the window is, and how much of its edges the system covers; in points.
    virtual void setSize(geometry::Size size, geometry::PhysicalInsets safeArea) = 0;
    // A finger has come down, moved or left. Places and times that are no finite numbers are dropped, and end the touch where they
    // say that it has ended.
    virtual void touch(const Touch& touch) = 0;
    // Where the mouse rests or goes, its button held or not; absent once it has left. Nothing is told of fingers.
    virtual void pointer(std::optional<geometry::Point> /*location*/) {}
    // Whether the mouse rests on something to be tapped, which shows it; asked whenever the mouse or the picture has moved.
    virtual bool pointsAtControl() { return false; }
    // A wheel or trackpad: moves the scroll view under `location` by `delta` points; a positive y shows what is further down.
    // What is no finite number moves nothing.
    virtual void scroll(geometry::Point location, geometry::Point delta) = 0;
    // Returns whether the key meant something. A key that is held down comes again and again, `isRepeated` but for the first time.
    virtual bool key(Key key, bool isRepeated = false) = 0;

    // Where Tab goes from the last control: back to the first one, as at first, or out of the content. key() is false then.
    virtual void setFocusLeaves(bool /*leaves*/) {}
    // Tab has come in from outside, at the first control or at the last one. False where there is none to give the focus to.
    virtual bool takeFocus(FocusEnd /*end*/) { return false; }
    // The focus has gone somewhere else.
    virtual void dropFocus() {}

    // Whether anybody can see the content, as at first. Nothing in it runs while nobody can.
    virtual void setSeen(bool /*isSeen*/) {}

    // Writes what the window shows at the main run loop's time.
    virtual void paint(graphics::DisplayList& list) = 0;
    // Whether the picture changes by itself, so that a frame should follow at the next refresh.
    virtual bool isAnimating() const = 0;
    // Told when the picture has changed.
    virtual void setNeedsDisplayHandler(std::function<void()> handler) = 0;

    // What is shown now, laid out; a copy of its own.
    virtual accessibility::SemanticNode semanticTree() = 0;
    // What is told of it to a person who cannot see it, in order, and where the focus is.
    virtual accessibility::ReadingElement reading() { return accessibility::readingOf(semanticTree()); }
};

} // namespace proupsells::host
