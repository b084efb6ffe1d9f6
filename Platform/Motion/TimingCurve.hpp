// How an animation's progress follows time.
#pragma once

namespace proupsells::motion {

// A cubic Bézier curve from (0, 0) to (1, 1), given by its two control points, whose x are cut to [0, 1].
struct TimingCurve {
    double x1 = 0, y1 = 0, x2 = 1, y2 = 1;

    // The progress at a share of the duration; both are 0 at 0 and 1 at 1, outside of which time is cut to [0, 1].
    double valueAt(double time) const;

    static constexpr TimingCurve linear() { return {0, 0, 1, 1}; }
    static constexpr TimingCurve easeIn() { return {0.42, 0, 1, 1}; }
    static constexpr TimingCurve easeOut() { return {0, 0, 0.58, 1}; }
    static constexpr TimingCurve easeInOut() { return {0.42, 0, 0.58, 1}; }

    bool operator==(const TimingCurve&) const = default;
};

// A curve with its times.
struct Animation {
    TimingCurve curve = TimingCurve::easeInOut();
    double duration_s = 0.35;
    double delay_s = 0;

    // Progress at a time after the start: 0 during the delay, 1 from the end on (at once where the duration is 0).
    double progressAt(double elapsed_s) const;
    double end_s() const { return delay_s + duration_s; }

    static constexpr Animation standard() { return {}; }
    bool operator==(const Animation&) const = default;
};

} // namespace proupsells::motion
