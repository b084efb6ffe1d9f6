// One scrolled direction: where the content stands while a finger holds it, after a flick, and at rest.
#pragma once

#include <optional>

#include "Platform/Motion/ScrollMotion.hpp"

namespace proupsells::swiftui {

// All times are the run loop's, in seconds; offsets grow as the content moves towards its end.
class ScrollAxis {
public:
    // Where it may rest, and the viewport's length. An offset that does not fit any more is moved in, except under a finger; a
    // flick goes on inside the new range.
    void setRange(motion::ScrollRange range, double viewportLength, double now_s);
    motion::ScrollRange range() const { return m_range; }

    double offsetAt(double now_s) const;
    bool isTracking() const { return m_isTracking; }
    // Whether it moves by itself.
    bool isCoastingAt(double now_s) const;
    // When it comes to rest by itself; in the past where nothing moves.
    double end_s() const;

    // The finger takes hold of the content where it is shown at this moment. `finger` is its place along the axis.
    void beginTracking(double finger, double now_s);
    void track(double finger, double now_s);
    // The finger lifts: the content goes on with its speed.
    void endTracking(double now_s);
    // The finger is taken away: comes to rest without a flick.
    void cancelTracking(double now_s);
    // Stops where it is shown; from outside the range it comes back only when the finger lifts.
    void stop(double now_s);
    // Moves at once, inside the range; takes the content out of the finger's hold.
    void moveTo(double offset);

private:
    struct Flick {
        motion::Deceleration path;
        double start_s;
    };

    void coast(double offset, double velocity, double now_s);

    motion::ScrollRange m_range;
    double m_viewportLength = 0;
    double m_offset = 0; // at rest, or under the finger
    std::optional<Flick> m_flick;
    bool m_isTracking = false;
    double m_fingerAtStart = 0;
    double m_draggedAtStart = 0;     // the offset before the rubber band, when the finger took hold
    motion::VelocityTracker m_speed; // of the content, which lags behind the finger in the rubber band
};

} // namespace proupsells::swiftui
