#include "Platform/SwiftUI/Gestures/PagePosition.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::swiftui {
namespace {

// A finger that is faster than this turns the page, however far it has come. Points a second.
constexpr double turningSpeed = 250;

} // namespace

int PagePosition::existing(int page) const { return std::clamp(page, 0, std::max(0, m_count - 1)); }

void PagePosition::setPages(int count, double pageLength, double now_s) {
    if (count == m_count && pageLength == m_pageLength) return;
    m_count = count;
    m_pageLength = pageLength;
    m_target = existing(m_target);
    if (m_isTracking) return;
    // What is under way was measured in the old pages.
    if (m_settling || positionAt(now_s) > existing(count)) turnTo(m_target, nullptr, now_s);
}

double PagePosition::positionAt(double now_s) const {
    if (m_isTracking) return m_held;
    if (m_settling && m_pageLength > 0) return m_settling->path.offsetAt(now_s - m_settling->start_s) / m_pageLength;
    return m_slide.valueAt(now_s);
}

double PagePosition::end_s() const { return m_settling ? m_settling->start_s + m_settling->path.duration_s() : m_slide.end_s(); }

void PagePosition::turnTo(int page, const motion::Animation* animation, double now_s) {
    m_target = existing(page);
    if (m_isTracking) return;
    if (m_settling) {
        m_slide = Animated<double>(positionAt(now_s));
        m_settling.reset();
    }
    m_slide.set(m_target, animation, now_s);
}

void PagePosition::beginTracking(double finger, double now_s) {
    m_held = positionAt(now_s);
    m_isTracking = true;
    m_fingerAtStart = finger;
    m_draggedAtStart = motion::unRubberBanded(m_held * m_pageLength, range(), m_pageLength);
    m_speed.reset();
    m_speed.add(now_s, m_held * m_pageLength);
}

void PagePosition::track(double finger, double now_s) {
    if (!m_isTracking || !(m_pageLength > 0)) return;
    const double shown = motion::rubberBanded(m_draggedAtStart - (finger - m_fingerAtStart), range(), m_pageLength);
    m_held = shown / m_pageLength;
    m_speed.add(now_s, shown);
}

int PagePosition::pageForLift(double now_s) const {
    const double speed = m_speed.velocityAt(now_s);
    if (speed > turningSpeed) return existing(int(std::floor(m_held)) + 1);
    if (speed < -turningSpeed) return existing(int(std::ceil(m_held)) - 1);
    return existing(int(std::lround(m_held)));
}

void PagePosition::settle(int page, double now_s) {
    if (!m_isTracking) return;
    m_isTracking = false;
    m_target = existing(page);
    const double speed = m_speed.velocityAt(now_s);
    m_settling = Settling{motion::Deceleration::settling(m_held * m_pageLength, speed, m_target * m_pageLength), now_s};
    m_slide = Animated<double>(m_target);
}

} // namespace proupsells::swiftui
