// Values that get to where they are set over time.
#pragma once

#include <algorithm>
#include <memory>
#include <utility>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Graphics/Color.hpp"
#include "Platform/Motion/TimingCurve.hpp"

namespace proupsells::swiftui {

constexpr double interpolated(double from, double to, double progress) { return from + (to - from) * progress; }
constexpr geometry::Point interpolated(geometry::Point from, geometry::Point to, double progress) {
    return {interpolated(from.x, to.x, progress), interpolated(from.y, to.y, progress)};
}
constexpr geometry::Size interpolated(geometry::Size from, geometry::Size to, double progress) {
    return {interpolated(from.width, to.width, progress), interpolated(from.height, to.height, progress)};
}
// Both appearances, as they are painted. It has no name: no palette has a value for what is on its way.
graphics::Color interpolated(const graphics::Color& from, const graphics::Color& to, double progress);

// The value is a function of time, so nothing needs to happen between two readings. A movement to a new target starts from the
// value at that moment. Every view has some and few ever move, so a movement has its memory from the first one on.
template <class Value>
class Animated {
public:
    explicit Animated(Value value = {}) : m_target(std::move(value)) {}

    const Value& target() const { return m_target; }
    Value valueAt(double now_s) const {
        if (!isAnimatingAt(now_s)) return m_target;
        return interpolated(m_movement->from, m_target, m_movement->animation.progressAt(now_s - m_movement->start_s));
    }
    bool isAnimatingAt(double now_s) const { return now_s < end_s(); }
    // When the target is reached; in the past when nothing moves.
    double end_s() const { return m_movement ? m_movement->end_s : atRest; }

    // Null: at once. Setting the same target again changes nothing, not even while the value is on its way to it.
    void set(Value target, const motion::Animation* animation, double now_s) {
        if (target == m_target) return;
        if (animation) {
            Value from = valueAt(now_s);
            if (!m_movement) m_movement = std::make_unique<Movement>();
            *m_movement = {std::move(from), *animation, now_s, now_s + animation->end_s()};
        } else if (m_movement) {
            m_movement->end_s = atRest;
        }
        m_target = std::move(target);
    }

private:
    static constexpr double atRest = -1e300;

    struct Movement {
        Value from;
        motion::Animation animation;
        double start_s = 0;
        double end_s = atRest;
    };

    Value m_target;
    std::unique_ptr<Movement> m_movement; // null before the first one
};

// Place and size move on their own: what only changes its size at once goes on its way.
class AnimatedFrame {
public:
    explicit AnimatedFrame(const geometry::Rect& frame) : m_origin(frame.origin), m_size(frame.size) {}

    geometry::Rect valueAt(double now_s) const { return {m_origin.valueAt(now_s), m_size.valueAt(now_s)}; }
    double end_s() const { return std::max(m_origin.end_s(), m_size.end_s()); }
    void set(const geometry::Rect& target, const motion::Animation* animation, double now_s) {
        m_origin.set(target.origin, animation, now_s);
        m_size.set(target.size, animation, now_s);
    }

private:
    Animated<geometry::Point> m_origin;
    Animated<geometry::Size> m_size;
};

} // namespace proupsells::swiftui
