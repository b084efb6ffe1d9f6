// The movement of a scrolled axis under a finger and after it has let go; shared by both view layers.
#pragma once

#include "Platform/Motion/VelocityTracker.hpp"

namespace proupsells::motion {

// Offsets between which one axis rests. A maximum below the minimum counts as the minimum: content that does not fill its viewport.
struct ScrollRange {
    double minimum = 0;
    double maximum = 0;

    double clamped(double offset) const;
    bool operator==(const ScrollRange&) const = default;
};

// The offset shown while a finger has dragged the axis to `offset`: past the range's ends the content follows less and less,
// never further than the viewport's length.
double rubberBanded(double offset, ScrollRange range, double viewportLength);

// What a finger that shows `shown` has dragged to: the inverse of rubberBanded.
double unRubberBanded(double shown, ScrollRange range, double viewportLength);

// Where an axis goes after the finger has let go, as a function of time: exponential deceleration, then, where it runs over the
// range's end, a critically damped spring back to it. Outside the range it starts with the spring; a flick that brings it back
// in faster than the spring would goes on decelerating from there. Offset and speed have no leaps on the way.
class Deceleration {
public:
    // `velocity` in points a second, of the offset. Values that are not finite count as the range's start and as no speed.
    Deceleration(double offset, double velocity, ScrollRange range);

    // To `end` and no further, however fast: a finger that has turned a page.
    static Deceleration settling(double offset, double velocity, double end);

    double offsetAt(double elapsed_s) const;
    // Points a second; 0 from duration_s() on.
    double velocityAt(double elapsed_s) const;
    // When it has come to rest.
    double duration_s() const { return m_duration_s; }
    // Where it comes to rest: always inside the range.
    double target() const { return m_target; }

private:
    // A stretch of the way, by its own clock: a spring towards `end`, or coasting where `isSpring` is not set.
    struct Phase {
        bool isSpring = false;
        double start_s = 0, offset = 0, velocity = 0, end = 0;

        double offsetAt(double time_s) const;
        double velocityAt(double time_s) const;
    };

    void comeBackTo(double end, ScrollRange range);
    void springTo(double end);
    void coastThrough(ScrollRange range);
    void beginPhase(double start_s, double offset, double velocity, bool isSpring, double end);
    void restAt(double time_s, double offset);
    const Phase& phaseAt(double elapsed_s) const;

    // At most: the way back into the range, coasting, the way back from beyond its other end.
    Phase m_phases[3];
    int m_phaseCount = 0;
    double m_duration_s = 0;
    double m_target = 0;
};

} // namespace proupsells::motion
