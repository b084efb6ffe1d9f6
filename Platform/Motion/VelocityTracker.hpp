// How fast a finger moves along one axis.
#pragma once

namespace proupsells::motion {

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

} // namespace proupsells::motion
