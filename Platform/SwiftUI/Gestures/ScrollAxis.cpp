#include "Platform/SwiftUI/Gestures/ScrollAxis.hpp"

#include <algorithm>

namespace proupsells::swiftui {
namespace {

// Faster fingers do not throw content any further. Points a second.
constexpr double fastestFlick = 8000;

} // namespace

void ScrollAxis::setRange(motion::ScrollRange range, double viewportLength, double now_s) {
    if (range == m_range && viewportLength == m_viewportLength) return;
    m_range = range;
    m_viewportLength = viewportLength;
    if (m_isTracking) return;
    if (isCoastingAt(now_s)) {
        const double elapsed_s = now_s - m_flick->start_s;
        coast(m_flick->path.offsetAt(elapsed_s), m_flick->path.velocityAt(elapsed_s), now_s);
    } else {
        moveTo(offsetAt(now_s));
    }
}

double ScrollAxis::offsetAt(double now_s) const { return m_flick ? m_flick->path.offsetAt(now_s - m_flick->start_s) : m_offset; }

bool ScrollAxis::isCoastingAt(double now_s) const { return now_s < end_s(); }

double ScrollAxis::end_s() const { return m_flick ? m_flick->start_s + m_flick->path.duration_s() : -1e300; }

void ScrollAxis::beginTracking(double finger, double now_s) {
    stop(now_s);
    m_isTracking = true;
    m_fingerAtStart = finger;
    m_draggedAtStart = motion::unRubberBanded(m_offset, m_range, m_viewportLength);
    m_speed.reset();
    m_speed.add(now_s, m_offset);
}

void ScrollAxis::track(double finger, double now_s) {
    if (!m_isTracking) return;
    m_offset = motion::rubberBanded(m_draggedAtStart - (finger - m_fingerAtStart), m_range, m_viewportLength);
    m_speed.add(now_s, m_offset);
}

void ScrollAxis::endTracking(double now_s) {
    if (!m_isTracking) return;
    m_isTracking = false;
    coast(m_offset, std::clamp(m_speed.velocityAt(now_s), -fastestFlick, fastestFlick), now_s);
}

void ScrollAxis::cancelTracking(double now_s) {
    if (!m_isTracking) return;
    m_isTracking = false;
    coast(m_offset, 0, now_s);
}

void ScrollAxis::stop(double now_s) {
    m_offset = offsetAt(now_s);
    m_flick.reset();
}

void ScrollAxis::moveTo(double offset) {
    m_flick.reset();
    m_isTracking = false;
    m_offset = m_range.clamped(offset);
}

void ScrollAxis::coast(double offset, double velocity, double now_s) {
    const motion::Deceleration path{offset, velocity, m_range};
    m_offset = path.target();
    m_flick.reset();
    if (path.duration_s() > 0) m_flick = Flick{path, now_s};
}

} // namespace proupsells::swiftui
