// A screen in memory of the host's: for game engines, SDL, and toolkits of every kind.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Backends/Raster/PixelBuffer.hpp"
#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Host/WindowContent.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::rasterbackend {

// Paints a content, says when the next frame is due, and takes input. The host owns the memory, the window and the event loop:
//
//     view.setSize({375, 800});
//     while (running) {
//         // Ends early when an event comes, which goes to pointer(), scroll() or key().
//         waitForEvents(view.nextDueDelay_ms());
//         if (view.paint(buffer, 2)) show(view.lastDamage());
//     }
//
// standard::PixelScreen is one for a controller, and installs what it needs. This one needs a main run loop, which must live
// longer. Main thread only. The view may be destroyed from inside everything that it calls.
class PROUPSELLS_EXPORT PixelView {
public:
    // Shares the content, which must not be null.
    explicit PixelView(std::shared_ptr<host::WindowContent> content);
    ~PixelView();
    PixelView(const PixelView&) = delete;
    PixelView& operator=(const PixelView&) = delete;

    // As given.
    const std::shared_ptr<host::WindowContent>& content() const;

    // --- Place ---

    // In points. The same again changes nothing.
    void setSize(geometry::Size size, geometry::PhysicalInsets safeArea = {});
    // How often the display can show another frame; 60 unless told, and at least once a second.
    void setRefreshRate(double framesPerSecond);
    // Whether anybody can see the view, as at first. While nobody can, no frame is due and nothing in the content runs. A pointer
    // that is down then is taken away.
    void setSeen(bool isSeen);

    // --- Picture ---

    // Runs what is due, then paints what differs from the last frame, at `scale` pixels a point. Returns whether any pixel differs.
    // Another buffer than the last one is painted whole, unless it `holdsShown`: what the last frame has left in the former one.
    bool paint(const PixelBuffer& buffer, double scale, bool holdsShown = false);
    // The same without running what is due: for a host that was asked for its picture, and can do nothing else meanwhile.
    bool repaint(const PixelBuffer& buffer, double scale, bool holdsShown = false);
    // What the last frame has painted, in pixels; rectangles that do not overlap.
    const std::vector<PixelRect>& lastDamage() const;
    // The next frame is painted whole: something else has written into the buffer.
    void forgetShown();

    // --- Time ---

    // Seconds until a frame should be painted; 0 when it is due, absent when nothing has changed and nothing moves.
    std::optional<double> nextFrameDelay_s() const;
    // The same, counting also what the main run loop waits for. Absent: nothing will happen before the next input.
    std::optional<double> nextDueDelay_s() const;
    // The same in whole milliseconds, rounded up, as functions that wait for events take it; -1 where it is absent.
    int nextDueDelay_ms() const;
    // Told, outside paint(), when a frame is wanted: at once, or at the display's next refresh.
    void setFrameHandler(std::function<void()> handler);

    // --- Input ---

    // Where the mouse or the one finger is, in points, and whether the button or finger is down: to be told when either changes.
    void pointer(geometry::Point location, bool isDown);
    // Where the mouse rests or goes, its button held or not; absent once it has left the view. What moves by itself is held below
    // it. Not to be told of fingers.
    void hover(std::optional<geometry::Point> location);
    // The pointer is somebody else's now: what it has pressed is let go without a tap.
    void cancelPointer();
    // For hosts that know the phase: one finger, or the mouse while its button is down.
    void touch(host::TouchPhase phase, geometry::Point location);
    // A wheel or trackpad; a positive y shows what is further down.
    void scroll(geometry::Point location, geometry::Point delta);
    // Returns whether the key meant something. One that is held down comes again and again, `isRepeated` but for the first time;
    // without that word it may buy twice.
    bool key(host::Key key, bool isRepeated = false);
    // The same for a key's name as SDL, X11 and browsers have it ("Escape", "Tab", "Return" or "Enter", "Space", "Up" or "ArrowUp"
    // and so on, in small or capital letters). With Shift, Tab goes backwards. Other names mean nothing.
    bool key(std::string_view name, bool isShifted, bool isRepeated);

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace proupsells::rasterbackend
