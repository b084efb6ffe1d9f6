#include "Platform/Motion/ScrollMotion.hpp"

#include <algorithm>
#include <cmath>

namespace proupsells::motion {
namespace {

// How easily the content follows a finger past its end.
constexpr double rubberBandStiffness = 0.55;
// At the viewport's whole length the finger would be infinitely far away.
constexpr double largestShownShare = 0.999999;

// Per second; 0.998 of the speed is left after each millisecond.
constexpr double decelerationRate = 2.0020026706730794;
constexpr double restingSpeed = 4;     // points a second
constexpr double springFrequency = 12; // radians a second
constexpr double restingDistance = 0.01;

double maximumOf(ScrollRange range) { return std::max(range.minimum, range.maximum); }

// When the envelope (displacement + slope · t) · e^(-frequency · t) has fallen below the resting distance for good.
double springSettlingTime_s(double displacement, double velocity, double point) {
    const double slope = std::abs(velocity + springFrequency * displacement), start = std::abs(displacement);
    const auto envelope = [&](double t) { return (start + slope * t) * std::exp(-springFrequency * t); };
    double low = slope > 0 ? std::max(0.0, 1 / springFrequency - start / slope) : 0;
    const double near = restingDistance * point;
    if (envelope(low) <= near) return low;
    double high = low + 0.25;
    while (envelope(high) > near) high += 0.25;
    for (int step = 0; step < 40; ++step) {
        const double middle = (low + high) / 2;
        (envelope(middle) > near ? low : high) = middle;
    }
    return high;
}

} // namespace

ScrollRange ScrollRange::ofContent(double contentLength, double viewportLength, double spaceBefore, double spaceAfter) {
    return {-spaceBefore, std::max(-spaceBefore, contentLength + spaceAfter - viewportLength)};
}

double ScrollRange::clamped(double offset) const { return std::clamp(offset, minimum, maximumOf(*this)); }

double rubberBanded(double offset, ScrollRange range, double viewportLength) {
    const double edge = range.clamped(offset);
    if (offset == edge || !(viewportLength > 0)) return edge;
    const double pulled = std::abs(offset - edge);
    const double shown = (1 - 1 / (pulled * rubberBandStiffness / viewportLength + 1)) * viewportLength;
    return edge + std::copysign(shown, offset - edge);
}

double unRubberBanded(double shown, ScrollRange range, double viewportLength) {
    const double edge = range.clamped(shown);
    if (shown == edge || !(viewportLength > 0)) return edge;
    const double seen = std::min(std::abs(shown - edge), largestShownShare * viewportLength);
    return edge + std::copysign(viewportLength / rubberBandStiffness * seen / (viewportLength - seen), shown - edge);
}

double Deceleration::Phase::offsetAt(double time_s) const {
    const double t = time_s - start_s;
    if (!isSpring) return offset - velocity / decelerationRate * std::expm1(-decelerationRate * t);
    const double displacement = offset - end;
    return end + (displacement + (velocity + springFrequency * displacement) * t) * std::exp(-springFrequency * t);
}

double Deceleration::Phase::velocityAt(double time_s) const {
    const double t = time_s - start_s;
    if (!isSpring) return velocity * std::exp(-decelerationRate * t);
    const double slope = velocity + springFrequency * (offset - end);
    return (velocity - springFrequency * slope * t) * std::exp(-springFrequency * t);
}

Deceleration::Deceleration(double offset, double velocity, ScrollRange range, double point) : m_point(point) {
    const double start = std::isfinite(offset) ? offset : range.minimum;
    beginPhase(0, start, std::isfinite(velocity) ? velocity : 0, false, 0);
    const double end = range.clamped(start);
    if (start == end) {
        coastThrough(range);
    } else {
        comeBackTo(end, range);
    }
}

Deceleration Deceleration::settling(double offset, double velocity, double end, double point) {
    // The fastest that the spring takes without swinging through.
    const double limit = springFrequency * (end - offset);
    const double kept = limit >= 0 ? std::min(velocity, limit) : std::max(velocity, limit);
    return {offset, offset == end ? 0 : kept, {end, end}, point};
}

// From outside the range. If the flick inwards is faster than the spring, the axis passes the range's end and coasts from there.
void Deceleration::comeBackTo(double end, ScrollRange range) {
    Phase& spring = m_phases[0];
    spring.isSpring = true;
    spring.end = end;
    const double displacement = spring.offset - end;
    const double slope = spring.velocity + springFrequency * displacement;
    if (slope * displacement >= 0) return springTo(end);
    const double crossing_s = -displacement / slope;
    beginPhase(crossing_s, end, slope * std::exp(-springFrequency * crossing_s), false, 0);
    coastThrough(range);
}

// The last phase is a spring; the axis comes to rest at its end.
void Deceleration::springTo(double end) {
    const Phase& spring = m_phases[m_phaseCount - 1];
    restAt(spring.start_s + springSettlingTime_s(spring.offset - end, spring.velocity, m_point), end);
}

// The last phase coasts inside the range until it is slow enough to rest or meets the range's end.
void Deceleration::coastThrough(ScrollRange range) {
    const Phase& coast = m_phases[m_phaseCount - 1];
    const double speed = std::abs(coast.velocity), slow = restingSpeed * m_point;
    if (speed <= slow) return restAt(coast.start_s, coast.offset);
    const double end = coast.velocity < 0 ? range.minimum : maximumOf(range);
    const double slowingDown_s = std::log(speed / slow) / decelerationRate;
    // The share of its speed that is left when it meets the end.
    const double shareLeft = 1 - (end - coast.offset) * decelerationRate / coast.velocity;
    if (shareLeft * speed <= slow) {
        const double time_s = coast.start_s + slowingDown_s;
        return restAt(time_s, range.clamped(coast.offsetAt(time_s)));
    }
    beginPhase(coast.start_s - std::log(shareLeft) / decelerationRate, end, coast.velocity * shareLeft, true, end);
    springTo(end);
}

void Deceleration::beginPhase(double start_s, double offset, double velocity, bool isSpring, double end) {
    m_phases[m_phaseCount++] = {isSpring, start_s, offset, velocity, end};
}

void Deceleration::restAt(double time_s, double offset) {
    m_duration_s = time_s;
    m_target = offset;
}

const Deceleration::Phase& Deceleration::phaseAt(double elapsed_s) const {
    int index = m_phaseCount - 1;
    while (index > 0 && m_phases[index].start_s > elapsed_s) --index;
    return m_phases[index];
}

double Deceleration::offsetAt(double elapsed_s) const {
    if (elapsed_s >= m_duration_s) return m_target;
    return phaseAt(elapsed_s).offsetAt(std::max(0.0, elapsed_s));
}

double Deceleration::velocityAt(double elapsed_s) const {
    if (elapsed_s >= m_duration_s) return 0;
    return phaseAt(elapsed_s).velocityAt(std::max(0.0, elapsed_s));
}

} // namespace proupsells::motion
