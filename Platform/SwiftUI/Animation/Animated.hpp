// Values that get to where they are set over time.
#pragma once

#include <utility>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Motion/TimingCurve.hpp"

namespace proupsells::swiftui {

constexpr double interpolated(double from, double to, double progress) { return from + (to - from) * progress; }
constexpr geometry::Point interpolated(geometry::Point from, geometry::Point to, double progress) {
    return {interpolated(from.x, to.x, progress), interpolated(from.y, to.y, progress)};
}
constexpr geometry::Rect interpolated(const geometry::Rect& from, const geometry::Rect& to, double progress) {
    return {interpolated(from.origin, to.origin, progress),
            {interpolated(from.size.width, to.size.width, progress), interpolated(from.size.height, to.size.height, progress)}};
}
// Both appearances, under the target's name.
graphics::Color interpolated(const graphics::Color& from, const graphics::Color& to, double progress);

// The value is a function of time, so nothing needs to happen between two readings. A movement to a new target starts from the
// value at that moment.
template <class Value>
class Animated {
public:
    explicit Animated(Value value = {}) : m_from(value), m_to(std::move(value)) {}

    const Value& target() const { return m_to; }
    Value valueAt(double now_s) const {
        if (now_s >= m_end_s) return m_to;
        return interpolated(m_from, m_to, m_animation.progressAt(now_s - m_start_s));
    }
    bool isAnimatingAt(double now_s) const { return now_s < m_end_s; }
    // When the target is reached; in the past when nothing moves.
    double end_s() const { return m_end_s; }

    // Null: at once. Setting the same target again changes nothing, not even while the value is on its way to it.
    void set(Value target, const motion::Animation* animation, double now_s) {
        if (target == m_to) return;
        if (!animation) {
            m_to = std::move(target);
            m_end_s = atRest;
            return;
        }
        m_from = valueAt(now_s);
        m_to = std::move(target);
        m_animation = *animation;
        m_start_s = now_s;
        m_end_s = now_s + animation->end_s();
    }

private:
    static constexpr double atRest = -1e300;

    Value m_from;
    Value m_to;
    motion::Animation m_animation;
    double m_start_s = 0;
    double m_end_s = atRest;
};

} // namespace proupsells::swiftui
