// What a scrolled axis does under a finger and after the finger has let go, as formulas.
#pragma once

#include "Platform/Motion/VelocityTracker.hpp"

namespace proupsells::motion {

// The offsets between which one axis rests. A maximum below the minimum counts as the minimum.
struct ScrollRange {
    double minimum = 0;
    double maximum = 0;

    // Of content in a viewport, with empty space before and after the content. Content that fits rests at its start.
    static ScrollRange ofContent(double contentLength, double viewportLength, double spaceBefore, double spaceAfter);

    double clamped(double offset) const;
    bool operator==(const ScrollRange&) const = default;
};

// The offset to show while a finger drags the axis to `offset`. Past the range's ends the content follows less and less, and never
// further than the viewport's length.
double rubberBanded(double offset, ScrollRange range, double viewportLength);

// The offset that a finger has dragged to where `shown` is shown: the inverse of rubberBanded.
double unRubberBanded(double shown, ScrollRange range, double viewportLength);

// Where an axis goes after the finger has let go, as a function of time. It decelerates exponentially; if it runs over the range's
// end, a critically damped spring brings it back there. Outside the range it starts with the spring; if a flick brings it back in
// faster than the spring, it decelerates from there. Neither the offset nor the speed leaps.
class Deceleration {
public:
    // `velocity` is the offset's change in a second. `point` is the length of a point in the unit of the offsets. Values that are
    // not finite count as the range's start and as no speed.
    Deceleration(double offset, double velocity, ScrollRange range, double point = 1);

    // To `end` and no further, however fast: a finger that has turned a page.
    static Deceleration settling(double offset, double velocity, double end, double point = 1);

    double offsetAt(double elapsed_s) const;
    // 0 from duration_s() on.
    double velocityAt(double elapsed_s) const;
    // When it has come to rest.
    double duration_s() const { return m_duration_s; }
    // Where it comes to rest: always inside the range.
    double target() const { return m_target; }

private:
    // A stretch of the way: a spring towards `end`, or coasting if `isSpring` is not set.
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

    // At most three: the way back into the range, coasting, the way back from beyond the other end.
    Phase m_phases[3];
    int m_phaseCount = 0;
    double m_point;
    double m_duration_s = 0;
    double m_target = 0;
};

} // namespace proupsells::motion
