// How fast something moves along one axis.
#pragma once

namespace proupsells::motion {

// The speed over the last positions; 0 after a rest of more than 0.1 s.
class VelocityTracker {
public:
    void reset();
    void add(double time_s, double position);
    double velocityAt(double time_s) const; // positions' unit a second

private:
    static constexpr int capacity = 8;
    double m_times_s[capacity] = {};
    double m_positions[capacity] = {};
    int m_count = 0;
};

} // namespace proupsells::motion
