// One scrolled direction: where the content stands under a finger, after a flick, during an animation and at rest.
#pragma once

#include <cstdint>

#include "Platform/Motion/ScrollMotion.hpp"
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/Motion/VelocityTracker.hpp"

namespace proupsells::motion {

// A function of time: nothing happens between two readings. Times are the run loop's, in seconds. Offsets grow as the content moves
// towards its end; a finger's place grows as it pulls the content towards its start. What a finger or a wheel says is ignored where
// it is not finite.
class ScrollAxis {
public:
    // Where the content may rest, and the viewport's length. Content at its start stays at its start. A flick goes on inside the
    // new range. At rest, an offset that a person has scrolled to moves into the range; one that the program has set stays.
    void setRange(ScrollRange range, double viewportLength, double now_s);
    // The range of `count` pages; offsets and fingers' places count pages from 0 then. `pageLength` is in points.
    void setPages(int count, double pageLength, double now_s);
    const ScrollRange& range() const { return m_range; }

    double offsetAt(double now_s) const;
    // By how much the offset changes in a second, under a finger or after it; 0 during an animation.
    double velocityAt(double now_s) const;
    // Whether a finger holds the content.
    bool isTracking() const { return m_isTracking; }
    // Whether the content moves by itself.
    bool isMovingAt(double now_s) const;
    // The same, and only because a finger has let go of it.
    bool isCoastingAt(double now_s) const { return m_movement != Movement::animation && isMovingAt(now_s); }
    // When it comes to rest by itself; in the past where nothing moves.
    double end_s() const { return m_end_s; }

    // --- Fingers and wheels

    // The finger takes hold of the content where it stands at this moment.
    void beginTracking(double finger, double now_s);
    void track(double finger, double now_s);
    // The finger lifts: the content goes on with its speed.
    void endTracking(double now_s) { letGo(velocityAt(now_s), now_s); }
    // The finger is taken away: the content rests, or comes back into the range, unless it is the program that has put it outside.
    void comeToRest(double now_s) { letGo(0, now_s); }
    // The finger lifts: the content goes to `offset` and no further, however fast the finger was.
    void settleAt(double offset, double now_s);
    // Inside the range, at once. Both return whether the content has moved. A wheel moves nothing that a finger holds; in a new
    // place a finger goes on holding the content.
    bool scrollBy(double delta, double now_s);
    bool scrollTo(double offset, double now_s);

    // --- The program

    // At once, also outside the range. A finger holds the content there.
    void moveTo(double offset);
    // Likewise; at once under a finger.
    void animateTo(double offset, const Animation& animation, double now_s);
    // Moves into the range whoever has set the offset; leaves content alone that is held or moves.
    void moveIntoRange(double now_s);
    // Stops where it is shown, also outside the range.
    void stop(double now_s);

private:
    enum class Movement : std::uint8_t { animation, flick, settling };
    static constexpr double atRest = -1e300;

    void place(double offset, bool isOfPerson);
    void letGo(double velocity, double now_s);
    void follow(const Deceleration& path, Movement movement, double now_s);

    ScrollRange m_range;
    double m_viewportLength = 0;
    double m_point = 1;  // the length of a point in the unit of the offsets
    double m_offset = 0; // at rest, under the finger, or where the movement ends
    bool m_isOfPerson = false;

    // While it moves by itself.
    Movement m_movement = Movement::animation;
    double m_start_s = 0, m_end_s = atRest;
    Deceleration m_path{0, 0, {}};
    double m_animatedFrom = 0;
    Animation m_animation;

    // While a finger holds it.
    bool m_isTracking = false;
    double m_finger = 0, m_fingerAtStart = 0;
    double m_draggedAtStart = 0; // the offset before the rubber band, when the finger took hold
    VelocityTracker m_speed;     // of the content, which lags behind the finger in the rubber band
};

} // namespace proupsells::motion
