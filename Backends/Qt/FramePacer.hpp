// When a view in pixels is painted, by Qt's event loop.
#pragma once

#include <QTimer>
#include <functional>

#include "Backends/Raster/PixelView.hpp"
#include "Platform/System/Compiler.hpp"

class QScreen;

namespace proupsells::qtbackend {

// How many frames a second are worth making for a display that says it is refreshed so often: displays are not always right.
PROUPSELLS_EXPORT double framesPerSecondFor(double refreshRate);

// Asks for a frame as soon as one is due, at most once a refresh of the display, and not at all while nobody can see it.
class PROUPSELLS_EXPORT FramePacer {
public:
    // `view` must live longer. `paint` makes a frame; it may destroy the pacer.
    FramePacer(rasterbackend::PixelView& view, std::function<void()> paint);
    ~FramePacer();
    FramePacer(const FramePacer&) = delete;
    FramePacer& operator=(const FramePacer&) = delete;

    // Whether the view can be seen, not at first; and the display that shows the frames, null where unknown.
    void setRunning(bool isRunning, const QScreen* screen);
    bool isRunning() const { return m_isRunning; }
    // Arms the timer for the next frame: to be called when one was made in another way than by `paint`, and when the display may
    // have changed.
    void schedule(const QScreen* screen);

private:
    void arm();

    rasterbackend::PixelView& m_view;
    std::function<void()> m_paint;
    QTimer m_timer;
    bool m_isRunning = false;
};

} // namespace proupsells::qtbackend
