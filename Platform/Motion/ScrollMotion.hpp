// The movement of a scrolled axis under a finger and after it has let go; shared by both view layers.
#pragma once

#include <optional>

namespace motion {

// Offsets between which one axis rests.
struct ScrollRange {
    double minimum = 0;
    double maximum = 0;

    double clamped(double offset) const;
};

// The offset shown while a finger has dragged the axis to `offset`: past the range's ends the content follows less and less,
// never further than the viewport's length.
double rubberBanded(double offset, ScrollRange range, double viewportLength);

// What a finger that shows `shown` has dragged to: the inverse of rubberBanded.
double unRubberBanded(double shown, ScrollRange range, double viewportLength);

// Where an axis goes after the finger has let go, as a function of time: exponential deceleration, then, where it runs over the
// range's end, a critically damped spring back to it.
class Deceleration {
public:
    // `velocity` in points a second, of the offset.
    Deceleration(double offset, double velocity, ScrollRange range);

    double offsetAt(double elapsed_s) const;
    double velocityAt(double elapsed_s) const;
    // When it has come to rest.
    double duration_s() const { return m_duration_s; }
    double target() const;

private:
    struct Spring {
        double start_s, end, displacement, velocity;
    };
    double m_offset, m_velocity;
    std::optional<Spring> m_spring;
    double m_duration_s;
};

// Speed of a finger from its last positions; a finger that rests for more than 0.1 s before it lifts has none.
class VelocityTracker {
public:
    void reset();
    void add(double time_s, double position);
    double velocityAt(double time_s) const; // points a second

private:
    static constexpr int capacity = 8;
    double m_times_s[capacity] = {};
    double m_positions[capacity] = {};
    int m_count = 0;
};

} // namespace motion
