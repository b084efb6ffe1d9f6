#include "Platform/UIKit/Views/ScrollMovement.hpp"

namespace proupsells::uikit {

ScrollMovement ScrollMovement::animation(geometry::Point from, geometry::Point to, const motion::Animation& animation,
                                         double start_s) {
    ScrollMovement movement(Kind::animation, start_s, {0, 0, {}}, {0, 0, {}});
    movement.m_from = from;
    movement.m_to = to;
    movement.m_animation = animation;
    return movement;
}

ScrollMovement ScrollMovement::deceleration(geometry::Point from, geometry::Point velocity, motion::ScrollRange horizontal,
                                            motion::ScrollRange vertical, double start_s) {
    return {Kind::deceleration, start_s, {from.x, velocity.x, horizontal}, {from.y, velocity.y, vertical}};
}

geometry::Point ScrollMovement::offsetAt(double now_s) const {
    if (isOverAt(now_s)) return target();
    const double elapsed_s = now_s - m_start_s;
    if (m_kind == Kind::deceleration) return {m_horizontal.offsetAt(elapsed_s), m_vertical.offsetAt(elapsed_s)};
    const double progress = m_animation.progressAt(elapsed_s);
    return {m_from.x + (m_to.x - m_from.x) * progress, m_from.y + (m_to.y - m_from.y) * progress};
}

geometry::Point ScrollMovement::velocityAt(double now_s) const {
    return {m_horizontal.velocityAt(now_s - m_start_s), m_vertical.velocityAt(now_s - m_start_s)};
}

geometry::Point ScrollMovement::target() const {
    return m_kind == Kind::animation ? m_to : geometry::Point{m_horizontal.target(), m_vertical.target()};
}

double ScrollMovement::end_s() const {
    if (m_kind == Kind::animation) return m_start_s + m_animation.end_s();
    return m_start_s + std::max(m_horizontal.duration_s(), m_vertical.duration_s());
}

bool ScrollMovement::isOverAt(double now_s) const {
    constexpr double rounding_s = 1e-9;
    return now_s >= end_s() - rounding_s;
}

} // namespace proupsells::uikit
