// Content that moves by itself, as a function of time.
#pragma once

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Motion/ScrollMotion.hpp"
#include "Platform/Motion/TimingCurve.hpp"

namespace proupsells::uikit {

// All times are the run loop's, in seconds.
class ScrollMovement {
public:
    enum class Kind { animation, deceleration };

    static ScrollMovement animation(geometry::Point from, geometry::Point to, const motion::Animation& animation, double start_s);
    // Goes on with `velocity`, in points a second, within the ranges.
    static ScrollMovement deceleration(geometry::Point from, geometry::Point velocity, motion::ScrollRange horizontal,
                                       motion::ScrollRange vertical, double start_s);

    Kind kind() const { return m_kind; }
    geometry::Point offsetAt(double now_s) const;
    // Of a deceleration, in points a second.
    geometry::Point velocityAt(double now_s) const;
    // Where it comes to rest.
    geometry::Point target() const;
    double end_s() const;
    // Moments that are equal but for rounding count as equal.
    bool isOverAt(double now_s) const;

private:
    ScrollMovement(Kind kind, double start_s, motion::Deceleration horizontal, motion::Deceleration vertical)
        : m_kind(kind), m_start_s(start_s), m_horizontal(horizontal), m_vertical(vertical) {}

    Kind m_kind;
    double m_start_s;
    motion::Deceleration m_horizontal, m_vertical;
    geometry::Point m_from, m_to;
    motion::Animation m_animation;
};

} // namespace proupsells::uikit
