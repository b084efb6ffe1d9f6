#include "Platform/Motion/ScrollAxis.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::motion {
namespace {

// Points a second. A faster finger does not throw the content further, nor out of sight past its end.
constexpr double fastestFlick = 8000;
// Moments that are equal but for rounding count as equal, so that evenly timed steps meet each other.
constexpr double rounding_s = 1e-9;

} // namespace

void ScrollAxis::setRange(ScrollRange range, double viewportLength, double now_s) {
    if (range == m_range && viewportLength == m_viewportLength) return;
    const bool isAtStart = offsetAt(now_s) == m_range.minimum;
    m_range = range;
    m_viewportLength = viewportLength;
    if (m_isTracking) return;
    if (isMovingAt(now_s)) {
        if (m_movement == Movement::flick) letGo(velocityAt(now_s), now_s);
    } else if (isAtStart) {
        m_offset = range.minimum;
    } else if (m_isOfPerson) {
        moveIntoRange(now_s);
    }
}

void ScrollAxis::setPages(int count, double pageLength, double now_s) {
    m_point = pageLength > 0 ? 1 / pageLength : 1;
    setRange({0, std::max(0.0, count - 1.0)}, 1, now_s);
}

double ScrollAxis::offsetAt(double now_s) const {
    if (!isMovingAt(now_s)) return m_offset;
    if (m_movement != Movement::animation) return m_path.offsetAt(now_s - m_start_s);
    return m_animatedFrom + (m_offset - m_animatedFrom) * m_animation.progressAt(now_s - m_start_s);
}

double ScrollAxis::velocityAt(double now_s) const {
    if (m_isTracking) return m_speed.velocityAt(now_s);
    return isCoastingAt(now_s) ? m_path.velocityAt(now_s - m_start_s) : 0;
}

bool ScrollAxis::isMovingAt(double now_s) const { return now_s < m_end_s - rounding_s; }

// --- Fingers and wheels

void ScrollAxis::beginTracking(double finger, double now_s) {
    if (!std::isfinite(finger)) return;
    m_isTracking = true;
    m_finger = finger;
    place(offsetAt(now_s), true);
    m_speed.add(now_s, m_offset);
}

void ScrollAxis::track(double finger, double now_s) {
    if (!m_isTracking || !std::isfinite(finger)) return;
    m_finger = finger;
    m_offset = rubberBanded(m_draggedAtStart - (finger - m_fingerAtStart), m_range, m_viewportLength);
    m_isOfPerson = true;
    m_speed.add(now_s, m_offset);
}

void ScrollAxis::letGo(double velocity, double now_s) {
    m_isTracking = false;
    if (!m_isOfPerson) return;
    const double fastest = fastestFlick * m_point;
    follow({offsetAt(now_s), std::clamp(velocity, -fastest, fastest), m_range, m_point}, Movement::flick, now_s);
}

void ScrollAxis::settleAt(double offset, double now_s) {
    if (!m_isTracking) return;
    const double velocity = velocityAt(now_s);
    m_isTracking = false;
    follow(Deceleration::settling(offsetAt(now_s), velocity, offset, m_point), Movement::settling, now_s);
}

void ScrollAxis::follow(const Deceleration& path, Movement movement, double now_s) {
    m_path = path;
    m_movement = movement;
    m_offset = path.target();
    m_start_s = now_s;
    m_end_s = now_s + path.duration_s();
}

bool ScrollAxis::scrollBy(double delta, double now_s) {
    if (m_isTracking || delta == 0 || !std::isfinite(delta)) return false;
    return scrollTo(offsetAt(now_s) + delta, now_s);
}

bool ScrollAxis::scrollTo(double offset, double now_s) {
    const double wanted = m_range.clamped(offset);
    if (wanted == offsetAt(now_s)) return false;
    place(wanted, true);
    return true;
}

// --- The program

void ScrollAxis::moveTo(double offset) { place(offset, false); }

void ScrollAxis::animateTo(double offset, const Animation& animation, double now_s) {
    const double from = offsetAt(now_s);
    moveTo(offset);
    if (m_isTracking || offset == from || !(animation.end_s() > 0)) return;
    m_movement = Movement::animation;
    m_animatedFrom = from;
    m_animation = animation;
    m_start_s = now_s;
    m_end_s = now_s + animation.end_s();
}

void ScrollAxis::moveIntoRange(double now_s) {
    if (!m_isTracking && !isMovingAt(now_s)) m_offset = m_range.clamped(m_offset);
}

void ScrollAxis::stop(double now_s) {
    m_offset = offsetAt(now_s);
    m_end_s = atRest;
}

void ScrollAxis::place(double offset, bool isOfPerson) {
    m_offset = offset;
    m_isOfPerson = isOfPerson;
    m_end_s = atRest;
    m_fingerAtStart = m_finger;
    m_draggedAtStart = unRubberBanded(offset, m_range, m_viewportLength);
    m_speed.reset();
}

} // namespace proupsells::motion
